#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "tests/support/Records.h"
#include "tests/support/TestImages.h"
#include "tests/support/VirtualTime.h"

/// Expected log lines, images and a watched simulated plotter for the job tests.
namespace jobtest {

using namespace records;
using testimg::pattern;
using testimg::stubImage;
using Lines = std::vector<std::string>;
using Bytes = std::vector<uint8_t>;

/// A partition table described entry by entry: 'A' an application at 0x10000, 'a' one
/// at 0x20000, 'D' data at 0x10000, 'd' data at 0x9000, 'x' an application at 0x10000
/// without the entry magic, '-' an erased entry, '~' 31 bytes of an application entry.
inline Bytes partitionTable(const std::string& entries) {
    Bytes out;
    for (const char kind : entries) {
        Bytes entry(32, kind == '-' ? 0xFF : 0x00);
        if (kind != '-') {
            const uint32_t offset = kind == 'a' ? 0x20000 : kind == 'd' ? 0x9000 : 0x10000;
            entry[0] = kind == 'x' ? 0xAB : 0xAA;
            entry[1] = 0x50;
            entry[2] = (kind == 'D' || kind == 'd') ? 1 : 0;
            entry[5] = static_cast<uint8_t>(offset >> 8);
            entry[6] = static_cast<uint8_t>(offset >> 16);
            entry[9] = 0x10;
        }
        out.insert(out.end(), entry.begin(), entry.end() - (kind == '~' ? 1 : 0));
    }
    return out;
}

/// The start of a bootloader image header for chip 9 whose byte 3 declares the
/// flash size in its high nibble (0 to 4: 1, 2, 4, 8 or 16 MiB).
inline Bytes bootloaderHeader(uint8_t sizeCode) {
    return {
        0xE9, 3, 2, static_cast<uint8_t>(sizeCode << 4 | 0x0F), 0x08, 0x99, 0x3C, 0x40, 0xEE, 0, 0,
        0,    9, 0};
}

/// The log lines after the first `line`, or a line saying it is missing.
inline Lines linesAfter(const std::string& line) {
    const auto at = std::find(logLines.begin(), logLines.end(), line);
    return at == logLines.end() ? Lines{"(no " + line + ")"} : Lines(at + 1, logLines.end());
}

inline Lines concat(std::initializer_list<Lines> parts) {
    Lines all;
    for (const auto& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

/// What a host write was: a console line without its line feed, "block N" for an
/// XModem block, "EOT"; loader frames are not told apart.
inline std::string describe(const uint8_t* data, size_t len) {
    if (len == 1 && data[0] == 0x04) {
        return "EOT";
    }
    if (len > 1 && data[0] == 0x02) {
        return "block " + std::to_string(data[1]);
    }
    std::string text(reinterpret_cast<const char*>(data), len);
    return text.ends_with('\n') ? text.substr(0, len - 1) : text;
}

/// A simulated plotter behind a loopback port that notes every host write and
/// every modem-line change, timed in virtual milliseconds from `connect`. It can
/// leave stale console output in the port before a job and keep the console
/// quiet where a case needs it.
class WatchedPlotter {
  public:
    using Write = std::pair<int64_t, std::string>;  ///< (ms, `describe` of it)

    explicit WatchedPlotter(sim::Config config = {}) : plotter(std::move(config)) {}

    /// Opens `port` on this plotter with `stale` already waiting in it.
    void connect(SerialPort& port, const Bytes& stale = {}) {
        port.openLoopback([this](const uint8_t* d, size_t n) { return onWrite(d, n); },
                          [this](int timeoutMs) { return onIdle(timeoutMs); },
                          [this](SerialPort::Line line, bool level) {
                              noteAction();
                              lineChanges.emplace_back(line, level);
                          });
        // A write of nothing never reaches the plotter; it only queues the output.
        stale_ = stale;
        port.write(nullptr, 0);
        startNs_ = mono::nowNs();
    }

    /// Virtual milliseconds since `connect`.
    int64_t elapsedMs() const { return virtualMsSince(startNs_); }

    /// True when no RTS pulse (a hard reset) followed the last bootloader entry.
    bool endsWithoutReset() const {
        return !lineChanges.empty() && lineChanges.back().first == SerialPort::Line::DTR;
    }

    sim::Plotter plotter;
    std::vector<Write> writes;
    std::vector<std::pair<SerialPort::Line, bool>> lineChanges;
    int64_t firstActionMs = -1;        ///< the first write or line change
    std::vector<int64_t> idleReadsNs;  ///< `mono::nowNs()` at each read of an empty port
    Bytes afterVersion;                ///< console output that follows the answer to "$I"
    bool answerVersion = true;         ///< false: "$I" goes unanswered
    bool quietAfterUpload = false;     ///< no "ok" or other output after the upload's EOT
    int lostRequests = 0;              ///< XModem transfer requests ('C', NAK) lost on the line

  private:
    void noteAction() {
        if (firstActionMs < 0) {
            firstActionMs = elapsedMs();
        }
    }

    Bytes onWrite(const uint8_t* data, size_t len) {
        if (len == 0) {
            return std::exchange(stale_, {});
        }
        noteAction();
        writes.emplace_back(elapsedMs(), describe(data, len));
        uploaded_ = uploaded_ || writes.back().second == "EOT";
        if (len == 1 && (data[0] == 'C' || data[0] == 0x15) && lostRequests > 0) {
            --lostRequests;
            return {};
        }
        Bytes reply = plotter.onHostBytes(data, len);
        if (writes.back().second == "$I") {
            reply = answerVersion ? reply : Bytes{};
            reply.insert(reply.end(), afterVersion.begin(), afterVersion.end());
        }
        return reply;
    }

    Bytes onIdle(int timeoutMs) {
        idleReadsNs.push_back(mono::nowNs());
        Bytes out = plotter.onIdle(timeoutMs);
        return quietAfterUpload && uploaded_ ? Bytes{} : out;
    }

    Bytes stale_;
    int64_t startNs_ = 0;
    bool uploaded_ = false;
};

}  // namespace jobtest
