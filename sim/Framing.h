#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// The simulator's own SLIP framing and little-endian helpers, kept apart from the
/// host's so that a framing bug on one side is not mirrored on the other.
namespace sim::detail {

inline constexpr uint8_t kEnd = 0xC0;
inline constexpr uint8_t kEsc = 0xDB;
inline constexpr uint8_t kEscEnd = 0xDC;
inline constexpr uint8_t kEscEsc = 0xDD;

/// The SLIP frame of `payload`: END, escaped bytes, END.
std::vector<uint8_t> slipFrame(const std::vector<uint8_t>& payload);

/// Reads the little-endian word at `p`.
uint32_t le32(const uint8_t* p);

/// Appends `value` little-endian.
void putLe32(std::vector<uint8_t>& out, uint32_t value);

/// Incremental SLIP decoder fed one byte at a time.
class FrameReader {
  public:
    enum class Event {
        None,   ///< byte taken inside a frame, or a frame with a bad escape ended
        Stray,  ///< byte outside any frame (noise or console text)
        Frame,  ///< a non-empty, well-formed frame ended; see `payload()`
    };

    Event feed(uint8_t byte);

    /// Feeds bytes from `data` until one completes an event other than None, or all
    /// `len` are taken; `used` tells how many were taken (the event's byte included).
    Event feed(const uint8_t* data, size_t len, size_t& used);

    /// The decoded payload of the frame that just ended.
    const std::vector<uint8_t>& payload() const { return payload_; }

    /// Forgets any partly received frame.
    void reset();

  private:
    std::vector<uint8_t> payload_;
    bool inFrame_ = false;
    bool escaped_ = false;
    bool broken_ = false;
};

}  // namespace sim::detail
