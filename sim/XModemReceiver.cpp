#include "sim/XModemReceiver.h"

#include <algorithm>

#include "serial/Clock.h"
#include "sim/XModemWire.h"

namespace sim::detail {

using namespace xmodem;

void XModemReceiver::start(std::string fileName) {
    fileName_ = std::move(fileName);
    file_.clear();
    block_.clear();
    lastBlockStart_ = 0;
    accepted_ = 0;
    naksSent_ = 0;
    handshakesSent_ = 0;
    crc_ = d_.config.xmodemCrc;
    active_ = true;
    started_ = false;
    lastInputNs_ = mono::nowNs();
    d_.mode = Mode::XModem;
    const uint64_t generation = ++generation_;
    d_.outbox.schedule(d_.config.handshakeFirstMs,
                       [this, generation] { return handshake(generation); });
}

void XModemReceiver::stop() {
    active_ = false;
    block_.clear();
    if (d_.mode == Mode::XModem) {
        d_.mode = Mode::Console;
    }
}

std::vector<uint8_t> XModemReceiver::handshake(uint64_t generation) {
    if (generation != generation_ || !active_ || started_) {
        return {};
    }
    if (handshakesSent_ >= d_.config.xmodemHandshakeTries) {
        stop();
        return {};
    }
    std::vector<uint8_t> bytes;
    if (handshakesSent_ == 0) {
        bytes.assign(d_.config.xmodemJunk.begin(), d_.config.xmodemJunk.end());
    }
    ++handshakesSent_;
    if (d_.config.xmodemHandshake) {
        bytes.push_back(crc_ ? 'C' : kNak);
    }
    d_.outbox.schedule(d_.config.handshakeIntervalMs,
                       [this, generation] { return handshake(generation); });
    return bytes;
}

size_t XModemReceiver::blockLength(uint8_t header) const {
    const size_t data = header == kSoh ? 128 : 1024;
    return 3 + data + (crc_ ? 2 : 1);
}

size_t XModemReceiver::consume(const uint8_t* data, size_t len) {
    const int64_t now = mono::nowNs();
    // A receiver whose sender went quiet gives up; the console then gets the bytes.
    if (started_ && now - lastInputNs_ > int64_t{d_.config.xmodemIdleTimeoutMs} * 1'000'000) {
        stop();
        return 0;
    }
    lastInputNs_ = now;
    size_t i = 0;
    while (i < len) {
        if (block_.empty()) {
            const uint8_t b = data[i];
            if (b == kSlipEnd) {
                stop();
                d_.mode = Mode::RomLoader;
                return i;
            }
            ++i;
            if (b == kSoh || b == kStx) {
                blockLength_ = blockLength(b);
                block_.push_back(b);
            } else if (b == kEot) {
                onEndOfTransmission();
            } else if (b == kCan) {
                d_.note("CAN");
                stop();
            }
            if (d_.mode != Mode::XModem) {
                return i;
            }
            continue;
        }
        const size_t take = std::min(len - i, blockLength_ - block_.size());
        block_.insert(block_.end(), data + i, data + i + take);
        i += take;
        if (block_.size() == blockLength_) {
            onBlock();
            block_.clear();
            if (d_.mode != Mode::XModem) {
                return i;
            }
        }
    }
    return len;
}

bool XModemReceiver::checkPasses() const {
    const size_t dataLen = blockLength_ - 3 - (crc_ ? 2 : 1);
    const uint8_t* payload = block_.data() + 3;
    if ((block_[1] ^ block_[2]) != 0xFF) {
        return false;
    }
    if (crc_) {
        const uint16_t crc = crc16(payload, dataLen);
        return block_[3 + dataLen] == (crc >> 8) && block_[4 + dataLen] == (crc & 0xFF);
    }
    return block_[3 + dataLen] == checksum8(payload, dataLen);
}

void XModemReceiver::onBlock() {
    started_ = true;
    const uint8_t number = block_[1];
    const int ordinal = accepted_ + 1;
    const uint8_t expected = static_cast<uint8_t>(ordinal);
    const std::string entry = "XMODEM " + std::to_string(number);
    if (d_.config.goneAfterXModemBlocks == accepted_) {
        d_.note(entry);
        d_.loseLine();
        return;
    }
    if (!checkPasses()) {
        d_.note(entry + " bad");
        answer({kNak});
    } else if (accepted_ > 0 && number == static_cast<uint8_t>(expected - 1)) {
        // Our ACK was lost and the sender repeats the block: take it only once.
        d_.note(entry + " repeat");
        answer({kAck});
    } else if (number != expected || d_.config.xmodemCanBlock == ordinal) {
        d_.note(entry + " cancelled");
        answer({kCan, kCan});
        stop();
    } else if (d_.config.xmodemNakBlock == ordinal && naksSent_ < d_.config.xmodemNakTimes) {
        ++naksSent_;
        d_.note(entry + " refused");
        answer({kNak});
    } else {
        lastBlockStart_ = file_.size();
        file_.insert(file_.end(), block_.begin() + 3, block_.end() - (crc_ ? 2 : 1));
        ++accepted_;
        d_.note(entry);
        answer({kAck});
    }
}

void XModemReceiver::onEndOfTransmission() {
    started_ = true;
    d_.note("EOT");
    if (!d_.config.xmodemAckEot) {
        answer({kNak});
        return;
    }
    // Padding is indistinguishable from file bytes of the same value, so a file
    // that really ends in 0x1A loses those bytes.
    while (file_.size() > lastBlockStart_ && file_.back() == kPad) {
        file_.pop_back();
    }
    const size_t size = file_.size();
    d_.files[fileName_] = std::move(file_);
    file_ = {};
    answer({kAck});
    stop();
    const std::string done =
        "[MSG:INFO: Received " + std::to_string(size) + " bytes to " + fileName_ + "]\r\nok\r\n";
    const int delay = std::max({1, d_.config.consoleDelayMs, d_.config.frameGapMs});
    if (!d_.config.silentConsole) {
        d_.outbox.send(std::vector<uint8_t>(done.begin(), done.end()), delay);
    }
}

void XModemReceiver::answer(std::vector<uint8_t> bytes) {
    if (!d_.config.silent) {
        d_.outbox.send(std::move(bytes));
    }
}

}  // namespace sim::detail
