#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "Descriptors.h"
#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "esp/Packet.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// A long series of jobs, good and bad, must leave nothing behind: no descriptor,
// no heap that grows with the number of jobs.
namespace {

using namespace reliability;

constexpr int kJobs = 1000;
constexpr int kWarmUpJobs = 100;
// Allocator bookkeeping may move by a few blocks; a leak of one job's buffers
// (images of tens of KiB) times 900 jobs would not fit.
constexpr size_t kHeapTolerance = 64 * 1024;
constexpr const char* kMissingPort = "/dev/tfu-no-such-port";

class Hygiene : public ::testing::Test {
  protected:
    esp::FlashRequest request() const {
        esp::FlashRequest r;
        r.firmware = firmware.data();
        r.firmwareLen = firmware.size();
        r.bootloader = firmware.data();
        r.bootloaderLen = 4096;
        r.partitions = partitions.data();
        r.partitionsLen = partitions.size();
        r.stub = stub.data();
        r.stubLen = stub.size();
        r.expectedVersion = "v3.7.8";
        return r;
    }

    /// Runs job `index` of the mixed series; returns whether it succeeded.
    bool runJob(int index) {
        sim::Config config;
        config.flashSize = 256 * 1024;
        switch (index % 8) {
            case 1:
                config.chipId = 5;
                break;
            case 2:
                config.wrongMd5At = 0;
                break;
            case 3:
                config.goneAfterFlashData = 1;
                break;
            case 5:
                config.xmodemCanBlock = 2;
                break;
            default:
                break;
        }
        sim::Plotter plotter(config);
        SerialPort port;
        plotter.connectLoopback(port);
        switch (index % 8) {
            case 0:
            case 1:
            case 2:
            case 3:
                return esp::runFlashJob(port, request(), nullptr, nullptr) == 0;
            case 4:
            case 5:
                return esp::runUploadConfigJob(port, configFile.data(), configFile.size(),
                                               nullptr) == 0;
            case 6:
                return esp::runQueryVersionJob(port).has_value();
            default:
                return missingPortCalls();
        }
    }

    // The entry points open nothing on a path that is not there and say so.
    static bool missingPortCalls() {
        const uint8_t byte = 0;
        bool refused = esp_flash_firmware(kMissingPort, &byte, 1, nullptr, 0, nullptr, 0, nullptr,
                                          0, &byte, 1, 0, 0, nullptr, nullptr, nullptr) == 2;
        refused = refused && esp_upload_config(kMissingPort, &byte, 1, nullptr, nullptr) == 2;
        refused = refused && esp_probe_partition_table(kMissingPort, &byte, 1) == -1;
        char* version = esp_query_version(kMissingPort);
        refused = refused && version == nullptr;
        std::free(version);
        return !refused;
    }

    const std::vector<uint8_t> firmware = testimg::pattern(40000, 1);
    const std::vector<uint8_t> partitions = testimg::pattern(3072, 3);
    const std::vector<uint8_t> configFile = testimg::pattern(5000, 7);
    const std::vector<uint8_t> stub = testimg::stubImage();
};

TEST_F(Hygiene, ThousandJobsLeaveDescriptorsAndHeapFlat) {
    int successes = 0;
    size_t descriptorsAfterWarmUp = 0;
    size_t heapAfterWarmUp = 0;
    const size_t descriptorsAtStart = openDescriptorCount();
    for (int job = 0; job < kJobs; ++job) {
        successes += runJob(job) ? 1 : 0;
        if (job + 1 == kWarmUpJobs) {
            descriptorsAfterWarmUp = openDescriptorCount();
            heapAfterWarmUp = heapInUse();
        }
    }
    const size_t descriptorsAtEnd = openDescriptorCount();
    const size_t heapAtEnd = heapInUse();
    std::printf(
        "%d jobs (%d succeeded): descriptors %zu at start, %zu after %d jobs, %zu at end; "
        "heap in use %zu bytes after %d jobs, %zu at end\n",
        kJobs, successes, descriptorsAtStart, descriptorsAfterWarmUp, kWarmUpJobs, descriptorsAtEnd,
        heapAfterWarmUp, kWarmUpJobs, heapAtEnd);

    EXPECT_EQ(successes, kJobs / 8 * 3);  // healthy flash, healthy upload, version query
    EXPECT_EQ(descriptorsAtEnd, descriptorsAtStart);
    EXPECT_LE(heapAtEnd, heapAfterWarmUp + kHeapTolerance);
}

}  // namespace
