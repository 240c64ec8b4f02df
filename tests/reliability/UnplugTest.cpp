#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "Descriptors.h"
#include "api/esp_flasher.h"
#include "esp/Packet.h"
#include "sim/PtyPlotter.h"
#include "tests/support/TestImages.h"

// The plotter's cable is pulled in the middle of a job, over a real pseudo-terminal
// and the real clock. Once the simulator has closed its side, every read of the
// host's side fails at once, so the job's loops run on until their deadlines: the
// bound is the time-outs of the step that was waiting.
namespace {

using namespace reliability;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class Unplug : public ::testing::Test {
  protected:
    esp_error_t flash(const sim::PtyPlotter& plotter) {
        return esp_flash_firmware(plotter.path().c_str(), firmware.data(), firmware.size(), nullptr,
                                  0, nullptr, 0, nullptr, 0, stub.data(), stub.size(), 0, 0,
                                  "v3.7.8", nullptr, nullptr);
    }

    void expectReleased(const sim::PtyPlotter& plotter) {
        EXPECT_EQ(descriptorsOn(plotter.path()), 0u) << "the job left its port open";
    }

    const std::vector<uint8_t> firmware = testimg::pattern(5 * 16384 + 123, 1);
    const std::vector<uint8_t> stub = testimg::stubImage();
};

TEST_F(Unplug, DuringBlockWritesTheJobReportsAWriteFailureAfterTheBlockTimeOut) {
    sim::Config config;
    config.goneAfterFlashData = 2;
    sim::PtyPlotter plotter(config);
    const auto start = Clock::now();
    EXPECT_EQ(flash(plotter), 6u);
    // settle 0.5 s, reset 0.5 s, exchanges, then one FLASH_DATA time-out of 10 s
    EXPECT_LT(secondsSince(start), 10.0 + 5.0);
    expectReleased(plotter);
}

TEST_F(Unplug, DuringTheMd5WaitTheJobReportsAVerificationFailureAfterItsTimeOut) {
    sim::Config config;
    config.goneAtMd5 = 0;
    sim::PtyPlotter plotter(config);
    const auto start = Clock::now();
    EXPECT_EQ(flash(plotter), 7u);
    EXPECT_LT(secondsSince(start), 10.0 + 5.0);
    expectReleased(plotter);
}

TEST_F(Unplug, DuringAnXModemTransferTheUploadFails) {
    sim::Config config;
    config.goneAfterXModemBlocks = 2;
    sim::PtyPlotter plotter(config);
    const auto configFile = testimg::pattern(6000, 9);
    const auto start = Clock::now();
    EXPECT_EQ(esp_upload_config(plotter.path().c_str(), configFile.data(), configFile.size(),
                                nullptr, nullptr),
              8u);
    // settle, version query, drain, handshake; then one ACK wait of 5 s at most
    EXPECT_LT(secondsSince(start), 0.5 + 2.0 + 1.0 + 2.0 + 5.0 + 2.0);
    expectReleased(plotter);
}

TEST_F(Unplug, AfterTheLineIsGoneNothingOpensItAndNoDescriptorIsLeft) {
    const size_t before = openDescriptorCount();
    {
        sim::PtyPlotter plotter;
        char* version = esp_query_version(plotter.path().c_str());
        ASSERT_NE(version, nullptr);
        std::free(version);
        plotter.unplug();
        EXPECT_EQ(esp_query_version(plotter.path().c_str()), nullptr);
        EXPECT_EQ(
            esp_upload_config(plotter.path().c_str(), stub.data(), stub.size(), nullptr, nullptr),
            2u);
        EXPECT_EQ(flash(plotter), 2u);
        expectReleased(plotter);
    }
    EXPECT_EQ(openDescriptorCount(), before);
}

}  // namespace
