#include "fluidnc/XModem.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "fluidnc/Drain.h"
#include "fluidnc/XModemWire.h"

namespace fluidnc {
namespace {

using namespace xmodem;

constexpr int kDrainMs = 500;

constexpr std::array<uint16_t, 256> makeCrcTable() {
    std::array<uint16_t, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned crc = i << 8;
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc & 0x8000) != 0 ? (crc << 1) ^ 0x1021 : crc << 1;
        }
        table[i] = static_cast<uint16_t>(crc);
    }
    return table;
}

std::optional<Mode> awaitHandshake(SerialPort& port) {
    for (int attempt = 0; attempt < kHandshakeTries; ++attempt) {
        const auto byte = readByte(port, kHandshakeTryMs);
        if (byte == NAK) {
            return Mode::Checksum;
        }
        if (byte == CRC_REQUEST) {
            return Mode::Crc;
        }
    }
    return std::nullopt;
}

std::vector<uint8_t> buildBlock(uint8_t number, const uint8_t* chunk, size_t chunkLen, Mode mode) {
    std::vector<uint8_t> block;
    block.reserve(3 + kBlockData + 2);
    block.push_back(STX);
    block.push_back(number);
    block.push_back(static_cast<uint8_t>(255 - number));
    block.insert(block.end(), chunk, chunk + chunkLen);
    block.resize(3 + kBlockData, PADDING);
    const uint8_t* body = block.data() + 3;
    if (mode == Mode::Crc) {
        const uint16_t crc = crc16(body, kBlockData);
        block.push_back(static_cast<uint8_t>(crc >> 8));
        block.push_back(static_cast<uint8_t>(crc & 0xFF));
    } else {
        block.push_back(sum8(body, kBlockData));
    }
    return block;
}

bool transmitBlock(SerialPort& port, const std::vector<uint8_t>& block) {
    for (int attempt = 0; attempt < kMaxTransmissions; ++attempt) {
        if (!port.write(block)) {
            return false;
        }
        const auto reply = readByte(port, kReplyMs);
        if (reply == ACK) {
            return true;
        }
        if (reply == CAN) {
            return false;
        }
    }
    return false;
}

bool sendBlocks(SerialPort& port, const uint8_t* data, size_t length, Mode mode,
                void (*progress)(float, const char*)) {
    uint8_t number = 1;
    for (size_t offset = 0; offset < length; ++number) {
        const size_t chunk = std::min(kBlockData, length - offset);
        if (!transmitBlock(port, buildBlock(number, data + offset, chunk, mode))) {
            return false;
        }
        offset += chunk;
        report(progress, static_cast<float>(offset) / static_cast<float>(length),
               "Uploading config file...");
    }
    return true;
}

bool endTransmission(SerialPort& port) {
    for (int attempt = 0; attempt < kMaxTransmissions; ++attempt) {
        port.write(&EOT, 1);
        if (readByte(port, kReplyMs) == ACK) {
            return true;
        }
    }
    return false;
}

}  // namespace

namespace xmodem {

uint8_t sum8(const uint8_t* data, size_t len) {
    uint8_t sum = 0;
    for (size_t i = 0; i < len; ++i) {
        sum = static_cast<uint8_t>(sum + data[i]);
    }
    return sum;
}

std::optional<uint8_t> readByte(SerialPort& port, int timeoutMs) {
    uint8_t byte = 0;
    if (port.read(&byte, 1, timeoutMs) == 1) {
        return byte;
    }
    return std::nullopt;
}

void report(void (*progress)(float, const char*), float fraction, const char* stage) {
    if (progress != nullptr) {
        progress(fraction, stage);
    }
}

bool startTransfer(SerialPort& port, std::string_view command) {
    if (!port.write(reinterpret_cast<const uint8_t*>(command.data()), command.size())) {
        return false;
    }
    // The console echoes and comments the command before the transfer starts.
    drainInput(port, 256, kDrainMs);
    return true;
}

}  // namespace xmodem

const std::array<uint16_t, 256> crc16tab = makeCrcTable();

uint16_t crc16(const uint8_t* data, size_t len) {
    uint16_t crc = 0;
    for (size_t i = 0; i < len; ++i) {
        crc = static_cast<uint16_t>(crc16tab[((crc >> 8) ^ data[i]) & 0xFF] ^ (crc << 8));
    }
    return crc;
}

// The handshake wait is fixed at 30 one-second tries: the receiver repeats its
// request about once a second, and the failure text promises 30 s.
bool uploadConfig(SerialPort& port, const uint8_t* data, size_t length,
                  void (*progress)(float, const char*), int /*timeoutMs*/) {
    if (!startTransfer(port, "$Xmodem/Receive=config.yaml\n")) {
        return false;
    }
    const auto mode = awaitHandshake(port);
    if (!mode) {
        report(progress, 0.0f, "XModem: no handshake received (30s timeout)");
        return false;
    }
    if (length > 0 && !sendBlocks(port, data, length, *mode, progress)) {
        return false;
    }
    return endTransmission(port);
}

}  // namespace fluidnc
