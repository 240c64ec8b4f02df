#include <algorithm>
#include <cstring>

#include "EspLoader.h"
#include "Hex.h"
#include "Packet.h"

namespace esp {

namespace {

constexpr size_t kStubHeaderSize = 20;
constexpr int kMemTimeoutMs = 3000;
constexpr int kGreetingTimeoutMs = 5000;
constexpr uint8_t kGreeting[] = {'O', 'H', 'A', 'I'};

}  // namespace

std::optional<StubHeader> EspLoader::parseStubHeader(const uint8_t* image, size_t length) {
    if (length < kStubHeaderSize) {
        return std::nullopt;
    }
    StubHeader header;
    header.textAddr = readLE32(image);
    header.textSize = readLE32(image + 4);
    header.dataAddr = readLE32(image + 8);
    header.dataSize = readLE32(image + 12);
    header.entry = readLE32(image + 16);
    const uint64_t needed = uint64_t{kStubHeaderSize} + header.textSize + header.dataSize;
    if (needed > length) {
        return std::nullopt;
    }
    return header;
}

std::vector<uint8_t> EspLoader::buildDataPacket(const uint8_t* data, size_t length,
                                                uint32_t sequence) {
    std::vector<uint8_t> packet;
    packet.reserve(16 + length);
    packLE32(packet, static_cast<uint32_t>(length));
    packLE32(packet, sequence);
    packLE32(packet, 0);
    packLE32(packet, 0);
    packet.insert(packet.end(), data, data + length);
    return packet;
}

bool EspLoader::uploadMemSegment(const uint8_t* data, size_t size, uint32_t address) {
    const auto blocks = static_cast<uint32_t>((size + RAM_BLOCK - 1) / RAM_BLOCK);
    std::vector<uint8_t> begin;
    for (const uint32_t word : {static_cast<uint32_t>(size), blocks, RAM_BLOCK, address}) {
        packLE32(begin, word);
    }
    if (!sendCommand(MEM_BEGIN, begin, 0, kMemTimeoutMs).ok) {
        return false;
    }
    for (uint32_t seq = 0; seq < blocks; ++seq) {
        const size_t offset = size_t{seq} * RAM_BLOCK;
        const size_t length = std::min<size_t>(size - offset, RAM_BLOCK);
        const std::vector<uint8_t> block(data + offset, data + offset + length);
        if (!sendCommand(MEM_DATA, buildDataPacket(block.data(), length, seq),
                         calculateChecksum(block), kMemTimeoutMs)
                 .ok) {
            return false;
        }
    }
    return true;
}

bool EspLoader::uploadStub(const uint8_t* image, size_t length) {
    const auto header = parseStubHeader(image, length);
    if (!header) {
        log("Stub header parse failed (size=" + std::to_string(length) + ")");
        return false;
    }
    log("Stub: text=" + std::to_string(header->textSize) + " @ " + hexStr(header->textAddr) +
        " data=" + std::to_string(header->dataSize) + " @ " + hexStr(header->dataAddr) +
        " entry=" + hexStr(header->entry));
    const uint8_t* text = image + kStubHeaderSize;
    if (!uploadMemSegment(text, header->textSize, header->textAddr)) {
        return false;
    }
    if (header->dataSize != 0 &&
        !uploadMemSegment(text + header->textSize, header->dataSize, header->dataAddr)) {
        return false;
    }
    std::vector<uint8_t> end;
    packLE32(end, 0);
    packLE32(end, header->entry);
    if (!sendCommand(MEM_END, end, 0, kMemTimeoutMs).ok) {
        return false;
    }
    // The stub's greeting is a bare frame, not a response packet.
    const std::vector<uint8_t> greeting = receiveFrame(kGreetingTimeoutMs);
    if (greeting.size() < sizeof kGreeting ||
        std::memcmp(greeting.data(), kGreeting, sizeof kGreeting) != 0) {
        return false;
    }
    stubRunning_ = true;
    return true;
}

}  // namespace esp
