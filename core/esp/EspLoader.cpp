#include "EspLoader.h"

#include <algorithm>
#include <utility>

#include "Hex.h"
#include "Packet.h"
#include "Slip.h"
#include "serial/Clock.h"

namespace esp {

namespace {

constexpr size_t kReadSlice = 256;
constexpr int kMaxReadWaitMs = 100;
constexpr int kLineHoldMs = 100;
constexpr int kSyncTimeoutMs = 500;
constexpr int kDrainTimeoutMs = 50;
// The ROM may answer one SYNC several times; more than this many extras are left.
constexpr int kMaxDrainedReplies = 7;
constexpr int kRegTimeoutMs = 3000;
constexpr size_t kChipIdOffset = 12;

CommandResult failed() {
    return CommandResult{};
}

}  // namespace

EspLoader::EspLoader(SerialPort& port, LogFn log) : port_(port), log_(std::move(log)) {}

void EspLoader::log(const std::string& line) const {
    if (log_) {
        log_(line);
    }
}

bool EspLoader::sendFrame(const std::vector<uint8_t>& packet) {
    return port_.write(slip::encode(packet));
}

std::vector<uint8_t> EspLoader::receiveFrame(int timeoutMs) {
    std::vector<uint8_t> buffer;
    buffer.reserve(kReadSlice);
    const mono::Deadline deadline(timeoutMs);
    if (deadline.expired()) {
        return {};
    }
    uint8_t slice[kReadSlice];
    for (;;) {
        const int remaining = deadline.remainingMs();
        if (remaining <= 0) {
            return {};
        }
        const size_t n = port_.read(slice, kReadSlice, std::min(remaining, kMaxReadWaitMs));
        if (n > 0) {
            buffer.insert(buffer.end(), slice, slice + n);
            if (auto frame = slip::readFrame(buffer.data(), buffer.size())) {
                return std::move(frame->first);
            }
        }
        if (deadline.expired()) {
            return {};
        }
    }
}

CommandResult EspLoader::sendCommand(uint8_t op, const std::vector<uint8_t>& payload,
                                     uint32_t checksum, int timeoutMs) {
    if (!sendRequest(op, payload, checksum)) {
        return failed();
    }
    return judgeResponse(op, receiveFrame(timeoutMs));
}

bool EspLoader::sendRequest(uint8_t op, const std::vector<uint8_t>& payload, uint32_t checksum) {
    if (readUnfinished_) {
        // A stub still inside a read takes the next request for read data and garbles
        // its reply; only a reset brings it back.
        log(std::string("NOT SENT: ") + cmdName(op) + " (a flash read was left unfinished)");
        return false;
    }
    if (!sendFrame(buildCommandPacket(op, payload, checksum))) {
        log(std::string("SEND FAIL: ") + cmdName(op));
        return false;
    }
    return true;
}

CommandResult EspLoader::judgeResponse(uint8_t op, const std::vector<uint8_t>& frame) {
    const std::string name = cmdName(op);
    if (frame.empty()) {
        log("NO RESPONSE: " + name);
        return failed();
    }
    auto response = parseResponsePacket(frame, stubRunning_);
    if (!response) {
        log("PARSE FAIL: " + name + " payload_size=" + std::to_string(frame.size()));
        return failed();
    }
    if (response->op != op) {
        log("CMD MISMATCH: sent " + name + " got " + cmdName(response->op));
        return failed();
    }
    CommandResult result{response->status == 0, response->value, std::move(response->data)};
    if (!result.ok) {
        log("ERROR: " + name + " status=" + std::to_string(response->status) +
            " error=" + std::to_string(response->error));
    }
    return result;
}

bool EspLoader::enterBootloader() {
    using Line = SerialPort::Line;
    struct Level {
        Line line;
        bool asserted;
    };
    // The auto-reset circuit also sees the short-lived combination between the two
    // calls of a step, so their order is part of the sequence.
    static constexpr Level kSteps[][2] = {
        {{Line::RTS, false}, {Line::DTR, false}}, {{Line::DTR, true}, {Line::RTS, false}},
        {{Line::RTS, true}, {Line::DTR, false}},  {{Line::RTS, true}, {Line::DTR, true}},
        {{Line::RTS, false}, {Line::DTR, false}},
    };
    for (const auto& step : kSteps) {
        for (const Level& level : step) {
            if (level.line == Line::DTR) {
                port_.setDTR(level.asserted);
            } else {
                port_.setRTS(level.asserted);
            }
        }
        mono::sleepMs(kLineHoldMs);
    }
    // Drop the boot text the chip printed while it restarted.
    port_.flush();
    readUnfinished_ = false;
    return true;
}

bool EspLoader::sync(int attempts) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (sendCommand(SYNC, buildSyncPayload(), 0, kSyncTimeoutMs).ok) {
            for (int extra = 0; extra < kMaxDrainedReplies; ++extra) {
                if (receiveFrame(kDrainTimeoutMs).empty()) {
                    break;
                }
            }
            return true;
        }
    }
    return false;
}

uint32_t EspLoader::readChipId() {
    const CommandResult result = sendCommand(GET_SECURITY_INFO, {}, 0, kRegTimeoutMs);
    if (!result.ok || result.data.size() < kChipIdOffset + 2) {
        return 0;
    }
    return readLE16(result.data, kChipIdOffset);
}

uint32_t EspLoader::readReg(uint32_t address) {
    std::vector<uint8_t> payload;
    packLE32(payload, address);
    const CommandResult result = sendCommand(READ_REG, payload, 0, kRegTimeoutMs);
    return result.ok ? result.value : 0;
}

bool EspLoader::checkSecurityFuses() {
    const uint32_t fuses = readReg(SECURITY_FUSE_REG);
    log("Security fuses: " + hexStr(fuses));
    // Bit 2 alone is tolerated; any other bit may stand for secure boot or flash encryption.
    if ((fuses & ~uint32_t{4}) == 0) {
        log("Security check OK - no secure boot or flash encryption");
        return true;
    }
    log("WARNING: Unexpected security fuse value! Secure boot or flash encryption may be "
        "enabled.");
    return false;
}

void EspLoader::hardReset() {
    port_.setRTS(true);
    mono::sleepMs(kLineHoldMs);
    port_.setRTS(false);
    mono::sleepMs(kLineHoldMs);
    stubRunning_ = false;
    readUnfinished_ = false;
}

}  // namespace esp
