#include <gtest/gtest.h>

#include <optional>

#include "api/Jobs.h"
#include "sim/PlotterLoopback.h"
#include "tests/support/Descriptors.h"
#include "tests/support/TestImages.h"

// A long series of jobs, good and bad, must leave nothing behind: no descriptor,
// no heap that grows with the number of jobs.
namespace {

using namespace fdcheck;

TEST(Hygiene, ThousandJobsLeaveDescriptorsAndHeapFlat) {
    const auto firmware = testimg::pattern(40000, 1);
    const auto yaml = testimg::pattern(5000, 7);
    const auto stub = testimg::stubImage();
    auto request = testimg::flashRequest(firmware, firmware, firmware, stub);
    request.expectedVersion = "v3.7.8";

    // Of every seven jobs: flashes healthy, wrong chip, bad digest, unplugged; uploads
    // healthy, cancelled; a version query.
    const auto runJob = [&](int kind) {
        sim::Config config;
        config.flashSize = 256 * 1024;
        config.chipId = kind == 1 ? 5 : config.chipId;
        config.wrongMd5At = kind == 2 ? std::optional(0) : std::nullopt;
        config.goneAfterFlashData = kind == 3 ? std::optional(1) : std::nullopt;
        config.xmodemCanBlock = kind == 5 ? std::optional(2) : std::nullopt;
        sim::Plotter plotter(config);
        SerialPort port;
        sim::connectLoopback(plotter, port);
        if (kind < 4) {
            return esp::runFlashJob(port, request, nullptr, nullptr) == 0;
        }
        if (kind < 6) {
            return esp::runUploadConfigJob(port, yaml.data(), yaml.size(), nullptr) == 0;
        }
        return esp::runQueryVersionJob(port).has_value();
    };

    constexpr int kJobs = 1001, kWarmUpJobs = 105;
    int successes = 0;
    size_t heapAfterWarmUp = 0;
    const size_t descriptorsAtStart = openDescriptorCount();
    for (int job = 0; job < kJobs; ++job) {
        successes += runJob(job % 7) ? 1 : 0;
        heapAfterWarmUp = job + 1 == kWarmUpJobs ? heapInUse() : heapAfterWarmUp;
    }
    EXPECT_EQ(successes, kJobs / 7 * 3);
    EXPECT_EQ(openDescriptorCount(), descriptorsAtStart);
    // Allocator bookkeeping may move by a few blocks; a leak of one job's buffers
    // (images of tens of KiB) times 900 jobs would not fit.
    EXPECT_LE(heapInUse(), heapAfterWarmUp + 64 * 1024);
}

}  // namespace
