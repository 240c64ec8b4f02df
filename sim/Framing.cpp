#include "sim/Framing.h"

#include <algorithm>

namespace sim::detail {

std::vector<uint8_t> slipFrame(const std::vector<uint8_t>& payload) {
    std::vector<uint8_t> out;
    out.reserve(payload.size() + payload.size() / 64 + 2);
    out.push_back(kEnd);
    for (uint8_t b : payload) {
        if (b == kEnd) {
            out.push_back(kEsc);
            out.push_back(kEscEnd);
        } else if (b == kEsc) {
            out.push_back(kEsc);
            out.push_back(kEscEsc);
        } else {
            out.push_back(b);
        }
    }
    out.push_back(kEnd);
    return out;
}

uint32_t le32(const uint8_t* p) {
    return uint32_t{p[0]} | uint32_t{p[1]} << 8 | uint32_t{p[2]} << 16 | uint32_t{p[3]} << 24;
}

void putLe32(std::vector<uint8_t>& out, uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<uint8_t>(value >> shift));
    }
}

FrameReader::Event FrameReader::feed(uint8_t byte) {
    if (!inFrame_) {
        if (byte != kEnd) {
            return Event::Stray;
        }
        reset();
        inFrame_ = true;
        return Event::None;
    }
    if (byte == kEnd) {
        // END END is a closing delimiter directly followed by the next opening one,
        // so an empty frame keeps the reader inside a frame.
        if (payload_.empty() && !escaped_ && !broken_) {
            return Event::None;
        }
        const bool good = !escaped_ && !broken_;
        inFrame_ = false;
        return good ? Event::Frame : Event::None;
    }
    if (escaped_) {
        escaped_ = false;
        if (byte == kEscEnd) {
            payload_.push_back(kEnd);
        } else if (byte == kEscEsc) {
            payload_.push_back(kEsc);
        } else {
            broken_ = true;
        }
        return Event::None;
    }
    if (byte == kEsc) {
        escaped_ = true;
    } else {
        payload_.push_back(byte);
    }
    return Event::None;
}

FrameReader::Event FrameReader::feed(const uint8_t* data, size_t len, size_t& used) {
    size_t i = 0;
    while (i < len) {
        if (inFrame_ && !escaped_) {
            // Bulk copy of the plain run: a 16 KiB block is mostly such bytes.
            const uint8_t* run = data + i;
            const uint8_t* stop =
                std::find_if(run, data + len, [](uint8_t b) { return b == kEnd || b == kEsc; });
            payload_.insert(payload_.end(), run, stop);
            i = static_cast<size_t>(stop - data);
            if (i == len) {
                break;
            }
        }
        const Event event = feed(data[i++]);
        if (event != Event::None) {
            used = i;
            return event;
        }
    }
    used = len;
    return Event::None;
}

void FrameReader::reset() {
    payload_.clear();
    inFrame_ = false;
    escaped_ = false;
    broken_ = false;
}

}  // namespace sim::detail
