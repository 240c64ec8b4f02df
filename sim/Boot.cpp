#include "sim/Boot.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace sim::detail {

namespace {

constexpr int64_t kMs = 1'000'000;
constexpr int64_t kBootLoaderAfterNs = 30 * kMs;
constexpr int64_t kFirmwareAfterNs = 100 * kMs;
constexpr int64_t kFloodAfterNs = 60 * kMs;
// About 60 KB/s: what the ROM manages when it has nothing to start.
constexpr int kFloodIntervalMs = 10;
constexpr int kFloodLinesPerInterval = 22;

const std::string kOtherVersion = "0.9.0-previous (sim)";

constexpr std::string_view kHostReset = "0x15 (USB_UART_CHIP_RESET)";
constexpr std::string_view kSoftwareReset = "0xc (RTC_SW_CPU_RST)";
constexpr std::string_view kBrownoutReset = "0xf (BROWN_OUT_RST)";

std::string romBanner(std::string_view reset) {
    return "ESP-ROM:esp32s3-20210327\r\n"
           "Build:Mar 27 2021\r\n"
           "rst:" +
           std::string(reset) +
           ",boot:0x8 (SPI_FAST_FLASH_BOOT)\r\n"
           "SPIWP:0xee\r\n"
           "mode:DIO, clock div:1\r\n"
           "load:0x3fce3818,len:0x508\r\n"
           "load:0x403c9700,len:0x4\r\n"
           "load:0x403c9704,len:0xad0\r\n"
           "load:0x403cc700,len:0x29e4\r\n"
           "entry 0x403c9880\r\n";
}

constexpr std::string_view kBootLoader =
    "I (24) boot: compile time Jan  1 2024 12:00:00\r\n"
    "I (25) boot: Multicore bootloader\r\n"
    "I (28) boot: chip revision: v0.2\r\n"
    "I (32) boot.esp32s3: Boot SPI Speed : 80MHz\r\n"
    "I (37) boot.esp32s3: SPI Mode       : DIO\r\n"
    "I (41) boot.esp32s3: SPI Flash Size : 16MB\r\n"
    "I (46) boot: Enabling RNG early entropy source...\r\n";

constexpr std::string_view kAppLoaded =
    "I (301) boot: Loaded app from partition at offset 0x10000\r\n"
    "I (301) boot: Disabling RNG early entropy source...\r\n";

constexpr std::string_view kNoApp =
    "E (52) boot: No bootable app partitions in the partition table\r\n";

constexpr std::string_view kInvalidHeader = "invalid header: 0xffffffff\r\n";

constexpr std::string_view kPanic =
    "\r\nGuru Meditation Error: Core  1 panic'ed (LoadProhibited). Exception was unhandled.\r\n"
    "\r\n"
    "Core  1 register dump:\r\n"
    "PC      : 0x4200b9c6  PS      : 0x00060430  A0      : 0x8200c1a9  A1      : 0x3fcebe60  \r\n"
    "EXCVADDR: 0x00000010  LBEG    : 0x40056f5c  LEND    : 0x40056f72  LCOUNT  : 0xffffffff  \r\n"
    "\r\n"
    "\r\n"
    "Backtrace: 0x4200b9c3:0x3fcebe60 0x4200c1a6:0x3fcebe90 0x42018f2d:0x3fcebec0\r\n"
    "\r\n"
    "\r\n"
    "ELF file SHA256: 5c2a1f0e9d3b7a46\r\n"
    "\r\n"
    "Rebooting...\r\n";

constexpr std::string_view kBrownout = "\r\nBrownout detector was triggered\r\n\r\n";

std::string firmwareMessages(const std::string& version, bool configError) {
    std::string text = "[MSG:INFO: " + version +
                       "]\r\n"
                       "[MSG:INFO: Local filesystem type is LittleFS]\r\n"
                       "[MSG:INFO: Configuration file:config.yaml]\r\n"
                       "[MSG:INFO: Machine Simulated plotter]\r\n"
                       "[MSG:INFO: Board Simulated controller]\r\n";
    if (configError) {
        text +=
            "[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/stepstick/step_pin]\r\n"
            "[MSG:ERR: Configuration is invalid. Check boot messages for ERR's.]\r\n";
    }
    return text + "[MSG:INFO: Axis count 3]\r\n";
}

// How long one turn of a chip that keeps restarting takes.
int64_t loopPeriodNs(Startup startup) {
    return (startup == Startup::Panic ? 450 : 300) * kMs;
}

}  // namespace

void Boot::start(int64_t restartNs, int64_t readyNs, bool byHost) {
    const auto decided =
        d_.starts.onRestart(d_.flash, d_.config.startup, d_.reportedVersion, byHost);
    d_.reportedVersion = decided.version;
    startup_ = decided.startup;
    const Startup startup = startup_;
    runs_ = startup == Startup::Healthy || startup == Startup::ConfigError ||
            startup == Startup::OtherVersion;
    if (startup == Startup::OtherVersion) {
        d_.reportedVersion = kOtherVersion;
    }
    messages_ = runs_ ? firmwareMessages(version(), startup == Startup::ConfigError) : "";
    switch (startup) {
        case Startup::Healthy:
        case Startup::ConfigError:
        case Startup::OtherVersion:
            startHealthy(restartNs, readyNs, byHost);
            break;
        case Startup::BootLoop:
        case Startup::Panic:
        case Startup::Brownout:
            cycle(restartNs, true, byHost);
            break;
        case Startup::NoApplication:
            startNoApplication(restartNs, byHost);
            break;
        case Startup::Silent:
            break;
    }
}

std::string Boot::messages() const {
    return messages_.value_or(firmwareMessages(version(), false));
}

void Boot::startHealthy(int64_t restartNs, int64_t readyNs, bool byHost) {
    print(restartNs, romBanner(byHost ? kHostReset : kSoftwareReset));
    print(restartNs + kBootLoaderAfterNs, std::string(kBootLoader) + std::string(kAppLoaded));
    print(std::max(readyNs, restartNs + kFirmwareAfterNs), "\r\n" + *messages_);
}

// Each turn schedules the next one; a reset into the loader cancels the chain.
void Boot::cycle(int64_t atNs, bool first, bool byHost) {
    const Startup startup = startup_;
    const std::string_view again = startup == Startup::Brownout ? kBrownoutReset : kSoftwareReset;
    print(atNs, romBanner(first ? (byHost ? kHostReset : kSoftwareReset) : again));
    print(atNs + kBootLoaderAfterNs, std::string(kBootLoader) + std::string(kAppLoaded));
    std::string firmware = "\r\n[MSG:INFO: " + version() + "]\r\n";
    firmware += startup == Startup::Panic      ? kPanic
                : startup == Startup::Brownout ? kBrownout
                                               : std::string_view();
    print(atNs + kFirmwareAfterNs, std::move(firmware));
    const int64_t next = atNs + loopPeriodNs(startup);
    d_.outbox.scheduleAt(next, [this, next] {
        if (d_.mode == Mode::Console) {
            cycle(next, false, false);
        }
        return std::vector<uint8_t>{};
    });
}

void Boot::startNoApplication(int64_t restartNs, bool byHost) {
    print(restartNs, romBanner(byHost ? kHostReset : kSoftwareReset));
    print(restartNs + kBootLoaderAfterNs, std::string(kBootLoader) + std::string(kNoApp));
    d_.outbox.scheduleAt(restartNs + kFloodAfterNs, [this] {
        flood();
        return std::vector<uint8_t>{};
    });
}

// Paced from each burst's own time, so a host that stops reading for a while finds
// the flood going on, not a backlog of everything it missed.
void Boot::flood() {
    d_.outbox.schedule(kFloodIntervalMs, [this] {
        if (d_.mode != Mode::Console) {
            return std::vector<uint8_t>{};
        }
        flood();
        std::vector<uint8_t> burst;
        for (int i = 0; i < kFloodLinesPerInterval; ++i) {
            burst.insert(burst.end(), kInvalidHeader.begin(), kInvalidHeader.end());
        }
        return burst;
    });
}

void Boot::print(int64_t atNs, std::string text) {
    d_.outbox.scheduleAt(atNs, [this, text = std::move(text)] {
        return d_.mode == Mode::Console ? std::vector<uint8_t>(text.begin(), text.end())
                                        : std::vector<uint8_t>{};
    });
}

std::string Boot::version() const {
    return d_.reportedVersion.value_or(d_.config.versionReport);
}

}  // namespace sim::detail
