#include "Wire.h"

#include <gtest/gtest.h>

namespace wire {

Bytes words(std::initializer_list<uint32_t> values) {
    Bytes out;
    for (uint32_t v : values) {
        for (int i = 0; i < 4; ++i) {
            out.push_back(static_cast<uint8_t>(v >> (8 * i)));
        }
    }
    return out;
}

Bytes request(uint8_t op, const Bytes& payload, uint32_t checksum) {
    Bytes packet{0x00, op, static_cast<uint8_t>(payload.size()),
                 static_cast<uint8_t>(payload.size() >> 8)};
    const Bytes sum = words({checksum});
    packet.insert(packet.end(), sum.begin(), sum.end());
    packet.insert(packet.end(), payload.begin(), payload.end());
    Bytes frame{0xC0};
    for (uint8_t b : packet) {
        if (b == 0xC0) {
            frame.insert(frame.end(), {0xDB, 0xDC});
        } else if (b == 0xDB) {
            frame.insert(frame.end(), {0xDB, 0xDD});
        } else {
            frame.push_back(b);
        }
    }
    frame.push_back(0xC0);
    return frame;
}

Bytes dataPayload(const Bytes& data, uint32_t seq) {
    Bytes out = words({static_cast<uint32_t>(data.size()), seq, 0, 0});
    out.insert(out.end(), data.begin(), data.end());
    return out;
}

uint32_t checksum(const Bytes& data) {
    uint8_t sum = 0xEF;
    for (uint8_t b : data) {
        sum ^= b;
    }
    return sum;
}

std::vector<std::optional<Bytes>> frames(const Bytes& bytes) {
    std::vector<std::optional<Bytes>> out;
    size_t i = 0;
    while (i < bytes.size()) {
        while (i < bytes.size() && bytes[i] != 0xC0) {
            ++i;
        }
        size_t end = i + 1;
        while (end < bytes.size() && bytes[end] != 0xC0) {
            ++end;
        }
        if (end >= bytes.size()) {
            break;
        }
        if (end == i + 1) {
            i = end;  // END END: the second one opens the next frame
            continue;
        }
        std::optional<Bytes> payload = Bytes{};
        for (size_t k = i + 1; k < end; ++k) {
            if (bytes[k] != 0xDB) {
                payload->push_back(bytes[k]);
            } else if (k + 1 < end && (bytes[k + 1] == 0xDC || bytes[k + 1] == 0xDD)) {
                payload->push_back(bytes[++k] == 0xDC ? 0xC0 : 0xDB);
            } else {
                payload.reset();
                break;
            }
        }
        out.push_back(payload);
        i = end + 1;
    }
    return out;
}

Response parse(const Bytes& packet, size_t statusBytes) {
    const size_t size = packet.size() >= 4 ? (packet[2] | packet[3] << 8) : 0;
    EXPECT_GE(packet.size(), 8u);
    EXPECT_EQ(packet.size(), 8 + size) << "size field disagrees with the frame";
    EXPECT_GE(size, statusBytes);
    if (packet.size() < 8 || packet.size() != 8 + size || size < statusBytes) {
        return {};
    }
    EXPECT_EQ(packet[0], 0x01);
    Response r;
    r.op = packet[1];
    r.value = packet[4] | packet[5] << 8 | packet[6] << 16 | uint32_t{packet[7]} << 24;
    r.data.assign(packet.begin() + 8, packet.end() - static_cast<long>(statusBytes));
    r.status = packet[packet.size() - statusBytes];
    r.error = packet[packet.size() - statusBytes + 1];
    return r;
}

Response only(const Bytes& bytes, size_t statusBytes) {
    const auto found = frames(bytes);
    EXPECT_EQ(found.size(), 1u) << "expected exactly one frame";
    if (found.size() != 1 || !found[0]) {
        return {};
    }
    return parse(*found[0], statusBytes);
}

Bytes text(const std::string& s) {
    return Bytes(s.begin(), s.end());
}

std::string str(const Bytes& b) {
    return std::string(b.begin(), b.end());
}

}  // namespace wire
