#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "Descriptors.h"
#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// A long series of jobs, good and bad, must leave nothing behind: no descriptor,
// no heap that grows with the number of jobs.
namespace {

using namespace reliability;

constexpr const char* kMissingPort = "/dev/tfu-no-such-port";

// The entry points open nothing on a path that is not there and say so.
bool missingPortCalls() {
    const uint8_t byte = 0;
    bool refused = esp_flash_firmware(kMissingPort, &byte, 1, nullptr, 0, nullptr, 0, nullptr, 0,
                                      &byte, 1, 0, 0, nullptr, nullptr, nullptr) == 2;
    refused = refused && esp_upload_config(kMissingPort, &byte, 1, nullptr, nullptr) == 2;
    refused = refused && esp_probe_partition_table(kMissingPort, &byte, 1) == -1;
    uint8_t* file = nullptr;
    size_t length = 0;
    refused = refused &&
              esp_download_file(kMissingPort, "config.yaml", &file, &length, nullptr, nullptr) == 2;
    char* version = esp_query_version(kMissingPort);
    std::free(version);
    return !(refused && version == nullptr);
}

TEST(Hygiene, ThousandJobsLeaveDescriptorsAndHeapFlat) {
    const auto firmware = testimg::pattern(40000, 1);
    const auto partitions = testimg::pattern(3072, 3);
    const auto configFile = testimg::pattern(5000, 7);
    const auto stub = testimg::stubImage();
    esp::FlashRequest request;
    request.firmware = firmware.data();
    request.firmwareLen = firmware.size();
    request.bootloader = firmware.data();
    request.bootloaderLen = 4096;
    request.partitions = partitions.data();
    request.partitionsLen = partitions.size();
    request.stub = stub.data();
    request.stubLen = stub.size();
    request.expectedVersion = "v3.7.8";

    // Of every eight jobs: flashes healthy, wrong chip, bad digest, unplugged; uploads
    // healthy, cancelled; a version query; calls on a missing port.
    const auto runJob = [&](int kind) {
        sim::Config config;
        config.flashSize = 256 * 1024;
        config.chipId = kind == 1 ? 5 : config.chipId;
        config.wrongMd5At = kind == 2 ? std::optional(0) : std::nullopt;
        config.goneAfterFlashData = kind == 3 ? std::optional(1) : std::nullopt;
        config.xmodemCanBlock = kind == 5 ? std::optional(2) : std::nullopt;
        sim::Plotter plotter(config);
        SerialPort port;
        plotter.connectLoopback(port);
        if (kind < 4) {
            return esp::runFlashJob(port, request, nullptr, nullptr) == 0;
        }
        if (kind < 6) {
            return esp::runUploadConfigJob(port, configFile.data(), configFile.size(), nullptr) ==
                   0;
        }
        return kind == 6 ? esp::runQueryVersionJob(port).has_value() : missingPortCalls();
    };

    constexpr int kJobs = 1000, kWarmUpJobs = 100;
    int successes = 0;
    size_t heapAfterWarmUp = 0;
    const size_t descriptorsAtStart = openDescriptorCount();
    for (int job = 0; job < kJobs; ++job) {
        successes += runJob(job % 8) ? 1 : 0;
        heapAfterWarmUp = job + 1 == kWarmUpJobs ? heapInUse() : heapAfterWarmUp;
    }
    EXPECT_EQ(successes, kJobs / 8 * 3);
    EXPECT_EQ(openDescriptorCount(), descriptorsAtStart);
    // Allocator bookkeeping may move by a few blocks; a leak of one job's buffers
    // (images of tens of KiB) times 900 jobs would not fit.
    EXPECT_LE(heapInUse(), heapAfterWarmUp + 64 * 1024);
}

}  // namespace
