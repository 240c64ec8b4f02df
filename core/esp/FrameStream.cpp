#include "FrameStream.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "Slip.h"
#include "serial/Clock.h"

namespace esp {

namespace {

constexpr size_t kReadSlice = 16384;
constexpr int kMaxReadWaitMs = 100;

}  // namespace

FrameStream::FrameStream(SerialPort& port, size_t maxFrame)
    : port_(port), maxEncoded_(2 * maxFrame + 2) {}

FrameStream::Status FrameStream::next(std::vector<uint8_t>& payload, int timeoutMs) {
    const mono::Deadline deadline(timeoutMs);
    for (;;) {
        const Found found = takeBuffered(payload);
        if (found != Found::none) {
            return found == Found::frame ? Status::frame : Status::corrupt;
        }
        const int remaining = deadline.remainingMs();
        if (remaining <= 0) {
            return Status::timedOut;
        }
        compact();
        const size_t kept = buffer_.size();
        buffer_.resize(kept + kReadSlice);
        const size_t n =
            port_.read(buffer_.data() + kept, kReadSlice, std::min(remaining, kMaxReadWaitMs));
        buffer_.resize(kept + n);
    }
}

FrameStream::Found FrameStream::takeBuffered(std::vector<uint8_t>& payload) {
    const uint8_t* base = buffer_.data();
    const size_t end = buffer_.size();
    if (scanned_ == 0) {
        // Whatever precedes an opening END is line noise.
        const auto* open = static_cast<const uint8_t*>(
            start_ < end ? std::memchr(base + start_, slip::END, end - start_) : nullptr);
        if (open == nullptr) {
            start_ = end;
            return Found::none;
        }
        start_ = static_cast<size_t>(open - base);
        scanned_ = 1;
    }
    for (;;) {
        const size_t from = start_ + scanned_;
        const auto* close = static_cast<const uint8_t*>(
            from < end ? std::memchr(base + from, slip::END, end - from) : nullptr);
        if (close == nullptr) {
            scanned_ = end - start_;
            if (scanned_ <= maxEncoded_) {
                return Found::none;
            }
            start_ = end;
            scanned_ = 0;
            return Found::corrupt;
        }
        const auto closing = static_cast<size_t>(close - base);
        if (closing == start_ + 1) {
            // END END: the end of a frame directly followed by the start of the next.
            start_ = closing;
            continue;
        }
        auto frame = slip::readFrame(base + start_, closing - start_ + 1);
        start_ = closing + 1;
        scanned_ = 0;
        if (!frame) {
            return Found::corrupt;
        }
        payload = std::move(frame->first);
        return Found::frame;
    }
}

void FrameStream::compact() {
    if (start_ == buffer_.size()) {
        buffer_.clear();
        start_ = 0;
    } else if (start_ >= kReadSlice) {
        buffer_.erase(buffer_.begin(), buffer_.begin() + static_cast<std::ptrdiff_t>(start_));
        start_ = 0;
    }
}

}  // namespace esp
