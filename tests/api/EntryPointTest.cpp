#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"
#include "tests/support/Descriptors.h"

// The entry points of the shared library, over pseudo-terminals in real time.
namespace {

using namespace jobtest;

const Bytes firmware = pattern(70000, 1);
const Bytes stub = stubImage();

TEST(EntryPoint, EveryJobAgainstOnePlotter) {
    clearRecords();
    const auto bootloader = pattern(20000, 2);
    const auto partitions = partitionTable("dA" + std::string(94, '-'));
    const auto bootApp = pattern(8192, 4);
    auto file = pattern(70000, 3);
    file.back() = '\n';
    sim::Config config;
    config.versionReport = "2.10.6 (sim)";
    sim::PtyPlotter device(config);
    const std::string path = device.path();
    const size_t descriptors = fdcheck::openDescriptorCount();

    ASSERT_EQ(esp_flash_firmware(path.c_str(), firmware.data(), firmware.size(), bootloader.data(),
                                 bootloader.size(), partitions.data(), partitions.size(),
                                 bootApp.data(), bootApp.size(), stub.data(), stub.size(), 1, 0,
                                 "2.10.6", recordProgress, recordLog),
              0u);
    EXPECT_EQ(logLines.front(), "Opening port: " + path);
    EXPECT_EQ(std::count(logLines.begin(), logLines.end(), "VERIFY OK"), 4);
    EXPECT_EQ(logLines.back(), "Device running firmware 2.10.6 (sim)");
    device.inspect([&](const sim::Plotter& p) {
        for (const auto& [address, bytes] : {std::pair{0x0u, &bootloader},
                                             {0x8000u, &partitions},
                                             {0xE000u, &bootApp},
                                             {0x10000u, &firmware}}) {
            EXPECT_TRUE(std::equal(bytes->begin(), bytes->end(), p.flash().begin() + address))
                << std::hex << address;
        }
    });

    char* version = esp_query_version(path.c_str());
    ASSERT_NE(version, nullptr);
    EXPECT_STREQ(version, "2.10.6 (sim)");
    std::free(version);
    ASSERT_EQ(esp_upload_config(path.c_str(), file.data(), file.size(), nullptr, nullptr), 0u);
    uint8_t* data = nullptr;
    size_t length = 0;
    ASSERT_EQ(
        esp_download_file(path.c_str(), "config.yaml", &data, &length, nullptr, nullptr, nullptr),
        0u);
    EXPECT_EQ(Bytes(data, data + length), file);
    std::free(data);
    device.modify([](sim::Plotter& p) { p.config().xmodemSendCanBlock = 1; });
    clearRecords();
    esp_download_status status{};
    EXPECT_EQ(
        esp_download_file(path.c_str(), "config.yaml", &data, &length, nullptr, recordLog, &status),
        8u);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(logLines, Lines{"XModem download: cancelled by the device"});
    EXPECT_EQ(status.failure, ESP_DOWNLOAD_CANCELLED);
    // Last: the probe leaves the chip in its loader.
    EXPECT_EQ(esp_probe_partition_table(path.c_str(), stub.data(), stub.size()), 1);
    EXPECT_EQ(fdcheck::openDescriptorCount(), descriptors);
}

// A missing node, and a regular file that nobody else holds: it opens but has no
// terminal attributes, so the calls fail after the descriptor was taken, the path
// where a leak would hide.
TEST(EntryPoint, PortsThatCannotBeOpenedFailEveryCallAndLeaveNoDescriptor) {
    char notATerminal[] = "/tmp/tfu-not-a-terminal-XXXXXX";
    ::close(::mkstemp(notATerminal));
    const size_t descriptors = fdcheck::openDescriptorCount();
    for (const std::string& path :
         {std::string("/nonexistent/ttyACM0"), std::string(notATerminal)}) {
        SCOPED_TRACE(path);
        for (int i = 0; i < 50; ++i) {
            clearRecords();
            ASSERT_EQ(esp_flash_firmware(path.c_str(), firmware.data(), firmware.size(), nullptr, 0,
                                         nullptr, 0, nullptr, 0, stub.data(), stub.size(), 0, 0,
                                         "2.10.6", recordProgress, recordLog),
                      2u);
            ASSERT_EQ(logLines, (Lines{"Opening port: " + path, "Failed to open port"}));
            ASSERT_EQ(
                esp_upload_config(path.c_str(), firmware.data(), 10, recordProgress, recordLog),
                2u);
            ASSERT_EQ(esp_query_version(path.c_str()), nullptr);
            ASSERT_EQ(esp_probe_partition_table(path.c_str(), stub.data(), stub.size()), -1);
            ASSERT_EQ(logLines.size(), 2u);
            uint8_t* data = nullptr;
            size_t length = 1;
            esp_download_status status{};
            ASSERT_EQ(esp_download_file(path.c_str(), "config.yaml", &data, &length, recordProgress,
                                        recordLog, &status),
                      2u);
            ASSERT_EQ(status.failure, ESP_DOWNLOAD_PORT_NOT_OPENED);
            ASSERT_EQ(length, 0u);
            ASSERT_EQ(logLines.back(), "Failed to open port");
            ASSERT_TRUE(progressCalls.empty());
        }
    }
    EXPECT_EQ(fdcheck::openDescriptorCount(), descriptors);
    ::unlink(notATerminal);
}

}  // namespace
