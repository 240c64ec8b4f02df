#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "sim/Startup.h"

// The machine's start-up, heard during the flashing job's version confirmation and by
// the start-up check, over loopback in virtual time.
namespace {

using namespace jobtest;
using sim::Startup;

/// A report that frees itself; the text fields as C++ values for comparisons.
struct Report : esp_startup_report {
    Report() : esp_startup_report{} {}
    ~Report() { esp_startup_report_free(this); }
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    std::string text() const {
        return transcript ? std::string(transcript, transcript + transcriptLen) : "";
    }
    size_t count(const std::string& what) const {
        size_t n = 0;
        const std::string all = text();
        for (auto at = all.find(what); at != std::string::npos; at = all.find(what, at + 1)) {
            ++n;
        }
        return n;
    }
};

const char* const kVerifying = "Verifying firmware version...";
const char* const kGuru =
    "Guru Meditation Error: Core  1 panic'ed (LoadProhibited). Exception was unhandled.";

class StartupReportTest : public ::testing::Test {
  protected:
    /// A flash job on a fresh plotter whose every restart goes as `startup` says.
    esp_error_t flash(Startup startup, const char* expected, Report& report, bool listen = true) {
        clearRecords();
        port = std::make_unique<SerialPort>();
        device = std::make_unique<WatchedPlotter>();
        device->plotter.config().startup = startup;
        device->plotter.config().versionAfterUpdate = "2.10.6 (sim)";
        change(device->plotter.config());
        auto request = testimg::flashRequest(firmware, firmware, firmware, stub);
        request.expectedVersion = expected;
        device->connect(*port);
        esp::StartupRecord record;
        const auto code =
            esp::runFlashJob(*port, request, nullptr, recordLog, listen ? &record : nullptr);
        esp::fillStartupReport(report, record, expected);
        return code;
    }

    std::function<void(sim::Config&)> change = [](sim::Config&) {};
    const Bytes firmware = pattern(40000, 1);
    const Bytes stub = stubImage();
    std::unique_ptr<SerialPort> port;
    std::unique_ptr<WatchedPlotter> device;
};

TEST_F(StartupReportTest, FlashJobHearsEveryWayTheMachineStarts) {
    const std::string errorLine =
        "[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/stepstick/step_pin]";
    const auto expectStartup = [&](Startup startup, int verdict, const char* evidence,
                                   const char* version, int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        Report report;
        ASSERT_EQ(flash(startup, "2.10.6", report), 0u);
        EXPECT_EQ(std::tuple(report.listened, report.portLost, report.verdict),
                  std::tuple(1, 0, verdict));
        EXPECT_STREQ(report.evidence[0], evidence);
        EXPECT_STREQ(report.version, version);
        EXPECT_EQ(logLines.back(), version && verdict != ESP_STARTUP_WRONG_VERSION
                                       ? "Device running firmware 2.10.6 (sim)"
                                       : "Could not confirm firmware version after update.");
    };
    expectStartup(Startup::Healthy, ESP_STARTUP_RUNNING, "[VER:2.10.6 (sim):]", "2.10.6 (sim)");
    expectStartup(Startup::BootLoop, ESP_STARTUP_BOOT_LOOP, "ESP-ROM:esp32s3-20210327", nullptr);
    expectStartup(Startup::Panic, ESP_STARTUP_PANIC, kGuru, nullptr);
    expectStartup(Startup::NoApplication, ESP_STARTUP_NO_APP, "invalid header: 0xffffffff",
                  nullptr);
    expectStartup(Startup::Brownout, ESP_STARTUP_BROWNOUT, "Brownout detector was triggered",
                  nullptr);
    expectStartup(Startup::ConfigError, ESP_STARTUP_CONFIG_ERROR, errorLine.c_str(),
                  "2.10.6 (sim)");
    expectStartup(Startup::Silent, ESP_STARTUP_NO_ANSWER, nullptr, nullptr);
    expectStartup(Startup::OtherVersion, ESP_STARTUP_WRONG_VERSION, "[VER:0.9.0-previous (sim):]",
                  "0.9.0-previous (sim)");
}

// The flood pushes the boot loader's own line out of the bounded transcript within a
// second; what is kept must still tell.
TEST_F(StartupReportTest, TranscriptHoldsTheWholeHealthyStartAndTheFloodsNewestBytes) {
    Report healthy;
    ASSERT_EQ(flash(Startup::Healthy, "2.10.6", healthy), 0u);
    EXPECT_EQ(healthy.count("ESP-ROM:"), 1u);
    EXPECT_EQ(healthy.count("I (301) boot: Loaded app from partition at offset 0x10000"), 1u);
    EXPECT_EQ(healthy.count("[MSG:INFO: 2.10.6 (sim)]\r\n[MSG:INFO: Local filesystem"), 1u);
    EXPECT_TRUE(healthy.text().ends_with("[VER:2.10.6 (sim):]\r\n"));

    Report flooded;
    ASSERT_EQ(flash(Startup::NoApplication, "2.10.6", flooded), 0u);
    EXPECT_EQ(flooded.transcriptLen, 64u * 1024);
    EXPECT_EQ(flooded.count("No bootable app partitions"), 0u);
    EXPECT_EQ(flooded.verdict, ESP_STARTUP_NO_APP);
}

// For a healthy machine, and for a silent one that costs the full ten seconds, the
// listening changes nothing the host does or logs, nor when: its read slices end
// within a millisecond of the sleep they replace.
TEST_F(StartupReportTest, ListeningLeavesTheJobAsItWas) {
    for (const bool silentConsole : {false, true}) {
        SCOPED_TRACE(silentConsole ? "silent console" : "healthy");
        change = [&](sim::Config& c) { c.silentConsole = silentConsole; };
        std::vector<std::vector<WatchedPlotter::Write>> writes;
        std::vector<Lines> logs;
        std::vector<int64_t> elapsed;
        for (const bool listen : {false, true}) {
            Report report;
            ASSERT_EQ(flash(Startup::Healthy, "2.10.6", report, listen), 0u);
            EXPECT_EQ(report.listened, listen ? 1 : 0);
            writes.push_back(device->writes);
            logs.push_back(logLines);
            elapsed.push_back(device->elapsedMs());
            // The two seconds after the reset are read, not slept through.
            const auto verifying = std::find(logLines.begin(), logLines.end(), kVerifying);
            const int64_t fromNs = logTimesNs[static_cast<size_t>(verifying - logLines.begin())];
            const auto& reads = device->idleReadsNs;
            EXPECT_EQ(
                std::any_of(reads.begin(), reads.end(),
                            [&](int64_t ns) { return ns > fromNs && ns < fromNs + 1'900'000'000; }),
                listen);
        }
        EXPECT_EQ(logs[1], logs[0]);
        ASSERT_EQ(writes[1].size(), writes[0].size());
        for (size_t i = 0; i < writes[0].size(); ++i) {
            EXPECT_EQ(writes[1][i].second, writes[0][i].second);
            EXPECT_NEAR(writes[1][i].first, writes[0][i].first, 2) << writes[0][i].second;
        }
        EXPECT_NEAR(elapsed[1], elapsed[0], 2);
    }
}

TEST_F(StartupReportTest, NoListeningWithoutAConfirmation) {
    const std::pair<const char*, esp_error_t> cases[] = {{"", 0}, {nullptr, 0}, {"2.10.6", 4}};
    for (const auto& [expected, code] : cases) {
        change = [refused = code != 0](sim::Config& c) { c.chipId = refused ? 5 : 9; };
        Report report;
        ASSERT_EQ(flash(Startup::Panic, expected, report), code);
        EXPECT_EQ(std::tuple(report.listened, report.verdict, report.transcript),
                  std::tuple(0, int{ESP_STARTUP_NO_ANSWER}, nullptr));
    }
}

// After "$Bye" (or none: the firmware that ran all along), the check hears the start,
// asks for its replay and the version, and writes nothing else.
TEST(StartupCheck, ListensAsksForTheReplayAndTheVersionOnly) {
    // `replayed`: how often the firmware's start-up messages are in the transcript.
    const auto expectCheck = [](Startup startup, bool restart, bool flood, int verdict,
                                const std::string& evidence, size_t replayed, int timeoutMs = 7000,
                                int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        sim::Config config;
        config.startup = startup;
        config.floodConsole = flood;
        WatchedPlotter device(config);
        SerialPort port;
        device.connect(port);
        if (restart) {
            port.write(std::vector<uint8_t>{'$', 'B', 'y', 'e', '\n'});
        }
        const int64_t start = mono::nowNs();
        const esp::StartupRecord record = esp::runCheckStartupJob(port, timeoutMs);
        EXPECT_LE(virtualMsSince(start), timeoutMs + 50) << "a read slice past the bound at most";
        Report report;
        esp::fillStartupReport(report, record, "3.7.8");
        EXPECT_EQ(report.verdict, verdict);
        EXPECT_EQ(report.evidence[0] ? report.evidence[0] : "", evidence);
        EXPECT_EQ(report.count("[MSG:INFO: Local filesystem type is LittleFS]"), replayed);
        std::vector<std::string> sent;
        for (const auto& write : device.writes) {
            sent.push_back(write.second);
        }
        EXPECT_EQ(sent, (restart ? Lines{"$Bye", "$SS", "$I"} : Lines{"$SS", "$I"}));
    };
    const std::string version = "[VER:FluidNC v3.7.8 (sim):]";
    // The firmware that ran all along: only the replay tells its start.
    expectCheck(Startup::Panic, false, false, ESP_STARTUP_RUNNING, version, 1);
    expectCheck(Startup::Healthy, true, false, ESP_STARTUP_RUNNING, version, 2);
    expectCheck(Startup::ConfigError, true, false, ESP_STARTUP_CONFIG_ERROR,
                "[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/stepstick/step_pin]", 2);
    expectCheck(Startup::BootLoop, true, false, ESP_STARTUP_BOOT_LOOP, "ESP-ROM:esp32s3-20210327",
                0);
    // A console that never stops printing: every wait runs to its bound.
    expectCheck(Startup::Healthy, true, true, ESP_STARTUP_NO_ANSWER,
                "<Idle|MPos:0.000,0.000,0.000|FS:0,0>", 0);
    // A port that came back late leaves less time: the listening gives way first,
    // and the replay still tells the start.
    expectCheck(Startup::Healthy, true, true, ESP_STARTUP_NO_ANSWER,
                "<Idle|MPos:0.000,0.000,0.000|FS:0,0>", 0, 4000);
    expectCheck(Startup::ConfigError, true, false, ESP_STARTUP_CONFIG_ERROR,
                "[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/stepstick/step_pin]", 1, 4500);
}

}  // namespace
