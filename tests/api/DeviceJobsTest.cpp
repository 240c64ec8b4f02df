#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "sim/Plotter.h"

namespace {

using namespace jobtest;

class DeviceJobsTest : public ::testing::Test {
  protected:
    void SetUp() override { clearRecords(); }

    // A fresh plotter set up by `setup`, connected to `port`.
    sim::Plotter& device(const std::function<void(sim::Config&)>& setup = [](auto&) {}) {
        auto& plotter = plotters.emplace_back(std::make_unique<sim::Plotter>());
        setup(plotter->config());
        plotter->connectLoopback(port);
        return *plotter;
    }

    std::vector<std::unique_ptr<sim::Plotter>> plotters;
    SerialPort port;
};

TEST_F(DeviceJobsTest, UploadStoresTheFileAfterTheQueryAndRestarts) {
    for (const size_t size : {3000, 0}) {
        clearRecords();
        const auto& plotter = device();
        const auto file = pattern(size, 5);
        ASSERT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), recordProgress), 0u);
        const auto& transcript = plotter.transcript();
        EXPECT_EQ(transcript.front(), "$I");
        EXPECT_EQ(transcript.back(), "$Bye");
        if (size == 0) {
            EXPECT_TRUE(progressCalls.empty());
            continue;
        }
        EXPECT_EQ(plotter.storedConfig(), file);
        EXPECT_EQ(transcript[2], "XMODEM 1");
        ASSERT_FALSE(progressCalls.empty());
        EXPECT_EQ(progressCalls.back(),
                  std::make_pair(1.0f, std::string("Uploading config file...")));
    }
}

TEST_F(DeviceJobsTest, UploadFailuresReturn8WithoutRestart) {
    const auto& unanswered = device([](auto& c) { c.xmodemHandshake = false; });
    const auto file = pattern(5000, 5);
    EXPECT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), recordProgress), 8u);
    const decltype(progressCalls) report = {{0.0f, "XModem: no handshake received (30s timeout)"}};
    EXPECT_EQ(progressCalls, report);

    const auto& cancelling = device([](auto& c) { c.xmodemCanBlock = 2; });
    EXPECT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), nullptr), 8u);
    for (const auto* plotter : {&unanswered, &cancelling}) {
        EXPECT_FALSE(plotter->storedConfig().has_value());
        EXPECT_NE(plotter->transcript().back(), "$Bye");
    }
}

TEST_F(DeviceJobsTest, QueryVersionTellsAnEmptyVersionFromNone) {
    device([](auto& c) { c.versionReport = ""; });
    EXPECT_EQ(esp::runQueryVersionJob(port), std::string());
    device([](auto& c) { c.silentConsole = true; });
    EXPECT_EQ(esp::runQueryVersionJob(port), std::nullopt);
}

TEST_F(DeviceJobsTest, ProbeReadsTheTableThroughTheStub) {
    const struct {
        const char* name;
        std::function<void(sim::Plotter&)> setup;
        int expected;
    } cases[] = {
        {"valid", [](auto& p) { p.loadFlash(0x8000, partitionTable("dA")); }, 1},
        {"data at app offset", [](auto& p) { p.loadFlash(0x8000, partitionTable("dD")); }, 0},
        {"erased", [](auto&) {}, 0},
        {"late sync",
         [](auto& p) {
             p.loadFlash(0x8000, partitionTable("dA"));
             p.config().syncFromAttempt = 25;
         },
         1},
        {"silent", [](auto& p) { p.config().silent = true; }, -1},
        {"no greeting", [](auto& p) { p.config().greeting = false; }, -1},
        {"read dropped",
         [](auto& p) {
             p.config().responseFaults = {{esp::READ_FLASH, 0, sim::FaultKind::Drop}};
         },
         -1},
    };
    const auto stub = stubImage();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        c.setup(device());
        EXPECT_EQ(esp::runProbePartitionTableJob(port, stub.data(), stub.size()), c.expected);
    }
}

}  // namespace
