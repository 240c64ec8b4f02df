#include "fluidnc/Console.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "fluidnc/Drain.h"
#include "serial/Clock.h"

namespace fluidnc {
namespace {

constexpr int kByteSliceMs = 50;
constexpr int kLineSliceMs = 500;

// One byte per read, so a line feed is never followed by bytes that belong to
// the next line and would be lost with this call's buffer.
std::string readLine(SerialPort& port, int timeoutMs, Transcript* transcript) {
    std::string line;
    const mono::Deadline deadline(timeoutMs);
    if (deadline.expired()) {
        return line;
    }
    for (;;) {
        const int remaining = deadline.remainingMs();
        if (remaining < 1) {
            return line;
        }
        uint8_t byte = 0;
        if (port.read(&byte, 1, std::min(remaining, kByteSliceMs)) == 1) {
            if (transcript != nullptr) {
                transcript->append(&byte, 1);
            }
            line.push_back(static_cast<char>(byte));
            if (byte == '\n') {
                return line;
            }
        }
        if (deadline.expired()) {
            return line;
        }
    }
}

bool containsOk(const std::string& line) {
    return line.find("ok") != std::string::npos;
}

// The replayed start-up messages may well contain "ok" inside a word, so only the
// console's own closing lines end that answer.
bool endsAnswer(std::string line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) {
        line.pop_back();
    }
    return line == "ok" || line.starts_with("error:");
}

// "[VER:<version>:<build note>]"; the version itself may contain colons, so only
// the last one separates the note.
std::optional<std::string> parseVersionReport(const std::string& line) {
    const auto open = line.find("[VER:");
    if (open == std::string::npos) {
        return std::nullopt;
    }
    const auto first = open + 5;
    const auto close = line.find(']', first);
    if (close == std::string::npos) {
        return std::nullopt;
    }
    std::string inner = line.substr(first, close - first);
    const auto colon = inner.rfind(':');
    if (colon != std::string::npos) {
        inner.resize(colon);
    }
    return inner;
}

bool writeText(SerialPort& port, std::string_view text) {
    return port.write(reinterpret_cast<const uint8_t*>(text.data()), text.size());
}

}  // namespace

void waitForOk(SerialPort& port, int timeoutMs) {
    const mono::Deadline deadline(timeoutMs);
    while (!deadline.expired()) {
        const int remaining = deadline.remainingMs();
        if (remaining < 1 ||
            containsOk(readLine(port, std::min(remaining, kLineSliceMs), nullptr))) {
            return;
        }
    }
}

std::optional<std::string> queryVersion(SerialPort& port, int timeoutMs, Transcript* transcript) {
    drainInput(port, 64, kByteSliceMs, transcript);
    if (!writeText(port, "$I\n")) {
        return std::nullopt;
    }
    const mono::Deadline deadline(timeoutMs);
    if (deadline.expired()) {
        return std::nullopt;
    }
    for (;;) {
        const int remaining = deadline.remainingMs();
        if (remaining < 1) {
            return std::nullopt;
        }
        const std::string line = readLine(port, std::min(remaining, kLineSliceMs), transcript);
        if (!line.empty()) {
            if (auto version = parseVersionReport(line)) {
                return version;
            }
            // The firmware closes every command with "ok"; one without a report
            // before it will not send one.
            if (containsOk(line)) {
                return std::nullopt;
            }
        }
        if (deadline.expired()) {
            return std::nullopt;
        }
    }
}

void sendRestart(SerialPort& port) {
    writeText(port, "$Bye\n");
    mono::sleepMs(500);
}

void listen(SerialPort& port, int ms, Transcript& transcript) {
    uint8_t chunk[256];
    const mono::Deadline deadline(ms);
    for (int remaining = deadline.remainingMs(); remaining >= 1;
         remaining = deadline.remainingMs()) {
        const size_t n = port.read(chunk, sizeof chunk, std::min(remaining, kByteSliceMs));
        transcript.append(chunk, n);
    }
}

void replayStartup(SerialPort& port, int timeoutMs, Transcript& transcript) {
    if (!writeText(port, "$SS\n")) {
        return;
    }
    const mono::Deadline deadline(timeoutMs);
    for (int remaining = deadline.remainingMs(); remaining >= 1;
         remaining = deadline.remainingMs()) {
        if (endsAnswer(readLine(port, std::min(remaining, kLineSliceMs), &transcript))) {
            return;
        }
    }
}

}  // namespace fluidnc
