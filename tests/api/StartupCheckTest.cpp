#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "JobSupport.h"
#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

// The start-up entry points of the shared library, over pseudo-terminals in real time.
namespace {

using namespace jobtest;

// The restart comes from "$Bye", as at the end of a configuration upload.
TEST(StartupEntryPoints, CheckClassifiesARestartAndFreesItsReport) {
    sim::Config config;
    config.startup = sim::Startup::Panic;
    sim::PtyPlotter plotter(config);
    {
        SerialPort port;
        ASSERT_TRUE(port.open(plotter.path()) && port.write(Bytes{'$', 'B', 'y', 'e', '\n'}));
    }
    clearRecords();
    esp_startup_report report;
    ASSERT_EQ(esp_check_startup(plotter.path().c_str(), "3.7.8", 7000, &report, recordLog), 0u);
    EXPECT_EQ(std::tuple(report.listened, report.portLost, report.verdict),
              std::tuple(1, 0, int{ESP_STARTUP_PANIC}));
    EXPECT_STREQ(report.evidence[0],
                 "Guru Meditation Error: Core  1 panic'ed (LoadProhibited). Exception was "
                 "unhandled.");
    EXPECT_NE(report.transcript, nullptr);
    EXPECT_TRUE(logLines.empty());
    plotter.inspect([](const sim::Plotter& p) {
        const auto& heard = p.transcript();
        EXPECT_EQ(Lines(heard.end() - 3, heard.end()), (Lines{"$Bye", "$SS", "$I"}));
    });
    esp_startup_report_free(&report);
    EXPECT_EQ(std::tuple(report.transcript, report.transcriptLen, report.evidence[0]),
              std::tuple(nullptr, 0u, nullptr));

    EXPECT_EQ(esp_check_startup("/nonexistent/ttyACM0", "3.7.8", 7000, &report, recordLog), 2u);
    EXPECT_EQ(logLines, Lines{"Failed to open port"});
    EXPECT_EQ(std::pair(report.listened, report.verdict), std::pair(0, int{ESP_STARTUP_NO_ANSWER}));
}

// The port vanishes as the chip restarts: the confirmation runs its course on the dead
// line and the report says the port was lost.
TEST(StartupEntryPoints, FlashReportsAPortLostAtTheRestart) {
    sim::Config config;
    config.goneAtRestart = true;
    sim::PtyPlotter plotter(config);
    const Bytes firmware = pattern(4000, 1);
    const Bytes stub = stubImage();
    const auto flash = [&](const uint8_t* image, esp_startup_report& report) {
        return esp_flash_firmware_checked(plotter.path().c_str(), image, firmware.size(), nullptr,
                                          0, nullptr, 0, nullptr, 0, stub.data(), stub.size(), 0, 0,
                                          "2.10.6", nullptr, recordLog, &report);
    };
    clearRecords();
    esp_startup_report report;
    ASSERT_EQ(flash(firmware.data(), report), 0u);
    EXPECT_EQ(logLines.back(), "Could not confirm firmware version after update.");
    EXPECT_EQ(std::tuple(report.listened, report.portLost, report.verdict, report.version),
              std::tuple(1, 1, int{ESP_STARTUP_NO_ANSWER}, nullptr));
    esp_startup_report_free(&report);
    EXPECT_EQ(flash(nullptr, report), 6u);
    EXPECT_EQ(std::pair(report.listened, report.portLost), std::pair(0, 0));
}

}  // namespace
