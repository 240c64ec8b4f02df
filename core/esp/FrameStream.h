#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "serial/SerialPort.h"

namespace esp {

/// Reads consecutive SLIP frames from a port, keeping the bytes that follow one
/// frame for the next, so a device that sends frames back to back loses nothing.
///
/// The loader session's one-frame receive drops what follows its frame, which is
/// right for command exchanges; a flash read whose device sends ahead needs this.
/// Borrows the port, which must outlive the stream. One thread at a time.
class FrameStream {
  public:
    enum class Status {
        frame,     ///< a frame arrived; its payload is in the caller's vector
        timedOut,  ///< no complete frame within the time-out
        corrupt,   ///< a frame with a bad escape, or longer than the limit
    };

    /// `maxFrame`: the longest payload expected; a frame whose bytes grow past twice
    /// that (every byte escaped) without a closing END is corrupt.
    FrameStream(SerialPort& port, size_t maxFrame);

    /// Waits at most `timeoutMs` for the next frame and puts its payload in `payload`.
    /// Bytes before a frame's opening END are skipped; an empty frame (END END) is
    /// taken for the closing END of one frame and the opening END of the next.
    Status next(std::vector<uint8_t>& payload, int timeoutMs);

  private:
    enum class Found { none, frame, corrupt };
    Found takeBuffered(std::vector<uint8_t>& payload);
    void compact();

    SerialPort& port_;
    size_t maxEncoded_;
    std::vector<uint8_t> buffer_;
    size_t start_ = 0;    ///< the first byte not yet consumed
    size_t scanned_ = 0;  ///< bytes from `start_` searched for a closing END
};

}  // namespace esp
