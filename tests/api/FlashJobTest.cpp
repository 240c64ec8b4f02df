#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "sim/Plotter.h"

namespace {

using namespace jobtest;

class FlashJobTest : public ::testing::Test {
  protected:
    void SetUp() override { clearRecords(); }

    esp_error_t run(const esp::FlashRequest& request, esp_progress_cb progress = recordProgress) {
        plotter.connectLoopback(port);
        return esp::runFlashJob(port, request, progress, recordLog);
    }

    esp::FlashRequest appOnly() const {
        esp::FlashRequest r;
        r.firmware = firmware.data();
        r.firmwareLen = firmware.size();
        r.bootloader = bootloader.data();
        r.bootloaderLen = bootloader.size();
        r.partitions = partitions.data();
        r.partitionsLen = partitions.size();
        r.stub = stub.data();
        r.stubLen = stub.size();
        return r;
    }

    std::vector<uint8_t> flashAt(uint32_t address, size_t size) const {
        const auto from = plotter.flash().begin() + address;
        return {from, from + static_cast<ptrdiff_t>(size)};
    }

    Lines linesAfter(const std::string& line) const {
        const auto at = std::find(logLines.begin(), logLines.end(), line);
        return at == logLines.end() ? Lines{"(no " + line + ")"} : Lines(at + 1, logLines.end());
    }

    const std::vector<uint8_t> firmware = pattern(40000, 1);
    const std::vector<uint8_t> bootloader = pattern(20000, 2);
    const std::vector<uint8_t> partitions = pattern(3072, 3);
    const std::vector<uint8_t> bootApp = pattern(8192, 4);
    const std::vector<uint8_t> stub = stubImage();
    sim::Plotter plotter;
    SerialPort port;
};

TEST_F(FlashJobTest, AppOnlyJobWritesVerifiesAndConfirmsTheVersion) {
    plotter.config().versionReport = "v2.10.6 (sim)";
    auto request = appOnly();
    request.expectedVersion = "2.10";
    ASSERT_EQ(run(request), 0u);

    EXPECT_EQ(logLines, concat({preambleLines(),
                                {"Flash plan: 1 entries (app only)", "  0x10000: 40000 bytes"},
                                regionLines(0x10000, firmware),
                                {"FLASH_END OK", "Verifying firmware version...",
                                 "Device running firmware v2.10.6 (sim)"}}));
    EXPECT_EQ(flashAt(0x10000, firmware.size()), firmware);
    ASSERT_EQ(progressCalls.size(), 3u);
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(progressCalls[i].first, 0.12f + 0.73f * static_cast<float>(i + 1) / 3);
        EXPECT_EQ(progressCalls[i].second, "Flashing");
    }
}

struct PlanCase {
    const char* name;
    bool fullFlash;
    bool bootAppPointer;
    size_t bootAppLen;
    std::string plan;  // the plan's lines, joined by '\n'
};

class FlashPlanTest : public FlashJobTest, public ::testing::WithParamInterface<PlanCase> {};

TEST_P(FlashPlanTest, WritesThePlanInOrderWithRisingProgress) {
    auto request = appOnly();
    request.fullFlash = GetParam().fullFlash;
    request.bootApp = GetParam().bootAppPointer ? bootApp.data() : nullptr;
    request.bootAppLen = GetParam().bootAppLen;
    ASSERT_EQ(run(request), 0u);

    std::string plan;
    std::vector<unsigned long> planned, begun;
    for (const auto& line : logLines) {
        if (line.starts_with("Flash plan") || line.starts_with("  0x")) {
            plan += (plan.empty() ? "" : "\n") + line;
            if (line.starts_with("  0x")) {
                planned.push_back(std::stoul(line.substr(2, 7), nullptr, 16));
            }
        } else if (line.starts_with("FLASH_BEGIN addr=")) {
            begun.push_back(std::stoul(line.substr(17, 10), nullptr, 16));
        }
    }
    EXPECT_EQ(plan, GetParam().plan);
    EXPECT_EQ(begun, planned);
    EXPECT_EQ(flashAt(0x10000, firmware.size()), firmware);
    if (request.fullFlash) {
        EXPECT_EQ(flashAt(0x0, bootloader.size()), bootloader);
        EXPECT_EQ(flashAt(0x8000, partitions.size()), partitions);
    }
    EXPECT_TRUE(std::is_sorted(progressCalls.begin(), progressCalls.end()));
    EXPECT_GT(progressCalls.front().first, 0.12f);
    EXPECT_FLOAT_EQ(progressCalls.back().first, 0.85f);
}

INSTANTIATE_TEST_SUITE_P(
    Plans, FlashPlanTest,
    ::testing::Values(
        PlanCase{"AppWithBootApp", false, true, 8192,
                 "Flash plan: 2 entries (app only)\n  0x0E000: 8192 bytes\n  0x10000: 40000 bytes"},
        PlanCase{"BootAppOfLengthZero", false, true, 0,
                 "Flash plan: 1 entries (app only)\n  0x10000: 40000 bytes"},
        PlanCase{"BootAppLengthWithoutPointer", false, false, 8192,
                 "Flash plan: 1 entries (app only)\n  0x10000: 40000 bytes"},
        PlanCase{"Full", true, false, 0,
                 "Flash plan: 3 entries (FULL)\n  0x00000: 20000 bytes\n  0x08000: 3072 bytes\n"
                 "  0x10000: 40000 bytes"},
        PlanCase{"FullWithBootApp", true, true, 8192,
                 "Flash plan: 4 entries (FULL)\n  0x00000: 20000 bytes\n  0x08000: 3072 bytes\n"
                 "  0x0E000: 8192 bytes\n  0x10000: 40000 bytes"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FlashJobTest, EraseAllErasesBeforeThePlanEvenWithoutProgress) {
    plotter.loadFlash(0x200000, pattern(4096, 9));
    auto request = appOnly();
    request.eraseAll = true;
    ASSERT_EQ(run(request, nullptr), 0u);
    EXPECT_EQ(flashAt(0x200000, 4096), std::vector<uint8_t>(4096, 0xFF));
    const Lines after = linesAfter("SPI_ATTACH OK");
    EXPECT_EQ(Lines(after.begin(), after.begin() + 5),
              (Lines{"Erasing entire flash...", "ERASE_FLASH (full chip erase)", "ERASE_FLASH OK",
                     "Flash erased", "Flash plan: 1 entries (app only)"}));

    clearRecords();
    ASSERT_EQ(esp::runFlashJob(port, request, recordProgress, recordLog), 0u);
    EXPECT_EQ(progressCalls.front(), std::make_pair(0.08f, std::string("Erasing flash...")));
    EXPECT_GT(progressCalls[1].first, 0.12f);
}

TEST_F(FlashJobTest, RetriesBootloaderEntryUntilTheThirdSync) {
    plotter.config().syncFromAttempt = 21;
    ASSERT_EQ(run(appOnly()), 0u);
    const Lines tenFailures(10, "NO RESPONSE: SYNC");
    EXPECT_EQ(Lines(logLines.begin(), logLines.begin() + 27),
              concat({{"Entering bootloader...", "Syncing..."},
                      tenFailures,
                      {"Retrying bootloader entry (attempt 2)...", "Syncing..."},
                      tenFailures,
                      {"Retrying bootloader entry (attempt 3)...", "Syncing...", "Sync OK"}}));
}

struct FailureCase {
    const char* name;
    std::function<void(sim::Config&, esp::FlashRequest&)> setup;
    esp_error_t code;
    Lines lastLines;
};

class FlashFailureTest : public FlashJobTest, public ::testing::WithParamInterface<FailureCase> {};

TEST_P(FlashFailureTest, StopsWithItsCodeAndLines) {
    auto request = appOnly();
    GetParam().setup(plotter.config(), request);
    EXPECT_EQ(run(request), GetParam().code);
    const size_t n = std::min(logLines.size(), GetParam().lastLines.size());
    EXPECT_EQ(Lines(logLines.end() - static_cast<ptrdiff_t>(n), logLines.end()),
              GetParam().lastLines);
}

sim::ResponseFault errorOn(uint8_t op, int occurrence = 0) {
    return {op, occurrence, sim::FaultKind::ErrorStatus, 0x06};
}

INSTANTIATE_TEST_SUITE_P(
    Failures, FlashFailureTest,
    ::testing::Values(
        FailureCase{"SilentChip", [](auto& c, auto&) { c.silent = true; }, 3,
                    concat({{"Retrying bootloader entry (attempt 3)...", "Syncing..."},
                            Lines(10, "NO RESPONSE: SYNC"),
                            {"Sync failed after all retries"}})},
        FailureCase{"WrongChip",
                    [](auto& c, auto&) { c.chipId = 5; },
                    4,
                    {"Sync OK", "Chip ID: 0x5", "Wrong chip! Expected ESP32-S3 (0x0009)"}},
        FailureCase{"SecureBoot",
                    [](auto& c, auto&) { c.securityFuses = 0x11; },
                    4,
                    {"Security fuses: 0x00000011",
                     "WARNING: Unexpected security fuse value! Secure boot or flash encryption "
                     "may be enabled.",
                     "ABORTED: Device has secure boot or flash encryption enabled. Flashing "
                     "plaintext firmware would brick it."}},
        FailureCase{"NoGreeting",
                    [](auto& c, auto&) { c.greeting = false; },
                    5,
                    {"Stub: text=100 @ 0x40380000 data=20 @ 0x3fc90000 entry=0x40380004",
                     "Stub upload failed"}},
        FailureCase{"ShortStub",
                    [](auto&, auto& r) { r.stubLen = 10; },
                    5,
                    {"Uploading flash stub (10 bytes)...", "Stub header parse failed (size=10)",
                     "Stub upload failed"}},
        FailureCase{
            "EraseRefused",
            [](auto& c, auto& r) {
                r.eraseAll = true;
                c.responseFaults = {errorOn(esp::ERASE_FLASH)};
            },
            6,
            {"Erasing entire flash...", "ERASE_FLASH (full chip erase)",
             "ERROR: CMD_0xD0 status=1 error=6", "ERASE_FLASH FAILED", "Flash erase failed"}},
        FailureCase{"BlockRefused",
                    [](auto& c, auto&) { c.responseFaults = {errorOn(esp::FLASH_DATA, 1)}; },
                    6,
                    {"FLASH_BEGIN OK (erase complete)", "ERROR: FLASH_DATA status=1 error=6"}},
        FailureCase{
            "DigestMismatch", [](auto& c, auto&) { c.wrongMd5At = 0; }, 7, {"VERIFY MISMATCH"}},
        FailureCase{"AttachRefusedIsIgnored",
                    [](auto& c, auto&) { c.responseFaults = {errorOn(esp::SPI_ATTACH)}; },
                    0,
                    {"VERIFY OK", "FLASH_END OK"}}),
    [](const auto& info) { return std::string(info.param.name); });

struct VersionCase {
    const char* name;
    const char* expected;
    std::string reported;
    Lines linesAfterReset;
};

class VersionConfirmationTest : public FlashJobTest,
                                public ::testing::WithParamInterface<VersionCase> {};

TEST_P(VersionConfirmationTest, NeverTurnsAWrittenUpdateIntoAFailure) {
    plotter.config().versionReport = GetParam().reported;
    auto request = appOnly();
    request.expectedVersion = GetParam().expected;
    ASSERT_EQ(run(request), 0u);
    EXPECT_EQ(linesAfter("FLASH_END OK"), GetParam().linesAfterReset);
}

const char* const kVerifying = "Verifying firmware version...";
const char* const kUnconfirmed = "Could not confirm firmware version after update.";

INSTANTIATE_TEST_SUITE_P(
    Versions, VersionConfirmationTest,
    ::testing::Values(
        VersionCase{"Substring", "1.2", "1.2.3", {kVerifying, "Device running firmware 1.2.3"}},
        VersionCase{"Mismatch",
                    "1.2",
                    "1.3",
                    {kVerifying, "Device running firmware 1.3",
                     "WARNING: Expected firmware 1.2 but device reports 1.3", kUnconfirmed}},
        VersionCase{"CaseMatters",
                    "v1.2",
                    "V1.2",
                    {kVerifying, "Device running firmware V1.2",
                     "WARNING: Expected firmware v1.2 but device reports V1.2", kUnconfirmed}},
        VersionCase{"NoneExpected", "", "1.3", {}},
        VersionCase{"NullExpected", nullptr, "1.3", {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FlashJobTest, SilenceAfterTheResetCostsAboutTenSeconds) {
    plotter.config().silentConsole = true;
    auto request = appOnly();
    request.expectedVersion = "2.10.6";
    ASSERT_EQ(run(request), 0u);
    EXPECT_EQ(linesAfter("FLASH_END OK"), (Lines{kVerifying, kUnconfirmed}));
    const size_t n = logLines.size();
    const int64_t waitedMs = (logTimesNs[n - 1] - logTimesNs[n - 2]) / 1'000'000;
    EXPECT_GE(waitedMs, 9900);
    EXPECT_LE(waitedMs, 10300);
}

}  // namespace
