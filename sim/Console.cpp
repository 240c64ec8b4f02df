#include "sim/Console.h"

#include <string_view>

#include "serial/Clock.h"
#include "sim/XModemWire.h"

namespace sim::detail {

namespace {

constexpr size_t kMaxLine = 256;
const std::string kReceiveCommand = "$Xmodem/Receive=";
const std::string kSendCommand = "$Xmodem/Send=";

// What a plotter fresh from the factory keeps as config.yaml.
constexpr std::string_view kDefaultConfig = R"(name: "Simulated plotter"
board: "Simulated controller"
meta: "0.0.0-sim"

stepping:
  engine: RMT
  idle_ms: 255

axes:
  x:
    steps_per_mm: 80.000
    max_rate_mm_per_min: 12000.000
    acceleration_mm_per_sec2: 1000.000
    max_travel_mm: 300.000
  y:
    steps_per_mm: 80.000
    max_rate_mm_per_min: 12000.000
    acceleration_mm_per_sec2: 1000.000
    max_travel_mm: 200.000
  z:
    steps_per_mm: 100.000
    max_rate_mm_per_min: 3000.000
    acceleration_mm_per_sec2: 200.000
    max_travel_mm: 10.000
)";
constexpr int kFloodIntervalMs = 5;
const std::string kStatusLine = "<Idle|MPos:0.000,0.000,0.000|FS:0,0>\r\n";

}  // namespace

void Console::restart(int64_t restartNs, int64_t readyNs, bool byHost) {
    xmodem_.stop();
    sender_.stop();
    line_.clear();
    readyNs_ = readyNs;
    d_.mode = Mode::Console;
    if (d_.config.goneAtRestart) {
        d_.loseLine();
        return;
    }
    boot_.start(restartNs, readyNs, byHost);
    startFlood();
}

size_t Console::consume(const uint8_t* data, size_t len) {
    if (d_.mode == Mode::XModem) {
        return xmodem_.consume(data, len);
    }
    if (d_.mode == Mode::XModemSend) {
        return sender_.consume(data, len);
    }
    return consumeLines(data, len);
}

size_t Console::consumeLines(const uint8_t* data, size_t len) {
    for (size_t i = 0; i < len; ++i) {
        const uint8_t b = data[i];
        if (b == xmodem::kSlipEnd) {
            line_.clear();
            d_.mode = Mode::RomLoader;
            return i;
        }
        // Ctrl+X resets the console, which drops the line typed so far; every other
        // byte, an XModem request included, is part of the line until its end.
        if (b == xmodem::kCan) {
            d_.note("CAN");
            line_.clear();
        } else if (b == '\n') {
            const std::string line = std::move(line_);
            line_.clear();
            onLine(line);
            if (d_.mode != Mode::Console) {
                return i + 1;
            }
        } else if (b != '\r' && line_.size() < kMaxLine) {
            line_.push_back(static_cast<char>(b));
        }
    }
    return len;
}

void Console::onLine(const std::string& line) {
    if (line.empty()) {
        return;
    }
    d_.note(line);
    if (mono::nowNs() < readyNs_ || d_.config.silent || d_.config.silentConsole ||
        d_.config.floodConsole || !boot_.firmwareRuns()) {
        return;
    }
    if (line == "$I") {
        const std::string ok = "ok\r\n";
        reply((d_.config.okBeforeVersion ? ok : "") +
              "[VER:" + d_.reportedVersion.value_or(d_.config.versionReport) + ":]\r\n" +
              "[OPT:V,15,128]\r\n" + ok);
    } else if (line == "$SS") {
        reply(boot_.messages() + "ok\r\n");
    } else if (line.starts_with(kReceiveCommand)) {
        const std::string name = line.substr(kReceiveCommand.size());
        reply("[MSG:INFO: XModem receive " + name + "]\r\n");
        xmodem_.start(name);
    } else if (line.starts_with(kSendCommand)) {
        startSending(line.substr(kSendCommand.size()));
    } else if (line == "$Bye") {
        const int64_t now = mono::nowNs();
        restart(now, now + int64_t{d_.config.bootMs} * 1'000'000, false);
    } else {
        reply("error:3\r\n");
    }
}

void Console::startSending(const std::string& name) {
    if (d_.config.xmodemSendSilent) {
        return;
    }
    const auto stored = d_.files.find(name);
    const bool factoryConfig = name == "config.yaml" && !d_.fileSystemErased;
    if (stored == d_.files.end() && !factoryConfig) {
        reply("error:3\r\n");
        return;
    }
    reply("[MSG:INFO: XModem send " + name + "]\r\n");
    if (stored != d_.files.end()) {
        sender_.start(stored->second);
        return;
    }
    const std::string text = d_.config.machineConfig.value_or(std::string(kDefaultConfig));
    sender_.start(std::vector<uint8_t>(text.begin(), text.end()));
}

// Each line schedules the next one, as long as the firmware keeps running.
void Console::startFlood() {
    if (!d_.config.floodConsole) {
        return;
    }
    d_.outbox.schedule(kFloodIntervalMs, [this] {
        if (d_.mode != Mode::Console) {
            return std::vector<uint8_t>{};
        }
        startFlood();
        return std::vector<uint8_t>(kStatusLine.begin(), kStatusLine.end());
    });
}

void Console::reply(const std::string& text) {
    d_.outbox.send(std::vector<uint8_t>(text.begin(), text.end()), d_.config.consoleDelayMs);
}

}  // namespace sim::detail
