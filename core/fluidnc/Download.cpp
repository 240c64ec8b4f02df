#include "fluidnc/Download.h"

#include <utility>

#include "fluidnc/Console.h"
#include "fluidnc/Drain.h"
#include "fluidnc/XModem.h"
#include "fluidnc/XModemWire.h"
#include "serial/Clock.h"

namespace fluidnc {
namespace {

using namespace xmodem;

// A sender that does not answer "C" within a few requests may know only the
// checksum variant, which it starts on NAK.
constexpr int kCrcRequests = 3;
// A block comes in one burst (1029 bytes take 90 ms at 115200 baud); one that
// stops arriving for this long is short and is asked for again.
constexpr int kBlockRestMs = 1000;
// A single CAN may be line noise; only two in a row cancel.
constexpr int kSecondCanMs = 1000;
constexpr int kPurgeSliceMs = 200;
constexpr int kOkAfterTransferMs = 5000;
// The chip's whole flash: no file of the firmware's file system is larger.
constexpr size_t kMaxFileBytes = 16 * 1024 * 1024;

enum class Outcome { Stored, Repeated, Refused, Ended, Cancelled, TooLarge };

// The receiving side of one XModem transfer. A transfer it gives up on is ended
// by `abandon`; otherwise it never sends CAN, which a console takes as a reset.
class Receiver {
  public:
    Receiver(SerialPort& port, const std::string& name, void (*progress)(float, const char*),
             void (*log)(const char*), DownloadFailure* failure)
        : port_(port), name_(name), progress_(progress), log_(log), failure_(failure) {}

    std::optional<std::vector<uint8_t>> run();

  private:
    std::optional<uint8_t> requestTransfer();
    std::optional<uint8_t> nextHeader(int timeoutMs);
    Outcome handle(std::optional<uint8_t> header);
    Outcome receiveBlock(uint8_t header);
    bool readExactly(uint8_t* buf, size_t len, int timeoutMs);
    bool checkPasses(const uint8_t* body, size_t len, const uint8_t* trailer) const;
    std::vector<uint8_t> finish();
    void abandon();
    void reportSize(float fraction);
    std::nullopt_t fail(DownloadFailure::Reason reason, const std::string& cause);

    SerialPort& port_;
    const std::string& name_;
    void (*progress_)(float, const char*);
    void (*log_)(const char*);
    DownloadFailure* failure_;
    Mode mode_ = Mode::Crc;
    std::vector<uint8_t> file_;
    uint8_t expected_ = 1;  // block number on the wire, wraps after 255
    size_t ordinal_ = 1;    // the same block counted from 1, for the log
};

std::optional<std::vector<uint8_t>> Receiver::run() {
    if (name_.empty() || name_.find_first_of("\r\n") != std::string::npos) {
        return fail(DownloadFailure::Reason::invalidName, "invalid file name");
    }
    if (!startTransfer(port_, "$Xmodem/Send=" + name_ + "\n")) {
        return fail(DownloadFailure::Reason::commandNotSent, "could not send the command");
    }
    std::optional<uint8_t> header = requestTransfer();
    if (!header) {
        abandon();
        return fail(DownloadFailure::Reason::noBlock, "no block received");
    }
    int failures = 0;
    for (;;) {
        const Outcome outcome = handle(header);
        if (outcome == Outcome::Cancelled) {
            return fail(DownloadFailure::Reason::cancelled, "cancelled by the device");
        }
        if (outcome == Outcome::TooLarge) {
            abandon();
            return fail(DownloadFailure::Reason::tooLarge, "file larger than 16 MiB");
        }
        failures = outcome == Outcome::Stored || outcome == Outcome::Ended ? 0 : failures + 1;
        if (failures >= kMaxTransmissions) {
            abandon();
            return fail(DownloadFailure::Reason::blockFailed,
                        "block " + std::to_string(ordinal_) + " failed 25 times");
        }
        if (outcome == Outcome::Refused) {
            // Whatever is left of a broken block must not be read as the next one.
            drainInput(port_, 256, kPurgeSliceMs);
        }
        if (!port_.write(outcome == Outcome::Refused ? &NAK : &ACK, 1)) {
            return fail(DownloadFailure::Reason::answerNotSent, "could not answer the device");
        }
        if (outcome == Outcome::Ended) {
            return finish();
        }
        header = nextHeader(kReplyMs);
    }
}

std::optional<uint8_t> Receiver::requestTransfer() {
    for (int attempt = 0; attempt < kHandshakeTries; ++attempt) {
        mode_ = attempt < kCrcRequests ? Mode::Crc : Mode::Checksum;
        const uint8_t request = mode_ == Mode::Crc ? CRC_REQUEST : NAK;
        if (!port_.write(&request, 1)) {
            return std::nullopt;
        }
        if (auto header = nextHeader(kHandshakeTryMs)) {
            return header;
        }
    }
    return std::nullopt;
}

// Console text that is still on its way is skipped, not taken for a block.
std::optional<uint8_t> Receiver::nextHeader(int timeoutMs) {
    const mono::Deadline deadline(timeoutMs);
    for (;;) {
        const int remaining = deadline.remainingMs();
        if (remaining < 1) {
            return std::nullopt;
        }
        const auto byte = readByte(port_, remaining);
        if (byte == SOH || byte == STX || byte == EOT || byte == CAN) {
            return byte;
        }
    }
}

Outcome Receiver::handle(std::optional<uint8_t> header) {
    if (!header) {
        return Outcome::Refused;
    }
    if (*header == EOT) {
        return Outcome::Ended;
    }
    if (*header == CAN) {
        return readByte(port_, kSecondCanMs) == CAN ? Outcome::Cancelled : Outcome::Refused;
    }
    return receiveBlock(*header);
}

Outcome Receiver::receiveBlock(uint8_t header) {
    const size_t dataLen = header == SOH ? kShortBlockData : kBlockData;
    std::vector<uint8_t> rest(2 + dataLen + (mode_ == Mode::Crc ? 2 : 1));
    if (!readExactly(rest.data(), rest.size(), kBlockRestMs)) {
        return Outcome::Refused;
    }
    const uint8_t number = rest[0];
    const uint8_t* body = rest.data() + 2;
    if (static_cast<uint8_t>(number ^ rest[1]) != 0xFF ||
        !checkPasses(body, dataLen, body + dataLen)) {
        return Outcome::Refused;
    }
    if (number == expected_) {
        if (file_.size() + dataLen > kMaxFileBytes) {
            return Outcome::TooLarge;
        }
        file_.insert(file_.end(), body, body + dataLen);
        ++expected_;
        ++ordinal_;
        reportSize(0.0f);
        return Outcome::Stored;
    }
    // The sender missed our ACK and repeats the block we already hold.
    if (ordinal_ > 1 && number == static_cast<uint8_t>(expected_ - 1)) {
        return Outcome::Repeated;
    }
    return Outcome::Refused;
}

bool Receiver::readExactly(uint8_t* buf, size_t len, int timeoutMs) {
    const mono::Deadline deadline(timeoutMs);
    size_t got = 0;
    while (got < len) {
        const int remaining = deadline.remainingMs();
        if (remaining < 1) {
            return false;
        }
        got += port_.read(buf + got, len - got, remaining);
    }
    return true;
}

bool Receiver::checkPasses(const uint8_t* body, size_t len, const uint8_t* trailer) const {
    if (mode_ == Mode::Crc) {
        const uint16_t crc = crc16(body, len);
        return trailer[0] == (crc >> 8) && trailer[1] == (crc & 0xFF);
    }
    return trailer[0] == sum8(body, len);
}

std::vector<uint8_t> Receiver::finish() {
    while (!file_.empty() && file_.back() == PADDING) {
        file_.pop_back();
    }
    waitForOk(port_, kOkAfterTransferMs);
    reportSize(1.0f);
    return std::move(file_);
}

// A sender that is still waiting for answers takes the CANs as the end of the
// transfer; a console that never started one has taken every request byte as text
// of its current line, which the CANs (Ctrl+X) or else the line end clear, so the
// next command arrives on a line of its own. Its reply is drained.
void Receiver::abandon() {
    static constexpr uint8_t kCancel[] = {CAN, CAN};
    static constexpr uint8_t kLineEnd = '\n';
    port_.write(kCancel, sizeof kCancel);
    drainInput(port_, 256, kPurgeSliceMs);
    port_.write(&kLineEnd, 1);
    drainInput(port_, 256, kPurgeSliceMs);
}

void Receiver::reportSize(float fraction) {
    const std::string stage =
        "Downloading " + name_ + "\u2026 " + std::to_string(file_.size()) + " bytes";
    report(progress_, fraction, stage.c_str());
}

std::nullopt_t Receiver::fail(DownloadFailure::Reason reason, const std::string& cause) {
    if (failure_ != nullptr) {
        *failure_ = {reason, reason == DownloadFailure::Reason::blockFailed ? ordinal_ : 0};
    }
    if (log_ != nullptr) {
        log_(("XModem download: " + cause).c_str());
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::vector<uint8_t>> downloadFile(SerialPort& port, const std::string& name,
                                                 void (*progress)(float, const char*),
                                                 void (*log)(const char*),
                                                 DownloadFailure* failure) {
    return Receiver(port, name, progress, log, failure).run();
}

}  // namespace fluidnc
