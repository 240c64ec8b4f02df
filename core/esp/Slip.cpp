#include "Slip.h"

#include <algorithm>
#include <cstring>

namespace slip {

namespace {

// Firmware images are megabytes with a byte to escape only every hundred or so, so
// plain runs are found a word at a time and copied whole.
bool hasByte(uint64_t word, uint8_t byte) {
    constexpr uint64_t kOnes = 0x0101010101010101;
    constexpr uint64_t kHighs = 0x8080808080808080;
    const uint64_t x = word ^ (kOnes * byte);
    return ((x - kOnes) & ~x & kHighs) != 0;
}

const uint8_t* findEscapable(const uint8_t* p, const uint8_t* last) {
    uint64_t word = 0;
    while (last - p >= 8) {
        std::memcpy(&word, p, sizeof word);
        if (hasByte(word, END) || hasByte(word, ESC)) {
            break;
        }
        p += 8;
    }
    while (p < last && *p != END && *p != ESC) {
        ++p;
    }
    return p;
}

// Unescapes the bytes strictly between two END bytes; no value for a bad escape.
std::optional<std::vector<uint8_t>> unescape(const uint8_t* begin, const uint8_t* end) {
    std::vector<uint8_t> out;
    out.reserve(static_cast<size_t>(end - begin));
    for (const uint8_t* p = begin; p < end; ++p) {
        if (*p != ESC) {
            out.push_back(*p);
            continue;
        }
        if (++p == end) {
            return std::nullopt;
        }
        if (*p == ESC_END) {
            out.push_back(END);
        } else if (*p == ESC_ESC) {
            out.push_back(ESC);
        } else {
            return std::nullopt;
        }
    }
    return out;
}

}  // namespace

std::vector<uint8_t> encode(const std::vector<uint8_t>& payload) {
    std::vector<uint8_t> frame;
    frame.reserve(payload.size() + 2);
    frame.push_back(END);
    const uint8_t* p = payload.data();
    const uint8_t* const last = p + payload.size();
    while (p < last) {
        const uint8_t* escapable = findEscapable(p, last);
        frame.insert(frame.end(), p, escapable);
        if (escapable == last) {
            break;
        }
        frame.push_back(ESC);
        frame.push_back(*escapable == END ? ESC_END : ESC_ESC);
        p = escapable + 1;
    }
    frame.push_back(END);
    return frame;
}

std::optional<std::vector<uint8_t>> decode(const std::vector<uint8_t>& frame) {
    if (frame.size() < 2 || frame.front() != END || frame.back() != END) {
        return std::nullopt;
    }
    return unescape(frame.data() + 1, frame.data() + frame.size() - 1);
}

std::optional<std::pair<std::vector<uint8_t>, size_t>> readFrame(const uint8_t* data, size_t len) {
    const uint8_t* const last = data + len;
    const uint8_t* open = std::find(data, last, END);
    if (open == last) {
        return std::nullopt;
    }
    const uint8_t* close = std::find(open + 1, last, END);
    if (close == last) {
        return std::nullopt;
    }
    auto payload = unescape(open + 1, close);
    if (!payload) {
        return std::nullopt;
    }
    return std::make_pair(std::move(*payload), static_cast<size_t>(close - data) + 1);
}

}  // namespace slip
