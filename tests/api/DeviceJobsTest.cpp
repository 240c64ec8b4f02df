#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
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

    void connect() { plotter.connectLoopback(port); }

    sim::Plotter plotter;
    SerialPort port;
};

const std::string kYaml = "meta: sim 1.0\nname: test\naxes:\n  x:\n    steps_per_mm: 80\n";

std::vector<uint8_t> configFile(size_t size) {
    std::vector<uint8_t> file;
    while (file.size() < size) {
        file.insert(file.end(), kYaml.begin(), kYaml.end());
    }
    file.resize(size);
    return file;
}

TEST_F(DeviceJobsTest, UploadStoresTheFileAndRestartsTheFirmware) {
    connect();
    const auto file = configFile(3000);
    ASSERT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), recordProgress), 0u);
    EXPECT_EQ(plotter.storedConfig(), file);
    ASSERT_FALSE(progressCalls.empty());
    EXPECT_EQ(progressCalls.back(), std::make_pair(1.0f, std::string("Uploading config file...")));
    const auto& transcript = plotter.transcript();
    const auto query = std::find(transcript.begin(), transcript.end(), "$I");
    const auto block = std::find(transcript.begin(), transcript.end(), "XMODEM 1");
    EXPECT_LT(query, block);
    ASSERT_NE(block, transcript.end());
    EXPECT_EQ(transcript.back(), "$Bye");
}

TEST_F(DeviceJobsTest, UploadOfAnEmptyFileStillRestarts) {
    connect();
    ASSERT_EQ(esp::runUploadConfigJob(port, nullptr, 0, recordProgress), 0u);
    EXPECT_TRUE(progressCalls.empty());
    EXPECT_EQ(plotter.transcript().back(), "$Bye");
}

TEST_F(DeviceJobsTest, UploadFailuresReturn8WithoutRestart) {
    plotter.config().xmodemHandshake = false;
    connect();
    const auto file = configFile(100);
    EXPECT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), recordProgress), 8u);
    const decltype(progressCalls) report = {{0.0f, "XModem: no handshake received (30s timeout)"}};
    EXPECT_EQ(progressCalls, report);

    sim::Plotter cancelling;
    cancelling.config().xmodemCanBlock = 2;
    SerialPort other;
    cancelling.connectLoopback(other);
    const auto larger = configFile(5000);
    EXPECT_EQ(esp::runUploadConfigJob(other, larger.data(), larger.size(), nullptr), 8u);
    for (const auto* device : {&plotter, &cancelling}) {
        EXPECT_FALSE(device->storedConfig().has_value());
        EXPECT_NE(device->transcript().back(), "$Bye");
    }
}

TEST_F(DeviceJobsTest, QueryVersionTellsAnEmptyVersionFromNone) {
    plotter.config().versionReport = "";
    connect();
    EXPECT_EQ(esp::runQueryVersionJob(port), std::string());

    sim::Plotter silent;
    silent.config().silentConsole = true;
    SerialPort other;
    silent.connectLoopback(other);
    EXPECT_EQ(esp::runQueryVersionJob(other), std::nullopt);
}

struct ProbeCase {
    const char* name;
    std::function<void(sim::Plotter&)> setup;
    int expected;
};

class ProbeTest : public DeviceJobsTest, public ::testing::WithParamInterface<ProbeCase> {};

TEST_P(ProbeTest, ReadsTheTableThroughTheStub) {
    GetParam().setup(plotter);
    connect();
    const auto stub = stubImage();
    EXPECT_EQ(esp::runProbePartitionTableJob(port, stub.data(), stub.size()), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Probes, ProbeTest,
    ::testing::Values(
        ProbeCase{"Valid", [](auto& p) { p.loadFlash(0x8000, partitionTable(0)); }, 1},
        ProbeCase{"DataAtAppOffset", [](auto& p) { p.loadFlash(0x8000, partitionTable(1)); }, 0},
        ProbeCase{"Erased", [](auto&) {}, 0},
        ProbeCase{"LateSync",
                  [](auto& p) {
                      p.loadFlash(0x8000, partitionTable(0));
                      p.config().syncFromAttempt = 25;
                  },
                  1},
        ProbeCase{"Silent", [](auto& p) { p.config().silent = true; }, -1},
        ProbeCase{"NoGreeting", [](auto& p) { p.config().greeting = false; }, -1},
        ProbeCase{"ReadDropped",
                  [](auto& p) {
                      p.config().responseFaults = {{esp::READ_FLASH, 0, sim::FaultKind::Drop}};
                  },
                  -1}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
