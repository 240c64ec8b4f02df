#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

namespace {

using namespace jobtest;

size_t openDescriptors() {
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return static_cast<size_t>(std::distance(begin(entries), end(entries)));
}

const std::vector<uint8_t> firmware = pattern(70000, 1);
const std::vector<uint8_t> stub = stubImage();

TEST(EntryPoint, FullFlashThenQueriesOverAPseudoTerminal) {
    clearRecords();
    const auto bootloader = pattern(20000, 2);
    const auto partitions = partitionTable("dA" + std::string(94, '-'));
    const auto bootApp = pattern(8192, 4);
    sim::Config config;
    config.versionReport = "2.10.6 (sim)";
    sim::PtyPlotter device(config);
    const size_t descriptors = openDescriptors();

    ASSERT_EQ(esp_flash_firmware(device.path().c_str(), firmware.data(), firmware.size(),
                                 bootloader.data(), bootloader.size(), partitions.data(),
                                 partitions.size(), bootApp.data(), bootApp.size(), stub.data(),
                                 stub.size(), 1, 0, "2.10.6", recordProgress, recordLog),
              0u);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(logLines.front(), "Opening port: " + device.path());
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

    char* version = esp_query_version(device.path().c_str());
    ASSERT_NE(version, nullptr);
    EXPECT_STREQ(version, "2.10.6 (sim)");
    std::free(version);
    EXPECT_EQ(esp_probe_partition_table(device.path().c_str(), stub.data(), stub.size()), 1);
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST(EntryPoint, PortThatCannotBeOpened) {
    clearRecords();
    const char* missing = "/nonexistent/ttyACM0";
    EXPECT_EQ(esp_flash_firmware(missing, firmware.data(), firmware.size(), nullptr, 0, nullptr, 0,
                                 nullptr, 0, stub.data(), stub.size(), 0, 0, "2.10.6",
                                 recordProgress, recordLog),
              2u);
    EXPECT_EQ(logLines, (Lines{"Opening port: /nonexistent/ttyACM0", "Failed to open port"}));
    clearRecords();
    EXPECT_EQ(esp_upload_config(missing, firmware.data(), 10, recordProgress, recordLog), 2u);
    EXPECT_EQ(esp_query_version(missing), nullptr);
    EXPECT_EQ(esp_probe_partition_table(missing, stub.data(), stub.size()), -1);
    EXPECT_TRUE(logLines.empty());
    EXPECT_TRUE(progressCalls.empty());
    uint8_t* data = nullptr;
    size_t length = 1;
    EXPECT_EQ(esp_download_file(missing, "config.yaml", &data, &length, recordProgress, recordLog),
              2u);
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(logLines, Lines{"Failed to open port"});
    EXPECT_TRUE(progressCalls.empty());
}

TEST(EntryPoint, DownloadsTheUploadedFileOrNothingOverAPseudoTerminal) {
    auto file = pattern(70000, 3);
    file.back() = '\n';
    for (const bool crc : {true, false}) {
        SCOPED_TRACE(crc ? "CRC" : "checksum");
        sim::Config config;
        config.xmodemSendCrc = crc;
        sim::PtyPlotter device(config);
        const size_t descriptors = openDescriptors();
        ASSERT_EQ(
            esp_upload_config(device.path().c_str(), file.data(), file.size(), nullptr, nullptr),
            0u);
        uint8_t* data = nullptr;
        size_t length = 0;
        ASSERT_EQ(esp_download_file(device.path().c_str(), "config.yaml", &data, &length, nullptr,
                                    nullptr),
                  0u);
        EXPECT_EQ(std::vector<uint8_t>(data, data + length), file);
        std::free(data);
        EXPECT_EQ(openDescriptors(), descriptors);
    }

    clearRecords();
    sim::Config cancelling;
    cancelling.xmodemSendCanBlock = 1;
    sim::PtyPlotter device(cancelling);
    const size_t descriptors = openDescriptors();
    uint8_t* data = nullptr;
    size_t length = 0;
    EXPECT_EQ(
        esp_download_file(device.path().c_str(), "config.yaml", &data, &length, nullptr, recordLog),
        8u);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(logLines, Lines{"XModem download: cancelled by the device"});
    EXPECT_EQ(openDescriptors(), descriptors);
}

// A regular file that nobody else holds opens, but has no terminal attributes, so
// every call fails after the descriptor was taken: the path where a leak would hide.
TEST(EntryPoint, FailingCallsLeaveNoDescriptorBehind) {
    char path[] = "/tmp/tfu-not-a-terminal-XXXXXX";
    ::close(::mkstemp(path));
    const size_t descriptors = openDescriptors();
    for (int i = 0; i < 100; ++i) {
        clearRecords();
        ASSERT_EQ(esp_flash_firmware(path, firmware.data(), firmware.size(), nullptr, 0, nullptr, 0,
                                     nullptr, 0, stub.data(), stub.size(), 0, 0, nullptr, nullptr,
                                     recordLog),
                  2u);
        ASSERT_EQ(logLines, (Lines{"Opening port: " + std::string(path), "Failed to open port"}));
        ASSERT_EQ(esp_upload_config(path, firmware.data(), 10, nullptr, nullptr), 2u);
        ASSERT_EQ(esp_query_version(path), nullptr);
        ASSERT_EQ(esp_probe_partition_table(path, stub.data(), stub.size()), -1);
        uint8_t* data = nullptr;
        size_t length = 0;
        ASSERT_EQ(esp_download_file(path, "config.yaml", &data, &length, nullptr, nullptr), 2u);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    ::unlink(path);
}

}  // namespace
