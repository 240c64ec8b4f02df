#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "esp/Packet.h"
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

// A configuration as the machine keeps it: text, so never ending in the 0x1A that
// XModem pads with.
std::vector<uint8_t> configFile(size_t size) {
    auto file = pattern(size, 7);
    if (!file.empty()) {
        file.back() = '\n';
    }
    return file;
}

TEST_F(DeviceJobsTest, DownloadGivesBackTheUploadedBytes) {
    const struct {
        bool crc;
        size_t blockSize;
    } modes[] = {{true, 1024}, {false, 1024}, {true, 128}};
    for (const auto& mode : modes) {
        for (const size_t size : {0, 1, 1023, 1024, 1025, 70000}) {
            SCOPED_TRACE(testing::Message() << (mode.crc ? "CRC " : "checksum ") << mode.blockSize
                                            << "-byte blocks, " << size << " bytes");
            clearRecords();
            device([&](auto& c) {
                c.xmodemCrc = c.xmodemSendCrc = mode.crc;
                c.xmodemSendBlockSize = mode.blockSize;
            });
            const auto file = configFile(size);
            ASSERT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), nullptr), 0u);
            EXPECT_EQ(esp::runDownloadFileJob(port, "config.yaml", recordProgress, recordLog),
                      file);
            EXPECT_TRUE(logLines.empty());
            ASSERT_FALSE(progressCalls.empty());
            EXPECT_EQ(progressCalls.back(),
                      std::make_pair(
                          1.0f, "Downloading config.yaml... " + std::to_string(size) + " bytes"));
        }
    }
}

TEST_F(DeviceJobsTest, DownloadAsksAgainForLostBlocksAndEndsCleanlyOnFailure) {
    const struct {
        const char* name;
        std::function<void(sim::Config&)> setup;
        const char* failure;  // null: the file arrives whole
    } cases[] = {
        {"corrupted block", [](auto& c) { c.xmodemSendCorruptBlock = 2; }, nullptr},
        {"dropped block", [](auto& c) { c.xmodemSendDropBlock = 3; }, nullptr},
        {"repeated block", [](auto& c) { c.xmodemSendRepeatBlock = 1; }, nullptr},
        {"block never right",
         [](auto& c) {
             c.xmodemSendCorruptBlock = 2;
             c.xmodemSendCorruptTimes = 100;
         },
         "XModem download: block 2 failed 25 times"},
        {"cancel", [](auto& c) { c.xmodemSendCanBlock = 2; },
         "XModem download: cancelled by the device"},
        {"no answer", [](auto& c) { c.xmodemSendSilent = true; },
         "XModem download: no block received"},
    };
    const auto file = configFile(5000);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        clearRecords();
        device([&](auto& config) {
            config.machineConfig = std::string(file.begin(), file.end());
            c.setup(config);
        });
        const auto downloaded = esp::runDownloadFileJob(port, "config.yaml", nullptr, recordLog);
        if (c.failure == nullptr) {
            EXPECT_EQ(downloaded, file);
            EXPECT_TRUE(logLines.empty());
        } else {
            EXPECT_EQ(downloaded, std::nullopt);
            EXPECT_EQ(logLines, Lines{c.failure});
        }
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
