#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "fluidnc/Startup.h"
#include "fluidnc/Transcript.h"

namespace {

using fluidnc::StartupVerdict;
using V = StartupVerdict;
using Lines = std::vector<std::string>;

// As an ESP32-S3 ROM, its second-stage boot loader and a FluidNC-like firmware print them.
const std::string kBanner =
    "ESP-ROM:esp32s3-20210327\r\nBuild:Mar 27 2021\r\n"
    "rst:0x15 (USB_UART_CHIP_RESET),boot:0x8 (SPI_FAST_FLASH_BOOT)\r\n"
    "SPIWP:0xee\r\nmode:DIO, clock div:1\r\nload:0x3fce3818,len:0x508\r\nentry 0x403c9880\r\n";
const std::string kSoftBanner =
    "ESP-ROM:esp32s3-20210327\r\nBuild:Mar 27 2021\r\n"
    "rst:0xc (RTC_SW_CPU_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)\r\nSaved PC:0x420a5c2e\r\n";
const std::string kBootLoader =
    "I (27) boot: chip revision: v0.2\r\nI (31) boot.esp32s3: Boot SPI Speed : 80MHz\r\n"
    "I (301) boot: Loaded app from partition at offset 0x10000\r\n";
const std::string kFirmware =
    "[MSG:INFO: FluidNC v3.7.8]\r\n[MSG:INFO: Local filesystem type is LittleFS]\r\n"
    "[MSG:INFO: Configuration file:config.yaml]\r\n[MSG:INFO: Axis count 3]\r\n";
const std::string kVersionLine = "[VER:3.7.8 FluidNC v3.7.8:]\r\n";
const std::string kHealthy = kBanner + kBootLoader + kFirmware + kVersionLine;
const std::string kGuru =
    "Guru Meditation Error: Core  1 panic'ed (LoadProhibited). Exception was unhandled.";
const std::string kBacktrace = "Backtrace: 0x4037a1b2:0x3fcebd20 0x42008a3f:0x3fcebd50";
const std::string kPanic = "\r\n" + kGuru + "\r\n\r\nCore  1 register dump:\r\n" +
                           "PC      : 0x4037a1b5  PS      : 0x00060330\r\n\r\n" + kBacktrace +
                           "\r\n\r\nELF file SHA256: 0123456789abcdef\r\n\r\nRebooting...\r\n";
const std::string kNoApp = "E (52) boot: No bootable app partitions in the partition table";
const std::string kErased = "invalid header: 0xffffffff";
const std::string kBrownout = "Brownout detector was triggered";
const std::string kBadGpio = "[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/step_pin]";

std::string times(const std::string& text, size_t count) {
    std::string out;
    while (count-- > 0) {
        out += text;
    }
    return out;
}

fluidnc::StartupJudgement judge(const std::string& transcript,
                                const std::optional<std::string>& version = std::nullopt,
                                const std::string& expected = "") {
    return fluidnc::judgeStartup(reinterpret_cast<const uint8_t*>(transcript.data()),
                                 transcript.size(), version, expected);
}

TEST(StartupVerdict, JudgesRealLookingTranscripts) {
    const auto expectVerdict = [](const std::string& transcript,
                                  const std::optional<std::string>& version, V verdict,
                                  const Lines& evidence, int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        const auto judgement = judge(transcript, version, "3.7.8");
        EXPECT_EQ(judgement.verdict, verdict);
        EXPECT_EQ(judgement.evidence, evidence);
    };
    // A transcript of one line, that line its evidence.
    const auto expectLine = [&](const std::string& line, V verdict, int row = __builtin_LINE()) {
        expectVerdict(line + "\r\n", "3.7.8", verdict, {line}, row);
    };
    const std::string ver = "3.7.8 FluidNC v3.7.8";
    const Lines verLine = {"[VER:3.7.8 FluidNC v3.7.8:]"};
    // One banner before a healthy start is normal.
    expectVerdict(kHealthy, ver, V::Running, verLine);
    expectVerdict(kHealthy, "3.6.0", V::WrongVersion, verLine);
    expectVerdict("", std::nullopt, V::NoAnswer, {});
    expectVerdict(
        kBanner + kBootLoader, std::nullopt, V::NoAnswer,
        {"load:0x3fce3818,len:0x508", "entry 0x403c9880", "I (27) boot: chip revision: v0.2",
         "I (31) boot.esp32s3: Boot SPI Speed : 80MHz",
         "I (301) boot: Loaded app from partition at offset 0x10000"});
    // Restarts: a second banner, a second reset line, a header the ROM cannot start.
    expectVerdict(kBanner + kBootLoader + kSoftBanner + kBootLoader + kVersionLine, ver,
                  V::BootLoop,
                  {"ESP-ROM:esp32s3-20210327",
                   "rst:0x15 (USB_UART_CHIP_RESET),boot:0x8 (SPI_FAST_FLASH_BOOT)",
                   "rst:0xc (RTC_SW_CPU_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)"});
    expectVerdict(
        "rst:0x3 (RTC_SW_SYS_RST),boot:0x8\nI (27) boot: x\nrst:0x3 (RTC_SW_SYS_RST),boot:0x8\n",
        std::nullopt, V::BootLoop, {"rst:0x3 (RTC_SW_SYS_RST),boot:0x8"});
    expectVerdict(times("invalid header: 0x3c0a2d2d\r\n", 40), std::nullopt, V::BootLoop,
                  {"invalid header: 0x3c0a2d2d"});
    // The boot loader's watchdog resets between headers it cannot start: no crash.
    const std::string watchdogReset = "rst:0x7 (TG0WDT_SYS_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)";
    expectVerdict(times("invalid header: 0x3c0a2d2d\r\n" + watchdogReset + "\r\n", 3), std::nullopt,
                  V::BootLoop, {"invalid header: 0x3c0a2d2d", watchdogReset});
    // Crashes, the gravest first, each backed by the lesser signs.
    expectVerdict(kHealthy + kPanic + kSoftBanner + kBootLoader + kFirmware + kPanic, std::nullopt,
                  V::Panic,
                  {kGuru, kBacktrace, "ESP-ROM:esp32s3-20210327",
                   "rst:0x15 (USB_UART_CHIP_RESET),boot:0x8 (SPI_FAST_FLASH_BOOT)",
                   "rst:0xc (RTC_SW_CPU_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)"});
    expectVerdict(kFirmware + "abort() was called at PC 0x42015a1b on core 1\r\n", ver, V::Panic,
                  {"abort() was called at PC 0x42015a1b on core 1"});
    expectLine("E (5123) task_wdt: Task watchdog got triggered. The following tasks did not",
               V::Panic);
    expectLine("***ERROR*** A stack overflow in task loopTask has been detected.", V::Panic);
    expectVerdict(kBanner + kBootLoader + kNoApp + "\r\n" + kSoftBanner + kBootLoader + kNoApp,
                  std::nullopt, V::NoApp,
                  {kNoApp, "ESP-ROM:esp32s3-20210327",
                   "rst:0x15 (USB_UART_CHIP_RESET),boot:0x8 (SPI_FAST_FLASH_BOOT)",
                   "rst:0xc (RTC_SW_CPU_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)"});
    expectLine("E (45) esp_image: image at 0x10000 has invalid magic byte", V::NoApp);
    expectVerdict(
        "E (61) boot: Factory app partition is not bootable\nE (62) boot: image is "
        "corrupt\n",
        std::nullopt, V::NoApp, {"E (62) boot: image is corrupt"});
    expectVerdict(
        kBanner + kFirmware + "\r\n" + kBrownout + "\r\n\r\n" + kSoftBanner + kPanic + kNoApp,
        std::nullopt, V::Brownout,
        {kBrownout, kGuru, kBacktrace, kNoApp, "ESP-ROM:esp32s3-20210327"});
    expectLine("rst:0xf (RTCWDT_BROWN_OUT_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)", V::Brownout);
    expectVerdict("rst:0x10 (RTCWDT_RTC_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)\r\n" + kVersionLine,
                  ver, V::Running, verLine);
    // A configuration error outranks the version, a crash outranks it.
    const std::string configError = kBanner + kFirmware + kBadGpio +
                                    "\r\n[MSG:ERR: Configuration is invalid]\r\n" + kVersionLine;
    expectVerdict(configError, ver, V::ConfigError,
                  {kBadGpio, "[MSG:ERR: Configuration is invalid]"});
    expectVerdict(configError + kPanic, ver, V::Panic,
                  {kGuru, kBacktrace, "ESP-ROM:esp32s3-20210327",
                   "rst:0x15 (USB_UART_CHIP_RESET),boot:0x8 (SPI_FAST_FLASH_BOOT)"});
    // Cut at either end, coloured, long.
    expectVerdict("der: 0xffffffff\r\n" + times(kErased + "\r\n", 100) + "invalid hea",
                  std::nullopt, V::NoApp, {kErased});
    expectVerdict("\x1b[0;31m" + kNoApp + "\x1b[0m\r\n", std::nullopt, V::NoApp, {kNoApp});
    // The expected version is found within the answer, letter case and all.
    EXPECT_EQ(judge(kHealthy, "V2.10.6", "v2.10").verdict, V::WrongVersion);
    EXPECT_EQ(judge(kHealthy, "", "").verdict, V::Running);
    expectVerdict(kBadGpio.substr(0, 20) + std::string(300, 'x') + "\n", ver, V::ConfigError,
                  {kBadGpio.substr(0, 20) + std::string(180, 'x')});
    // Cut before a character that 200 bytes would split; bytes that are no UTF-8 at 200.
    const std::string error = "[MSG:ERR: " + std::string(189, 'x');
    expectVerdict(error + "\xc3\xa9t\xc3\xa9]\n", ver, V::ConfigError, {error});
    expectVerdict(error + std::string(20, '\x93') + "\n", ver, V::ConfigError, {error + "\x93"});
}

// Noise is no crash, and what it quotes stays short and printable.
TEST(StartupVerdict, NoiseIsNoCrash) {
    std::mt19937 rng(20);
    for (int run = 0; run < 20; ++run) {
        std::string noise(64 * 1024, '\0');
        for (char& c : noise) {
            c = static_cast<char>(rng());
        }
        const auto judgement =
            judge(noise, run % 2 ? std::optional<std::string>("1.0") : std::nullopt);
        EXPECT_EQ(judgement.verdict, run % 2 ? V::Running : V::NoAnswer);
        EXPECT_LE(judgement.evidence.size(), 5u);
        for (const auto& line : judgement.evidence) {
            EXPECT_FALSE(line.empty());
            EXPECT_LE(line.size(), 200u);
            EXPECT_TRUE(std::none_of(line.begin(), line.end(), [](char c) {
                return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
            })) << line;
        }
    }
}

TEST(Transcript, KeepsTheNewestBytesWhateverThePieces) {
    std::vector<uint8_t> bytes(64 * 1024 + 1);
    for (size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<uint8_t>(i * 7 + i / 251);
    }
    for (const size_t piece : {size_t{1}, size_t{300}, bytes.size()}) {
        SCOPED_TRACE(piece);
        fluidnc::Transcript transcript;
        size_t at = 0;
        for (const size_t until : {bytes.size() - 1, bytes.size()}) {
            for (; at < until; at += std::min(piece, until - at)) {
                transcript.append(bytes.data() + at, std::min(piece, until - at));
            }
            EXPECT_EQ(transcript.bytes(), std::vector(bytes.begin() + int(until - bytes.size() + 1),
                                                      bytes.begin() + int(until)));
        }
    }
    fluidnc::Transcript small(4);
    for (const auto& [piece, kept] :
         {std::pair{"abc", "abc"}, std::pair{"de", "bcde"}, std::pair{"fghij", "ghij"}}) {
        small.append(reinterpret_cast<const uint8_t*>(piece), std::strlen(piece));
        EXPECT_EQ(small.bytes(), std::vector<uint8_t>(kept, kept + std::strlen(kept)));
    }
}

}  // namespace
