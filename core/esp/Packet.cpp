#include "Packet.h"

#include <cstdio>
#include <cstring>

namespace esp {

void packLE32(std::vector<uint8_t>& out, uint32_t value) {
    out.push_back(static_cast<uint8_t>(value));
    out.push_back(static_cast<uint8_t>(value >> 8));
    out.push_back(static_cast<uint8_t>(value >> 16));
    out.push_back(static_cast<uint8_t>(value >> 24));
}

uint32_t readLE32(const uint8_t* p) {
    return uint32_t{p[0]} | uint32_t{p[1]} << 8 | uint32_t{p[2]} << 16 | uint32_t{p[3]} << 24;
}

uint32_t readLE32(const std::vector<uint8_t>& v, size_t offset) {
    return readLE32(&v[offset]);
}

uint16_t readLE16(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] | p[1] << 8);
}

uint16_t readLE16(const std::vector<uint8_t>& v, size_t offset) {
    return readLE16(&v[offset]);
}

uint8_t calculateChecksum(const std::vector<uint8_t>& block) {
    // Exclusive-or works lane by lane, so whole words are folded first.
    uint64_t lanes = 0;
    size_t i = 0;
    for (; i + 8 <= block.size(); i += 8) {
        uint64_t word = 0;
        std::memcpy(&word, block.data() + i, sizeof word);
        lanes ^= word;
    }
    uint8_t sum = 0xEF;
    for (int shift = 0; shift < 64; shift += 8) {
        sum ^= static_cast<uint8_t>(lanes >> shift);
    }
    for (; i < block.size(); ++i) {
        sum ^= block[i];
    }
    return sum;
}

std::vector<uint8_t> buildSyncPayload() {
    std::vector<uint8_t> payload(SYNC_PREAMBLE.begin(), SYNC_PREAMBLE.end());
    payload.resize(SYNC_PREAMBLE.size() + 32, 0x55);
    return payload;
}

std::vector<uint8_t> buildCommandPacket(uint8_t op, const std::vector<uint8_t>& payload,
                                        uint32_t checksum) {
    std::vector<uint8_t> packet;
    packet.reserve(8 + payload.size());
    packet.push_back(0x00);
    packet.push_back(op);
    packet.push_back(static_cast<uint8_t>(payload.size()));
    packet.push_back(static_cast<uint8_t>(payload.size() >> 8));
    packLE32(packet, checksum);
    packet.insert(packet.end(), payload.begin(), payload.end());
    return packet;
}

std::optional<ResponsePacket> parseResponsePacket(const std::vector<uint8_t>& frame,
                                                  bool stubRunning) {
    const size_t statusBytes = stubRunning ? 2 : 4;
    if (frame.size() < 8 || frame[0] != 0x01) {
        return std::nullopt;
    }
    const size_t size = readLE16(frame, 2);
    if (frame.size() < 8 + size || size < statusBytes) {
        return std::nullopt;
    }
    const size_t statusAt = 8 + size - statusBytes;
    ResponsePacket response;
    response.op = frame[1];
    response.value = readLE32(frame, 4);
    response.data.assign(frame.begin() + 8, frame.begin() + static_cast<std::ptrdiff_t>(statusAt));
    response.status = frame[statusAt];
    response.error = frame[statusAt + 1];
    return response;
}

const char* cmdName(uint8_t op) {
    switch (op) {
        case FLASH_BEGIN:
            return "FLASH_BEGIN";
        case FLASH_DATA:
            return "FLASH_DATA";
        case FLASH_END:
            return "FLASH_END";
        case MEM_BEGIN:
            return "MEM_BEGIN";
        case MEM_END:
            return "MEM_END";
        case MEM_DATA:
            return "MEM_DATA";
        case SYNC:
            return "SYNC";
        case READ_REG:
            return "READ_REG";
        case SPI_ATTACH:
            return "SPI_ATTACH";
        case SPI_FLASH_MD5:
            return "SPI_FLASH_MD5";
        case GET_SECURITY_INFO:
            return "GET_SECURITY_INFO";
        case READ_FLASH:
            return "READ_FLASH";
        default:
            break;
    }
    // Shared by every caller, so a text stays valid only until the next unnamed opcode.
    static char unnamed[16];
    std::snprintf(unnamed, sizeof unnamed, "CMD_0x%02X", op);
    return unnamed;
}

}  // namespace esp
