#include "sim/Loader.h"

#include <algorithm>
#include <cstdio>

#include "serial/Clock.h"

namespace sim::detail {

namespace {

constexpr uint32_t kFuseRegister = 0x3FF5A018;

bool isSyncPayload(const uint8_t* payload, size_t size) {
    static constexpr uint8_t kPreamble[] = {0x07, 0x07, 0x12, 0x20};
    if (size != 36 || !std::equal(std::begin(kPreamble), std::end(kPreamble), payload)) {
        return false;
    }
    return std::all_of(payload + 4, payload + size, [](uint8_t b) { return b == 0x55; });
}

std::vector<uint8_t> responsePacket(uint8_t opcode, uint32_t value,
                                    const std::vector<uint8_t>& data, uint8_t status, uint8_t error,
                                    size_t statusBytes) {
    const size_t size = data.size() + statusBytes;
    std::vector<uint8_t> packet{0x01, opcode, static_cast<uint8_t>(size),
                                static_cast<uint8_t>(size >> 8)};
    packet.reserve(8 + size);
    putLe32(packet, value);
    packet.insert(packet.end(), data.begin(), data.end());
    packet.push_back(status);
    packet.push_back(error);
    packet.resize(8 + size, 0);
    return packet;
}

// Bytes a chip may print while it boots; never an END, so hosts skip them.
const std::vector<uint8_t> kGarbage{0x00, 0xFF, 0x7E, 'n', 'o', 'i', 's', 'e', '\r', '\n'};

std::string opName(uint8_t opcode) {
    char text[16];
    std::snprintf(text, sizeof text, "CMD_0x%02X", opcode);
    return text;
}

}  // namespace

uint8_t dataChecksum(const uint8_t* data, size_t len) {
    uint8_t sum = 0xEF;
    for (size_t i = 0; i < len; ++i) {
        sum ^= data[i];
    }
    return sum;
}

std::string hex(uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", value);
    return text;
}

void Loader::reset() {
    reader_.reset();
    restartRom();
}

void Loader::restartRom() {
    d_.mode = Mode::RomLoader;
    d_.outbox.cancelScheduled();
    d_.ram.clear();
    d_.loaderDone = false;
    d_.appFlashed = false;
    mem_.reset();
    write_.reset();
    appBegun_ = false;
    chipErased_ = false;
    bootBegun_ = false;
    read_.reset();
    garbleNext_ = false;
}

size_t Loader::consume(const uint8_t* data, size_t len) {
    size_t pos = 0;
    while (pos < len) {
        size_t used = 0;
        const FrameReader::Event event = reader_.feed(data + pos, len - pos, used);
        pos += used;
        if (event == FrameReader::Event::Stray && d_.loaderDone) {
            // Without modem lines the only sign of the reset after FLASH_END is the
            // host talking to the firmware's console, which gets this byte too.
            d_.mode = Mode::Console;
            return pos - 1;
        }
        if (event == FrameReader::Event::Frame) {
            handle(reader_.payload());
            if (d_.mode != Mode::RomLoader && d_.mode != Mode::Stub) {
                return pos;
            }
        }
    }
    return len;
}

void Loader::handle(const std::vector<uint8_t>& packet) {
    if (takeAcknowledgement(packet) || packet.size() < 8 || packet[0] != 0x00) {
        return;
    }
    const size_t size = packet[2] | size_t{packet[3]} << 8;
    if (packet.size() < 8 + size) {
        return;
    }
    ++frames_;
    const Request request{packet[1], le32(&packet[4]), packet.data() + 8, size};
    if (garbleReply(request.op)) {
        return;
    }
    // A SYNC is answered by the ROM the host just reset into, MEM_END by the ROM
    // that then starts the stub: the status width is the answering program's.
    const bool romAnswers = rom() || request.op == op::kSync;
    const Result response = execute(request);
    if (d_.mode == Mode::Gone) {
        return;
    }
    if (response) {
        sendResponse(request.op, *response, romAnswers ? 4 : 2);
    }
    if (read_ && !read_->started) {
        read_->started = true;
        sendReadPackets(mono::nowNs());
    }
    if (d_.config.silent) {
        d_.outbox.clear();
    }
}

// A stub still inside a read (one whose packets it cannot send, or one the host left)
// takes a request for read data: the request does nothing, and its reply is garbled.
bool Loader::garbleReply(uint8_t opcode) {
    // Over a pseudo-terminal a SYNC is what tells of the host's reset into ROM.
    if (opcode == op::kSync || (!garbleNext_ && !(read_ && read_->started))) {
        return false;
    }
    garbleNext_ = false;
    read_.reset();
    d_.note("GARBLED " + opName(opcode));
    d_.outbox.send(slipFrame(responsePacket(opcode, 0, {}, 0xC0, 0x00, 2)));
    return true;
}

Loader::Result Loader::execute(const Request& r) {
    switch (r.op) {
        case op::kSync:
            return sync(r);
        case op::kReadReg:
            return readReg(r);
        case op::kSecurityInfo:
            return securityInfo(r);
        case op::kMemBegin:
            return memBegin(r);
        case op::kMemData:
            return memData(r);
        case op::kMemEnd:
            return memEnd(r);
        case op::kSpiAttach:
            d_.note("SPI_ATTACH");
            return answer();
        case op::kEraseChip:
            return eraseChip(r);
        case op::kFlashBegin:
            return flashBegin(r);
        case op::kFlashData:
            return flashData(r);
        case op::kFlashEnd:
            return flashEnd(r);
        case op::kSpiFlashMd5:
            return flashMd5(r);
        case op::kReadFlash:
            return readFlash(r);
        default:
            d_.note(opName(r.op));
            return failure(kErrInvalid);
    }
}

std::optional<ResponseFault> Loader::takeFault(uint8_t opcode) {
    const int any = responsesSent_++;
    const int mine = responsesByOp_[opcode]++;
    for (const ResponseFault& fault : d_.config.responseFaults) {
        if (fault.occurrence == (fault.op ? mine : any) && fault.op.value_or(opcode) == opcode) {
            return fault;
        }
    }
    return std::nullopt;
}

void Loader::sendResponse(uint8_t opcode, const Response& response, size_t statusBytes) {
    const std::optional<ResponseFault> fault = takeFault(opcode);
    const FaultKind kind = fault ? fault->kind : FaultKind::Drop;
    uint8_t status = response.error != 0 ? 1 : 0;
    uint8_t error = response.error;
    if (fault && kind == FaultKind::ErrorStatus) {
        status = 1;
        error = fault->errorCode;
    }
    std::vector<uint8_t> packet =
        responsePacket(opcode, response.value, response.data, status, error, statusBytes);
    if (fault && kind == FaultKind::WrongOpcode) {
        packet[1] ^= 0x01;
    }
    std::vector<uint8_t> frame = slipFrame(packet);
    if (fault) {
        switch (kind) {
            case FaultKind::Drop:
                return;
            case FaultKind::Duplicate:
                d_.outbox.send(frame, response.delayMs + gapMs());
                break;
            case FaultKind::Corrupt:
                frame.insert(frame.begin() + 1, {kEsc, 0x01});
                break;
            case FaultKind::Truncate:
                frame.resize(std::max<size_t>(1, frame.size() / 2));
                break;
            case FaultKind::GarbageBefore:
                frame.insert(frame.begin(), kGarbage.begin(), kGarbage.end());
                break;
            case FaultKind::WrongOpcode:
            case FaultKind::ErrorStatus:
                break;
        }
    }
    d_.outbox.send(std::move(frame), response.delayMs);
}

Loader::Result Loader::sync(const Request& r) {
    d_.note("SYNC");
    ++syncRequests_;
    restartRom();
    if (syncRequests_ < d_.config.syncFromAttempt || !isSyncPayload(r.payload, r.size)) {
        return std::nullopt;
    }
    // The ROM answers one SYNC several times, each reply its own frame right behind
    // the first, all there before the host turns to its next command. Spaced out,
    // a late one would answer that command whenever this thread ran late.
    const std::vector<uint8_t> extra = slipFrame(responsePacket(op::kSync, 0, {}, 0, 0, 4));
    for (int i = 1; i < d_.config.syncReplies; ++i) {
        d_.outbox.send(extra);
    }
    if (d_.config.syncReplies < 1) {
        return std::nullopt;
    }
    return answer();
}

Loader::Result Loader::readReg(const Request& r) {
    if (r.size < 4) {
        d_.note("READ_REG");
        return failure(kErrInvalid);
    }
    const uint32_t address = r.word(0);
    d_.note("READ_REG " + hex(address));
    return answer(address == kFuseRegister ? d_.config.securityFuses : 0);
}

Loader::Result Loader::securityInfo(const Request&) {
    d_.note("GET_SECURITY_INFO");
    // flags, flash-encryption count, 7 key purposes, chip id, API version
    std::vector<uint8_t> data(12, 0);
    putLe32(data, d_.config.chipId);
    putLe32(data, 0);
    return answer(0, std::move(data));
}

Loader::Result Loader::memBegin(const Request& r) {
    d_.note("MEM_BEGIN");
    if (r.size < 16) {
        return failure(kErrInvalid);
    }
    const uint32_t size = r.word(0);
    const uint32_t blocks = r.word(1);
    const uint32_t blockSize = r.word(2);
    if (blockSize == 0 || uint64_t{blocks} * blockSize < size) {
        return failure(kErrInvalid);
    }
    mem_ = MemTransfer{r.word(3), size, blockSize, 0, {}};
    mem_->data.reserve(size);
    if (size == 0) {
        d_.ram[mem_->address] = {};
    }
    return answer();
}

Loader::Result Loader::memData(const Request& r) {
    if (r.size < 16) {
        d_.note("MEM_DATA");
        return failure(kErrInvalid);
    }
    const uint32_t length = r.word(0);
    const uint32_t seq = r.word(1);
    d_.note("MEM_DATA " + std::to_string(seq));
    if (!mem_) {
        return failure(kErrFailed);
    }
    const uint8_t* data = r.payload + 16;
    if (length != r.size - 16 || length > mem_->blockSize || seq != mem_->nextSeq ||
        mem_->data.size() + length > mem_->size) {
        return failure(kErrInvalid);
    }
    if (r.checksum != dataChecksum(data, length)) {
        return failure(kErrChecksum);
    }
    mem_->data.insert(mem_->data.end(), data, data + length);
    ++mem_->nextSeq;
    if (mem_->data.size() == mem_->size) {
        d_.ram[mem_->address] = mem_->data;
    }
    return answer();
}

Loader::Result Loader::memEnd(const Request& r) {
    d_.note("MEM_END");
    if (r.size < 8) {
        return failure(kErrInvalid);
    }
    if (!mem_ || mem_->data.size() != mem_->size) {
        return failure(kErrFailed);
    }
    if (r.word(0) == 0) {
        d_.mode = Mode::Stub;
        if (d_.config.greeting) {
            d_.outbox.send(slipFrame({'O', 'H', 'A', 'I'}), gapMs());
        }
    }
    return answer();
}

}  // namespace sim::detail
