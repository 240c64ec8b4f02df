#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fluidnc {

/// What a machine printed, kept in arrival order up to a byte limit; once full,
/// every new byte pushes out the oldest one, so the newest output always stays.
///
/// Owns its bytes; not thread-safe (one job feeds it on its own thread).
class Transcript {
  public:
    /// The limit of the start-up transcript the jobs keep: 64 KiB.
    static constexpr size_t kDefaultLimit = 64 * 1024;

    explicit Transcript(size_t limit = kDefaultLimit);

    /// Appends `len` bytes, dropping the oldest ones beyond the limit.
    void append(const uint8_t* data, size_t len);

    /// The bytes kept, oldest first (at most the limit).
    std::vector<uint8_t> bytes() const;

    size_t size() const { return size_; }

  private:
    std::vector<uint8_t> ring_;
    size_t start_ = 0;
    size_t size_ = 0;
};

}  // namespace fluidnc
