#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <future>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Campaign.h"
#include "api/Jobs.h"
#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// Every run draws its faults from a seed derived from its index; a failure names
// the seed, and drawFlashScenario / drawUploadScenario replay it.
namespace {

using namespace reliability;

std::vector<std::string> logLines;
std::vector<std::string> stages;

void recordLog(const char* line) {
    logLines.emplace_back(line);
}
void recordProgress(float, const char* stage) {
    stages.emplace_back(stage);
}

struct Outcome {
    esp_error_t code;
    int64_t elapsedMs;  ///< virtual time
};

// A run that takes this long in wall time hangs, whatever its virtual clock says;
// the job runs on a thread of its own so the hang can be named before aborting.
Outcome guarded(uint32_t seed, const std::function<esp_error_t()>& job) {
    auto result = std::async(std::launch::async, [&] {
        const int64_t startNs = mono::nowNs();
        const esp_error_t code = job();
        return Outcome{code, (mono::nowNs() - startNs) / 1'000'000};
    });
    if (result.wait_for(std::chrono::seconds(20)) != std::future_status::ready) {
        std::fprintf(stderr, "run with seed 0x%08X hangs\n", seed);
        std::abort();
    }
    return result.get();
}

int failureCount() {
    return ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

/// Runs `runs` seeds from `seedBase` through `run`, which checks one run and returns
/// its result code; stops after five failed runs and prints the runs per result.
void campaign(const char* job, int runs, uint32_t seedBase,
              const std::function<unsigned(uint32_t)>& run) {
    std::map<unsigned, int> outcomes;
    int failedRuns = 0;
    for (int i = 0; i < runs && failedRuns < 5; ++i) {
        const int before = failureCount();
        ++outcomes[run(seedBase + static_cast<uint32_t>(i))];
        failedRuns += failureCount() > before ? 1 : 0;
    }
    std::printf("%s: runs per outcome\n", job);
    for (const auto& [code, count] : outcomes) {
        std::printf("  result %2u  %4d runs\n", code, count);
    }
}

std::string trace(uint32_t seed, const std::vector<std::string>& faults) {
    char text[32];
    std::snprintf(text, sizeof text, "seed 0x%08X, faults:", seed);
    std::string all = text;
    for (const auto& fault : faults) {
        all += " " + fault;
    }
    return faults.empty() ? all + " none" : all;
}

bool holds(const sim::Plotter& plotter, uint32_t address, const std::vector<uint8_t>& bytes) {
    return std::equal(bytes.begin(), bytes.end(), plotter.flash().begin() + address);
}

TEST(FaultCampaign, FlashingJobKeepsItsPromisesUnderRandomFaults) {
    const auto bootloader = testimg::pattern(20000, 2);
    const auto partitions = testimg::pattern(3072, 3);
    const auto bootApp = testimg::pattern(8192, 4);
    const auto stub = testimg::stubImage(7000, 20);
    campaign("flashing job", 1000, 0xF1A50000, [&](uint32_t seed) {
        const FlashScenario s = drawFlashScenario(seed);
        SCOPED_TRACE(trace(seed, s.faults));
        const auto firmware = testimg::pattern(s.firmwareSize, static_cast<uint8_t>(seed));
        auto request = testimg::flashRequest(firmware, bootloader, partitions, stub);
        request.bootApp = s.withBootApp ? bootApp.data() : nullptr;
        request.bootAppLen = s.withBootApp ? bootApp.size() : 0;
        request.fullFlash = s.fullFlash;
        request.eraseAll = s.eraseAll;
        request.expectedVersion = s.expectedVersion.c_str();
        sim::Plotter plotter(s.config);
        SerialPort port;
        plotter.connectLoopback(port);
        logLines.clear();
        const Outcome out = guarded(
            seed, [&] { return esp::runFlashJob(port, request, recordProgress, recordLog); });

        EXPECT_TRUE(out.code == 0 || (out.code >= 3 && out.code <= 7)) << "result " << out.code;
        EXPECT_LE(out.elapsedMs, flashJobBoundMs(request)) << "virtual ms";
        for (const auto& line : logLines) {
            EXPECT_TRUE(isDefinedLogLine(line)) << "undefined log line: \"" << line << "\"";
        }
        if (out.code == 0) {
            EXPECT_TRUE(!s.fullFlash ||
                        (holds(plotter, 0x0, bootloader) && holds(plotter, 0x8000, partitions)));
            EXPECT_TRUE(!s.withBootApp || holds(plotter, 0xE000, bootApp));
            EXPECT_TRUE(holds(plotter, 0x10000, firmware));
        } else {
            EXPECT_TRUE(explainsFailure(logLines, out.code))
                << "result " << out.code << " after \"" << (logLines.empty() ? "" : logLines.back())
                << "\"";
        }
        EXPECT_TRUE(out.code == 0 || !s.faults.empty()) << "a healthy device failed";
        return out.code;
    });
}

TEST(FaultCampaign, ConfigurationUploadKeepsItsPromisesUnderRandomFaults) {
    campaign("configuration upload", 400, 0xC0F10000, [&](uint32_t seed) {
        const UploadScenario s = drawUploadScenario(seed);
        SCOPED_TRACE(trace(seed, s.faults));
        sim::Plotter plotter(s.config);
        SerialPort port;
        plotter.connectLoopback(port);
        stages.clear();
        const Outcome out = guarded(seed, [&] {
            return esp::runUploadConfigJob(port, s.file.data(), s.file.size(), recordProgress);
        });

        EXPECT_TRUE(out.code == 0 || out.code == 8) << "result " << out.code;
        EXPECT_LE(out.elapsedMs, uploadJobBoundMs(s.file.size())) << "virtual ms";
        for (const auto& stage : stages) {
            EXPECT_TRUE(stage == "Uploading config file..." ||
                        stage == "XModem: no handshake received (30s timeout)")
                << "undefined stage: \"" << stage << "\"";
        }
        if (out.code == 0) {
            EXPECT_EQ(plotter.storedConfig(), std::optional(s.file)) << "success, file not whole";
        }
        EXPECT_TRUE(out.code == 0 || !s.faults.empty()) << "a healthy device failed";
        return out.code;
    });
}

}  // namespace
