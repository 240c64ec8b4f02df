#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "esp/Packet.h"

namespace {

using namespace jobtest;

using Change = std::function<void(sim::Plotter&, esp::FlashRequest&)>;

class FlashJobTest : public ::testing::Test {
  protected:
    /// Runs an app-only request, changed by `change`, against a fresh plotter.
    esp_error_t run(const Change& change = {}, esp_progress_cb progress = recordProgress) {
        clearRecords();
        port = std::make_unique<SerialPort>();
        device = std::make_unique<WatchedPlotter>();
        request = testimg::flashRequest(firmware, bootloader, partitions, stub);
        if (change) {
            change(device->plotter, request);
        }
        device->connect(*port);
        return esp::runFlashJob(*port, request, progress, recordLog);
    }

    bool holds(uint32_t address, const Bytes& bytes) const {
        return std::equal(bytes.begin(), bytes.end(), device->plotter.flash().begin() + address);
    }

    const Bytes firmware = pattern(40000, 1);
    const Bytes bootloader = pattern(20001, 2);
    const Bytes partitions = pattern(3072, 3);
    const Bytes bootApp = pattern(8192, 4);
    const Bytes stub = stubImage();
    esp::FlashRequest request;
    std::unique_ptr<SerialPort> port;
    std::unique_ptr<WatchedPlotter> device;
};

TEST_F(FlashJobTest, AppOnlyJobWritesVerifiesResetsAndConfirmsTheVersion) {
    const Bytes abc = {'a', 'b', 'c'};
    ASSERT_EQ(run([&](auto& p, auto& r) {
                  p.config().versionReport = "v2.10.6 (sim)";
                  r.firmware = abc.data();
                  r.firmwareLen = abc.size();
                  r.expectedVersion = "2.10";
              }),
              0u);
    const std::string md5 = "900150983cd24fb0d6963f7d28e17f72";
    EXPECT_EQ(
        logLines,
        concat(
            {{"Entering bootloader...", "Syncing...", "Sync OK", "Chip ID: 0x9", "Chip: ESP32-S3",
              "Security fuses: 0x00000000",
              "Security check OK - no secure boot or flash encryption",
              "Uploading flash stub (140 bytes)...",
              "Stub: text=100 @ 0x40380000 data=20 @ 0x3fc90000 entry=0x40380004", "Stub running",
              "Attaching SPI flash...", "SPI_ATTACH (default pins)", "SPI_ATTACH OK"},
             {"Flash plan: 1 entries (app only)", "  0x10000: 3 bytes",
              "FLASH_BEGIN addr=0x00010000 size=3 blocks=1 blockSize=16384",
              "FLASH_BEGIN OK (erase complete)", "VERIFY addr=0x00010000 size=3",
              "VERIFY local_md5=" + md5, "VERIFY flash_md5=" + md5, "VERIFY OK", "FLASH_END OK",
              "Verifying firmware version...", "Device running firmware v2.10.6 (sim)"}}));
    EXPECT_TRUE(holds(0x10000, abc));
    EXPECT_FALSE(device->endsWithoutReset());
}

// Progress is single precision from region sizes: computed in double precision, in
// the job or in the loader, the last two plans would end their regions elsewhere.
TEST_F(FlashJobTest, WritesEachPlanWithItsProgress) {
    // `plan` holds the "Flash plan: " and "  0x" lines without those prefixes.
    const auto expectPlan = [&](bool full, const uint8_t* bootAppData, size_t bootAppLen,
                                const std::string& plan, const std::vector<float>& progress,
                                int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        ASSERT_EQ(run([&](auto&, auto& r) {
                      r.fullFlash = full;
                      r.bootApp = bootAppData;
                      r.bootAppLen = bootAppLen;
                  }),
                  0u);
        std::string written;
        std::vector<float> fractions;
        for (const auto& line : logLines) {
            written += line.starts_with("Flash plan: ") ? line.substr(12) + "|" : "";
            written += line.starts_with("  0x") ? line.substr(4) + "|" : "";
        }
        for (const auto& [fraction, stage] : progressCalls) {
            fractions.push_back(fraction);
        }
        EXPECT_EQ(written, plan);
        EXPECT_EQ(fractions, progress);
    };
    expectPlan(false, bootApp.data(), 8192,
               "2 entries (app only)|0E000: 8192 bytes|10000: 40000 bytes|",
               {0.244090304f, 0.44606021f, 0.648030102f, 0.850000024f});
    expectPlan(false, bootApp.data(), 0, "1 entries (app only)|10000: 40000 bytes|",
               {0.363333344f, 0.606666684f, 0.850000024f});
    expectPlan(false, nullptr, 8192, "1 entries (app only)|10000: 40000 bytes|",
               {0.363333344f, 0.606666684f, 0.850000024f});
    expectPlan(true, nullptr, 0,
               "3 entries (FULL)|00000: 20001 bytes|08000: 3072 bytes|10000: 40000 bytes|",
               {0.235744685f, 0.351489395f, 0.3870444f, 0.541362941f, 0.695681453f, 0.850000024f});
    expectPlan(true, bootApp.data(), 8192,
               "4 entries (FULL)|00000: 20001 bytes|08000: 3072 bytes|0E000: 8192 bytes|"
               "10000: 40000 bytes|",
               {0.222439706f, 0.324879408f, 0.356347322f, 0.440261692f, 0.576841176f, 0.71342063f,
                0.850000024f});
}

TEST_F(FlashJobTest, EraseAllErasesBeforeThePlanEvenWithoutProgress) {
    const Change eraseAll = [](auto& p, auto& r) {
        p.loadFlash(0x200000, pattern(4096, 9));
        r.eraseAll = true;
    };
    ASSERT_EQ(run(eraseAll, nullptr), 0u);
    EXPECT_TRUE(holds(0x200000, Bytes(4096, 0xFF)));
    const Lines after = linesAfter("SPI_ATTACH OK");
    EXPECT_EQ(Lines(after.begin(), after.begin() + 5),
              (Lines{"Erasing entire flash...", "ERASE_FLASH (full chip erase)", "ERASE_FLASH OK",
                     "Flash erased", "Flash plan: 1 entries (app only)"}));

    ASSERT_EQ(run(eraseAll), 0u);
    EXPECT_EQ(progressCalls.front(), std::make_pair(0.08f, std::string("Erasing flash...")));
    EXPECT_EQ(progressCalls[1].first, 0.363333344f);
}

// The last of the 30 SYNCs (three entries of ten) may still be answered.
TEST_F(FlashJobTest, SettlesHalfASecondThenRetriesBootloaderEntryUntilTheThirdSync) {
    ASSERT_EQ(run([](auto& p, auto&) { p.config().syncFromAttempt = 30; }), 0u);
    EXPECT_EQ(device->firstActionMs, 500);
    const Lines tenFailures(10, "NO RESPONSE: SYNC");
    EXPECT_EQ(Lines(logLines.begin(), logLines.begin() + 36),
              concat({{"Entering bootloader...", "Syncing..."},
                      tenFailures,
                      {"Retrying bootloader entry (attempt 2)...", "Syncing..."},
                      tenFailures,
                      {"Retrying bootloader entry (attempt 3)...", "Syncing..."},
                      Lines(9, "NO RESPONSE: SYNC"),
                      {"Sync OK"}}));
}

sim::ResponseFault errorOn(uint8_t op, int occurrence = 0) {
    return {op, occurrence, sim::FaultKind::ErrorStatus, 0x06};
}

// No failure resets the chip: a later job starts from the bootloader entry again.
TEST_F(FlashJobTest, EachFailureStopsWithItsCodeAndLinesAndNoReset) {
    const auto expectFailure = [&](const Change& change, esp_error_t code, const Lines& last) {
        SCOPED_TRACE(last.back());
        EXPECT_EQ(run(change), code);
        const size_t n = std::min(logLines.size(), last.size());
        EXPECT_EQ(Lines(logLines.end() - static_cast<ptrdiff_t>(n), logLines.end()), last);
        EXPECT_EQ(device->endsWithoutReset(), code != 0);
    };
    expectFailure([](auto& p, auto&) { p.config().syncFromAttempt = 31; }, 3,
                  concat({{"Retrying bootloader entry (attempt 3)...", "Syncing..."},
                          Lines(10, "NO RESPONSE: SYNC"),
                          {"Sync failed after all retries"}}));
    expectFailure([](auto& p, auto&) { p.config().chipId = 5; }, 4,
                  {"Sync OK", "Chip ID: 0x5", "Wrong chip! Expected ESP32-S3 (0x0009)"});
    expectFailure([](auto& p, auto&) { p.config().securityFuses = 0x11; }, 4,
                  {"Security fuses: 0x00000011",
                   "WARNING: Unexpected security fuse value! Secure boot or flash encryption "
                   "may be enabled.",
                   "ABORTED: Device has secure boot or flash encryption enabled. Flashing "
                   "plaintext firmware would brick it."});
    expectFailure([](auto& p, auto&) { p.config().greeting = false; }, 5,
                  {"Stub: text=100 @ 0x40380000 data=20 @ 0x3fc90000 entry=0x40380004",
                   "Stub upload failed"});
    expectFailure(
        [](auto& p, auto& r) {
            r.eraseAll = true;
            p.config().responseFaults = {errorOn(esp::ERASE_FLASH)};
        },
        6,
        {"Erasing entire flash...", "ERASE_FLASH (full chip erase)",
         "ERROR: CMD_0xD0 status=1 error=6", "ERASE_FLASH FAILED", "Flash erase failed"});
    expectFailure([](auto& p, auto&) { p.config().responseFaults = {errorOn(esp::FLASH_DATA, 1)}; },
                  6, {"FLASH_BEGIN OK (erase complete)", "ERROR: FLASH_DATA status=1 error=6"});
    expectFailure([](auto& p, auto&) { p.config().wrongMd5At = 0; }, 7, {"VERIFY MISMATCH"});
    // A refused SPI_ATTACH is ignored: the stub attaches on its own.
    expectFailure([](auto& p, auto&) { p.config().responseFaults = {errorOn(esp::SPI_ATTACH)}; }, 0,
                  {"VERIFY OK", "FLASH_END OK"});
}

const char* const kVerifying = "Verifying firmware version...";
const char* const kUnconfirmed = "Could not confirm firmware version after update.";

TEST_F(FlashJobTest, VersionConfirmationNeverTurnsAWrittenUpdateIntoAFailure) {
    const auto expectAfterReset = [&](const char* expected, const std::string& reported,
                                      const Lines& after) {
        SCOPED_TRACE(std::string(expected ? expected : "(null)") + ", reported " + reported);
        ASSERT_EQ(run([&](auto& p, auto& r) {
                      p.config().versionReport = reported;
                      r.expectedVersion = expected;
                  }),
                  0u);
        EXPECT_EQ(linesAfter("FLASH_END OK"), after);
    };
    expectAfterReset("1.2", "1.2.3", {kVerifying, "Device running firmware 1.2.3"});
    expectAfterReset("1.2", "1.3",
                     {kVerifying, "Device running firmware 1.3",
                      "WARNING: Expected firmware 1.2 but device reports 1.3", kUnconfirmed});
    expectAfterReset("v1.2", "V1.2",
                     {kVerifying, "Device running firmware V1.2",
                      "WARNING: Expected firmware v1.2 but device reports V1.2", kUnconfirmed});
    expectAfterReset("", "1.3", {});
    expectAfterReset(nullptr, "1.3", {});
}

// 2 s for the restart, then three queries (a 50 ms drain and 2 s each) 1 s apart;
// each read slice of a query may stop short of its deadline by up to 1 ms.
TEST_F(FlashJobTest, SilenceAfterTheResetCostsTenSeconds) {
    ASSERT_EQ(run([](auto& p, auto& r) {
                  p.config().silentConsole = true;
                  r.expectedVersion = "2.10.6";
              }),
              0u);
    EXPECT_EQ(linesAfter("FLASH_END OK"), (Lines{kVerifying, kUnconfirmed}));
    const size_t n = logLines.size();
    const int64_t waitedNs = logTimesNs[n - 1] - logTimesNs[n - 2];
    EXPECT_NEAR(waitedNs / 1e6, 2000 + 3 * (50 + 2000) + 2 * 1000, 10);
}

}  // namespace
