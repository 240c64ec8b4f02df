#include "sim/XModemSender.h"

#include <algorithm>
#include <string>

#include "serial/Clock.h"
#include "sim/XModemWire.h"

namespace sim::detail {

using namespace xmodem;

void XModemSender::start(std::vector<uint8_t> file) {
    file_ = std::move(file);
    current_ = 0;
    crc_ = d_.config.xmodemSendCrc;
    requested_ = false;
    dropped_ = false;
    repeated_ = false;
    corrupted_ = 0;
    lastInputNs_ = mono::nowNs();
    d_.mode = Mode::XModemSend;
}

void XModemSender::stop() {
    if (d_.mode == Mode::XModemSend) {
        d_.mode = Mode::Console;
    }
}

size_t XModemSender::consume(const uint8_t* data, size_t len) {
    const int64_t now = mono::nowNs();
    // A sender whose receiver went quiet gives up; the console then gets the bytes.
    if (now - lastInputNs_ > int64_t{d_.config.xmodemIdleTimeoutMs} * 1'000'000) {
        stop();
        return 0;
    }
    lastInputNs_ = now;
    for (size_t i = 0; i < len; ++i) {
        if (data[i] == kSlipEnd) {
            stop();
            d_.mode = Mode::RomLoader;
            return i;
        }
        onByte(data[i]);
        if (d_.mode != Mode::XModemSend) {
            return i + 1;
        }
    }
    return len;
}

void XModemSender::onByte(uint8_t byte) {
    if (byte == kCan) {
        d_.note("CAN");
        stop();
        return;
    }
    if (!requested_) {
        // The request chooses the check for the whole transfer; a sender without
        // CRC support ignores 'C' and waits for the receiver to fall back to NAK.
        if ((byte == 'C' && crc_) || byte == kNak) {
            crc_ = byte == 'C';
            requested_ = true;
            sendCurrent();
        }
        return;
    }
    if (byte == kAck) {
        if (current_ == blockCount()) {
            finish();
            return;
        }
        // As if the ACK was lost on the line: the same block goes out again.
        if (d_.config.xmodemSendRepeatBlock == static_cast<int>(current_) + 1 && !repeated_) {
            repeated_ = true;
        } else {
            ++current_;
        }
        sendCurrent();
    } else if (byte == kNak) {
        sendCurrent();
    }
}

void XModemSender::sendCurrent() {
    if (current_ == blockCount()) {
        d_.outbox.send({kEot});
        return;
    }
    const int ordinal = static_cast<int>(current_) + 1;
    if (d_.config.xmodemSendCanBlock == ordinal) {
        d_.outbox.send({kCan, kCan});
        stop();
        return;
    }
    if (d_.config.xmodemSendDropBlock == ordinal && !dropped_) {
        dropped_ = true;
        return;
    }
    std::vector<uint8_t> bytes = block(current_);
    if (d_.config.xmodemSendCorruptBlock == ordinal &&
        corrupted_ < d_.config.xmodemSendCorruptTimes) {
        ++corrupted_;
        bytes[3] ^= 0x01;
    }
    d_.outbox.send(std::move(bytes));
}

std::vector<uint8_t> XModemSender::block(size_t index) const {
    const size_t size = d_.config.xmodemSendBlockSize;
    const uint8_t number = static_cast<uint8_t>(index + 1);
    std::vector<uint8_t> out;
    out.reserve(3 + size + 2);
    out.push_back(size == 128 ? kSoh : kStx);
    out.push_back(number);
    out.push_back(static_cast<uint8_t>(~number));
    const size_t offset = index * size;
    const size_t chunk = std::min(size, file_.size() - offset);
    out.insert(out.end(), file_.begin() + static_cast<std::ptrdiff_t>(offset),
               file_.begin() + static_cast<std::ptrdiff_t>(offset + chunk));
    out.resize(3 + size, kPad);
    const uint8_t* body = out.data() + 3;
    if (crc_) {
        const uint16_t crc = crc16(body, size);
        out.push_back(static_cast<uint8_t>(crc >> 8));
        out.push_back(static_cast<uint8_t>(crc & 0xFF));
    } else {
        out.push_back(checksum8(body, size));
    }
    return out;
}

size_t XModemSender::blockCount() const {
    const size_t size = d_.config.xmodemSendBlockSize;
    return (file_.size() + size - 1) / size;
}

void XModemSender::finish() {
    stop();
    const std::string done =
        "[MSG:INFO: Sent " + std::to_string(file_.size()) + " bytes]\r\nok\r\n";
    d_.outbox.send(std::vector<uint8_t>(done.begin(), done.end()), d_.config.consoleDelayMs);
}

}  // namespace sim::detail
