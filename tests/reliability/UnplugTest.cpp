#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"
#include "tests/support/Descriptors.h"
#include "tests/support/TestImages.h"

// The plotter's cable is pulled in the middle of a job, over a real pseudo-terminal
// and the real clock. Once the simulator has closed its side, every read of the
// host's side fails at once, so the job's loops run on until their deadlines: the
// bound is the time-outs of the step that was waiting.
namespace {

using namespace fdcheck;

const std::vector<uint8_t> firmware = testimg::pattern(5 * 16384 + 123, 1);
const std::vector<uint8_t> configFile = testimg::pattern(6000, 9);
const std::vector<uint8_t> stub = testimg::stubImage();

esp_error_t flash(const std::string& path) {
    return esp_flash_firmware(path.c_str(), firmware.data(), firmware.size(), nullptr, 0, nullptr,
                              0, nullptr, 0, stub.data(), stub.size(), 0, 0, "v3.7.8", nullptr,
                              nullptr);
}

esp_error_t upload(const std::string& path) {
    return esp_upload_config(path.c_str(), configFile.data(), configFile.size(), nullptr, nullptr);
}

TEST(Unplug, MidJobTheJobFailsWithinItsStepTimeOutAndReleasesThePort) {
    struct Case {
        const char* when;
        std::function<void(sim::Config&)> unplug;
        std::function<esp_error_t(const std::string&)> job;
        esp_error_t code;
        double boundS;  // settle, reset and exchanges, then the time-out of the waiting step
    };
    const Case cases[] = {
        {"block writes", [](auto& c) { c.goneAfterFlashData = 2; }, flash, 6, 10.0 + 5.0},
        {"MD5 wait", [](auto& c) { c.goneAtMd5 = 0; }, flash, 7, 10.0 + 5.0},
        {"XModem transfer", [](auto& c) { c.goneAfterXModemBlocks = 2; }, upload, 8, 7.5 + 5.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.when);
        sim::Config config;
        c.unplug(config);
        sim::PtyPlotter plotter(config);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(c.job(plotter.path()), c.code);
        EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
                  c.boundS);
        EXPECT_EQ(descriptorsOn(plotter.path()), 0u) << "the job left its port open";
    }
}

}  // namespace
