#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

// The start-up entry points of the shared library, over pseudo-terminals in real time.
namespace {

using namespace jobtest;

/// Restarts the plotter's firmware as the end of a configuration upload does.
void sayBye(const std::string& path) {
    SerialPort port;
    ASSERT_TRUE(port.open(path));
    ASSERT_TRUE(port.write(std::vector<uint8_t>{'$', 'B', 'y', 'e', '\n'}));
}

TEST(StartupEntryPoints, CheckClassifiesAHealthyAndAPanickingRestart) {
    const auto expectCheck = [](sim::Startup startup, int verdict, const char* evidence,
                                int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        sim::Config config;
        config.startup = startup;
        sim::PtyPlotter plotter(config);
        sayBye(plotter.path());
        clearRecords();
        esp_startup_report report;
        ASSERT_EQ(esp_check_startup(plotter.path().c_str(), "3.7.8", 7000, &report, recordLog), 0u);
        EXPECT_EQ(report.listened, 1);
        EXPECT_EQ(report.portLost, 0);
        EXPECT_EQ(report.verdict, verdict);
        EXPECT_STREQ(report.evidence[0], evidence);
        EXPECT_NE(report.transcript, nullptr);
        EXPECT_TRUE(logLines.empty());
        plotter.inspect([](const sim::Plotter& p) {
            const auto& heard = p.transcript();
            EXPECT_EQ(Lines(heard.end() - 3, heard.end()), (Lines{"$Bye", "$SS", "$I"}));
        });
        esp_startup_report_free(&report);
        EXPECT_EQ(report.transcript, nullptr);
        EXPECT_EQ(report.transcriptLen, 0u);
        EXPECT_EQ(report.evidence[0], nullptr);
    };
    expectCheck(sim::Startup::Healthy, ESP_STARTUP_RUNNING, "[VER:FluidNC v3.7.8 (sim):]");
    expectCheck(sim::Startup::Panic, ESP_STARTUP_PANIC,
                "Guru Meditation Error: Core  1 panic'ed (LoadProhibited). Exception was "
                "unhandled.");

    clearRecords();
    esp_startup_report report;
    EXPECT_EQ(esp_check_startup("/nonexistent/ttyACM0", "3.7.8", 7000, &report, recordLog), 2u);
    EXPECT_EQ(logLines, Lines{"Failed to open port"});
    EXPECT_EQ(report.listened, 0);
    EXPECT_EQ(report.verdict, ESP_STARTUP_NO_ANSWER);
}

// The port vanishes as the chip restarts: the confirmation runs its course on the dead
// line and the report says the port was lost.
TEST(StartupEntryPoints, FlashReportsAPortLostAtTheRestart) {
    sim::Config config;
    config.goneAtRestart = true;
    sim::PtyPlotter plotter(config);
    const Bytes firmware = pattern(4000, 1);
    const Bytes stub = stubImage();
    clearRecords();
    esp_startup_report report;
    ASSERT_EQ(esp_flash_firmware_checked(plotter.path().c_str(), firmware.data(), firmware.size(),
                                         nullptr, 0, nullptr, 0, nullptr, 0, stub.data(),
                                         stub.size(), 0, 0, "2.10.6", nullptr, recordLog, &report),
              0u);
    EXPECT_EQ(logLines.back(), "Could not confirm firmware version after update.");
    EXPECT_EQ(report.listened, 1);
    EXPECT_EQ(report.portLost, 1);
    EXPECT_EQ(report.verdict, ESP_STARTUP_NO_ANSWER);
    EXPECT_EQ(report.version, nullptr);
    esp_startup_report_free(&report);

    EXPECT_EQ(esp_flash_firmware_checked(plotter.path().c_str(), nullptr, 5, nullptr, 0, nullptr, 0,
                                         nullptr, 0, stub.data(), stub.size(), 0, 0, "2.10.6",
                                         nullptr, recordLog, &report),
              6u);
    EXPECT_EQ(report.listened, 0);
    EXPECT_EQ(report.portLost, 0);
}

}  // namespace
