#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "LogForms.h"
#include "Scenario.h"
#include "api/Jobs.h"
#include "esp/Packet.h"
#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// Every run draws its faults from a seed derived from its index; a failure names
// the seed, and drawFlashScenario / drawUploadScenario replay it.
namespace {

using namespace reliability;

constexpr int kFlashRuns = 1000;
constexpr int kUploadRuns = 400;
constexpr uint32_t kFlashSeedBase = 0xF1A50000;
constexpr uint32_t kUploadSeedBase = 0xC0F10000;
// A run that takes this long in wall time is hanging, whatever its virtual clock says.
constexpr auto kWallLimit = std::chrono::seconds(20);

std::vector<std::string> logLines;
std::vector<std::string> stages;

void recordLog(const char* line) {
    logLines.emplace_back(line);
}
void recordProgress(float, const char* stage) {
    stages.emplace_back(stage);
}

/// Aborts the process, naming the seed, when one run hangs in wall time.
class Watchdog {
  public:
    Watchdog() : thread_([this] { watch(); }) {}
    ~Watchdog() {
        {
            std::lock_guard lock(mutex_);
            stop_ = true;
        }
        wake_.notify_all();
        thread_.join();
    }
    void arm(uint32_t seed) {
        std::lock_guard lock(mutex_);
        seed_ = seed;
        startedAt_ = std::chrono::steady_clock::now();
    }

  private:
    void watch() {
        std::unique_lock lock(mutex_);
        while (!wake_.wait_for(lock, std::chrono::milliseconds(200), [this] { return stop_; })) {
            if (std::chrono::steady_clock::now() - startedAt_ > kWallLimit) {
                std::fprintf(stderr, "run with seed 0x%08X hangs\n", seed_);
                std::abort();
            }
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    bool stop_ = false;
    uint32_t seed_ = 0;
    std::chrono::steady_clock::time_point startedAt_ = std::chrono::steady_clock::now();
    std::thread thread_;
};

int failureCount() {
    return ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

std::string seedText(uint32_t seed) {
    std::ostringstream text;
    text << "seed 0x" << std::hex << seed;
    return text.str();
}

/// Runs per result code, and the run that came closest to its time bound.
struct Tally {
    std::map<unsigned, int> outcomes;
    double worstShare = 0;
    int64_t worstMs = 0;
    int64_t worstBoundMs = 0;

    void add(unsigned code, int64_t elapsedMs, int64_t boundMs) {
        ++outcomes[code];
        const double share = static_cast<double>(elapsedMs) / static_cast<double>(boundMs);
        if (share > worstShare) {
            worstShare = share;
            worstMs = elapsedMs;
            worstBoundMs = boundMs;
        }
    }

    void print(const char* job) const {
        std::printf("%s: runs per outcome\n", job);
        for (const auto& [code, count] : outcomes) {
            std::printf("  result %2u  %4d runs\n", code, count);
        }
        std::printf("  closest to its bound: %.1f s of virtual time, bound %.1f s\n",
                    static_cast<double>(worstMs) / 1000, static_cast<double>(worstBoundMs) / 1000);
    }
};

class FaultCampaign : public ::testing::Test {
  protected:
    const std::vector<uint8_t> bootloader = testimg::pattern(20000, 2);
    const std::vector<uint8_t> partitions = testimg::pattern(3072, 3);
    const std::vector<uint8_t> bootApp = testimg::pattern(8192, 4);
    const std::vector<uint8_t> stub = testimg::stubImage(7000, 20);
    Watchdog watchdog;
};

struct Region {
    uint32_t address;
    const std::vector<uint8_t>* bytes;
};

bool holds(const sim::Plotter& plotter, const Region& region) {
    const auto& flash = plotter.flash();
    return std::equal(region.bytes->begin(), region.bytes->end(), flash.begin() + region.address);
}

TEST_F(FaultCampaign, FlashingJobKeepsItsPromisesUnderRandomFaults) {
    Tally tally;
    int failedRuns = 0;
    for (int run = 0; run < kFlashRuns && failedRuns < 5; ++run) {
        const uint32_t seed = kFlashSeedBase + static_cast<uint32_t>(run);
        const FlashScenario s = drawFlashScenario(seed);
        SCOPED_TRACE(seedText(seed) + ", faults: " + describe(s.faults));
        const std::vector<uint8_t> firmware =
            testimg::pattern(s.firmwareSize, static_cast<uint8_t>(run));
        esp::FlashRequest request;
        request.firmware = firmware.data();
        request.firmwareLen = firmware.size();
        request.bootloader = bootloader.data();
        request.bootloaderLen = bootloader.size();
        request.partitions = partitions.data();
        request.partitionsLen = partitions.size();
        request.bootApp = s.withBootApp ? bootApp.data() : nullptr;
        request.bootAppLen = s.withBootApp ? bootApp.size() : 0;
        request.stub = stub.data();
        request.stubLen = stub.size();
        request.fullFlash = s.fullFlash;
        request.eraseAll = s.eraseAll;
        request.expectedVersion = s.expectedVersion.c_str();

        sim::Plotter plotter(s.config);
        SerialPort port;
        plotter.connectLoopback(port);
        logLines.clear();
        watchdog.arm(seed);
        const int64_t startNs = mono::nowNs();
        const esp_error_t code = esp::runFlashJob(port, request, recordProgress, recordLog);
        const int64_t elapsedMs = (mono::nowNs() - startNs) / 1'000'000;
        const int64_t boundMs = flashJobBoundMs(request);
        tally.add(code, elapsedMs, boundMs);

        const int before = failureCount();
        EXPECT_TRUE(code == 0 || (code >= 3 && code <= 7)) << "result " << code;
        EXPECT_LE(elapsedMs, boundMs) << "virtual ms";
        for (const auto& line : logLines) {
            EXPECT_TRUE(isDefinedLogLine(line)) << "undefined log line: \"" << line << "\"";
        }
        if (code == 0) {
            std::vector<Region> plan;
            if (s.fullFlash) {
                plan = {{0x0, &bootloader}, {0x8000, &partitions}};
            }
            if (s.withBootApp) {
                plan.push_back({0xE000, &bootApp});
            }
            plan.push_back({0x10000, &firmware});
            for (const Region& region : plan) {
                EXPECT_TRUE(holds(plotter, region)) << "success without region " << region.address;
            }
        } else {
            EXPECT_TRUE(explainsFailure(logLines, code))
                << "result " << code << " after \"" << (logLines.empty() ? "" : logLines.back())
                << "\"";
        }
        if (s.faults.empty()) {
            EXPECT_EQ(code, 0u) << "a healthy device failed";
        }
        failedRuns += failureCount() > before ? 1 : 0;
    }
    tally.print("flashing job");
}

TEST_F(FaultCampaign, ConfigurationUploadKeepsItsPromisesUnderRandomFaults) {
    Tally tally;
    int failedRuns = 0;
    for (int run = 0; run < kUploadRuns && failedRuns < 5; ++run) {
        const uint32_t seed = kUploadSeedBase + static_cast<uint32_t>(run);
        const UploadScenario s = drawUploadScenario(seed);
        SCOPED_TRACE(seedText(seed) + ", faults: " + describe(s.faults));
        sim::Plotter plotter(s.config);
        SerialPort port;
        plotter.connectLoopback(port);
        stages.clear();
        watchdog.arm(seed);
        const int64_t startNs = mono::nowNs();
        const esp_error_t code =
            esp::runUploadConfigJob(port, s.file.data(), s.file.size(), recordProgress);
        const int64_t elapsedMs = (mono::nowNs() - startNs) / 1'000'000;
        const int64_t boundMs = uploadJobBoundMs(s.file.size());
        tally.add(code, elapsedMs, boundMs);

        const int before = failureCount();
        EXPECT_TRUE(code == 0 || code == 8) << "result " << code;
        EXPECT_LE(elapsedMs, boundMs) << "virtual ms";
        for (const auto& stage : stages) {
            EXPECT_TRUE(stage == "Uploading config file..." ||
                        stage == "XModem: no handshake received (30s timeout)")
                << "undefined stage: \"" << stage << "\"";
        }
        if (code == 0) {
            EXPECT_EQ(plotter.storedConfig(), std::optional(s.file)) << "success, file not whole";
        }
        if (s.faults.empty()) {
            EXPECT_EQ(code, 0u) << "a healthy device failed";
        }
        failedRuns += failureCount() > before ? 1 : 0;
    }
    tally.print("configuration upload");
}

}  // namespace
