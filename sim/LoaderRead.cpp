#include <algorithm>

#include "serial/Clock.h"
#include "sim/Loader.h"

namespace sim::detail {

namespace {

// The flasher stub's packet limit: a larger packet size gets no data at all.
constexpr uint32_t kStubPacketLimit = 4096;
constexpr size_t kAcknowledgementSize = 4;

}  // namespace

Loader::Result Loader::readFlash(const Request& r) {
    if (r.size < 16) {
        d_.note("READ_FLASH");
        return failure(kErrInvalid);
    }
    const uint32_t address = r.word(0);
    const uint32_t size = r.word(1);
    const uint32_t packetSize = r.word(2);
    d_.note("READ_FLASH " + hex(address) + " " + std::to_string(size));
    if (rom() || packetSize == 0 || !inFlash(d_, address, size)) {
        return failure(kErrInvalid);
    }
    if (packetSize <= kStubPacketLimit) {
        startPacedRead(r);
    } else if (d_.config.readPacketLimit) {
        // The stub waits for data of its own making that never comes, and takes the
        // host's next request for it.
        garbleNext_ = true;
    } else {
        scheduleReadData(address, size, packetSize);
    }
    return answer();
}

// The data follows the response as bare frames, one gap apart, then the digest of
// all of it; the host acknowledges nothing in between.
void Loader::scheduleReadData(uint32_t address, uint32_t size, uint32_t packetSize) {
    int step = 1;
    for (uint32_t offset = 0; offset < size; offset += packetSize, ++step) {
        const uint32_t start = address + offset;
        const uint32_t length = std::min(packetSize, size - offset);
        d_.outbox.schedule(step * gapMs(), [this, start, length] {
            const auto first = d_.flash.begin() + start;
            return slipFrame(std::vector<uint8_t>(first, first + length));
        });
    }
    d_.outbox.schedule(step * gapMs(), [this, address, size] {
        return slipFrame(md5Digest(d_.flash.data() + address, size));
    });
}

void Loader::startPacedRead(const Request& r) {
    const uint32_t inFlight = d_.config.readSendsAhead ? std::max(r.word(3), 1u) : 1u;
    read_ = PacedRead{r.word(0), r.word(1), r.word(2), inFlight, pacedReads_++};
}

bool Loader::takeAcknowledgement(const std::vector<uint8_t>& packet) {
    if (!read_ || packet.size() != kAcknowledgementSize) {
        return false;
    }
    const uint32_t total = le32(packet.data());
    if (total <= read_->acked || total > read_->sent) {
        d_.note("READ_FLASH acknowledgement " + std::to_string(total));
        return true;
    }
    read_->acked = total;
    const int64_t next = mono::nowNs() + int64_t{d_.config.readTurnaroundMs} * 1'000'000;
    if (total == read_->size) {
        sendReadDigest(next);
    } else {
        sendReadPackets(next);
    }
    return true;
}

void Loader::sendReadPackets(int64_t earliestNs) {
    if (read_->size == 0) {
        sendReadDigest(earliestNs);
        return;
    }
    const uint64_t window = uint64_t{read_->window} * read_->packetSize;
    while (read_->sent < read_->size && read_->sent - read_->acked < window) {
        if (d_.config.readStallAfterPackets &&
            readPacketsSent_ >= *d_.config.readStallAfterPackets) {
            return;
        }
        const uint32_t length = std::min(read_->packetSize, read_->size - read_->sent);
        const auto first = d_.flash.begin() + read_->address + read_->sent;
        sendOnWire(slipFrame(std::vector<uint8_t>(first, first + length)), earliestNs);
        read_->sent += length;
        ++readPacketsSent_;
    }
}

void Loader::sendReadDigest(int64_t earliestNs) {
    std::vector<uint8_t> digest = md5Digest(d_.flash.data() + read_->address, read_->size);
    if (d_.config.wrongReadDigestAt == read_->ordinal) {
        digest[0] ^= 0xFF;
    }
    sendOnWire(slipFrame(digest), earliestNs);
    read_.reset();
    // Without modem lines, console text is the only sign of the host's reset that may
    // follow; silence is not, as a host may go on with another read.
    d_.loaderDone = true;
    d_.loaderDoneNs = wireFreeNs_;
    d_.restartNs = wireFreeNs_ + kHardResetNs;
}

// The line carries one frame at a time: each goes out once the line is free and
// arrives when its last byte would have.
void Loader::sendOnWire(std::vector<uint8_t> frame, int64_t earliestNs) {
    const int64_t now = mono::nowNs();
    const int64_t rate = d_.config.linkBytesPerSecond;
    const int64_t wireNs = rate > 0 ? static_cast<int64_t>(frame.size()) * 1'000'000'000 / rate : 0;
    wireFreeNs_ = std::max(earliestNs, wireFreeNs_) + wireNs;
    if (wireFreeNs_ <= now) {
        d_.outbox.send(std::move(frame));
    } else {
        d_.outbox.scheduleAt(wireFreeNs_, [frame = std::move(frame)] { return frame; });
    }
}

}  // namespace sim::detail
