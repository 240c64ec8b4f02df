#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "esp/Packet.h"

namespace {

using namespace jobtest;

constexpr size_t kMiB = 1024 * 1024;
constexpr size_t kHead = 0x8C00;  // the bootloader header and the partition table

/// Snapshot and restore jobs against a simulated plotter over a loopback, in virtual time.
class WholeFlashJobTest : public ::testing::Test {
  protected:
    /// A fresh plotter whose flash holds a bootloader declaring `sizeCode` (none: an
    /// erased one), a partition table with its application at 0x10000, and an image there.
    sim::Plotter& machine(std::optional<uint8_t> sizeCode, sim::Config config = {}) {
        clearRecords();
        port = std::make_unique<SerialPort>();
        device = std::make_unique<WatchedPlotter>(std::move(config));
        auto& plotter = device->plotter;
        if (sizeCode) {
            plotter.loadFlash(0, bootloaderHeader(*sizeCode));
        }
        plotter.loadFlash(0x8000, partitionTable("dA"));
        plotter.loadFlash(0x10000, pattern(0x1000, 3));
        device->connect(*port);
        return plotter;
    }

    esp::SnapshotResult snapshot(size_t stopAt = SIZE_MAX, esp::StartupRecord* startup = nullptr) {
        taken.clear();
        return esp::runSnapshotJob(
            *port, stub.data(), stub.size(),
            [&](const uint8_t* data, size_t size) {
                taken.insert(taken.end(), data, data + size);
                return taken.size() < stopAt;
            },
            recordProgress, recordLog, startup);
    }

    /// The verdict on what `job` heard after its reset, judged against "3.7.8".
    static int verdictOf(const std::function<esp_error_t(esp::StartupRecord&)>& job) {
        esp::StartupRecord record;
        EXPECT_EQ(job(record), 0u);
        esp_startup_report report{};
        esp::fillStartupReport(report, record, "3.7.8");
        const int verdict = report.verdict;
        esp_startup_report_free(&report);
        return verdict;
    }

    /// An application-only update with firmware made from `seed`; its verdict.
    int update(uint8_t seed) {
        const Bytes firmware = pattern(40000, seed);
        return verdictOf([&](esp::StartupRecord& record) {
            auto request = testimg::flashRequest(firmware, firmware, firmware, stub);
            request.expectedVersion = "3.7.8";
            return esp::runFlashJob(*port, request, nullptr, nullptr, &record);
        });
    }

    /// `snapshot` written back; the verdict.
    int restore(const Bytes& snapshot) {
        return verdictOf([&](esp::StartupRecord& record) {
            return esp::runRestoreJob(*port, snapshot.data(), snapshot.size(), stub.data(),
                                      stub.size(), recordProgress, recordLog, &record);
        });
    }

    /// The plotter's flash from 0x0.
    Bytes flash(size_t size) const {
        const auto& all = device->plotter.flash();
        return Bytes(all.begin(), all.begin() + static_cast<ptrdiff_t>(size));
    }

    /// True when the simulator wrote or erased nothing.
    bool nothingWritten() const {
        const auto& heard = device->plotter.transcript();
        return std::none_of(heard.begin(), heard.end(), [](const std::string& entry) {
            return entry.starts_with("FLASH_") || entry == "ERASE_FLASH";
        });
    }

    const Bytes stub = stubImage();
    std::unique_ptr<SerialPort> port;
    std::unique_ptr<WatchedPlotter> device;
    Bytes taken;
};

// What the bootloader header declares, else what the partition table reaches; read
// after the flashing job's start, then the chip goes back to its firmware.
TEST_F(WholeFlashJobTest, SnapshotReadsWhatTheFlashHoldsAndLeavesItRunning) {
    const std::string fromHeader = " bytes, as the bootloader header declares";
    const struct {
        std::optional<uint8_t> sizeCode;
        size_t size;
        std::string extent;
    } rows[] = {
        {4, 16 * kMiB, "Whole flash: 16777216" + fromHeader},
        {0, kMiB, "Whole flash: 1048576" + fromHeader},
        {std::nullopt, 0x11000, "Whole flash: 69632 bytes, to the end of the last partition"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.extent);
        machine(row.sizeCode);
        const esp::SnapshotResult result = snapshot();
        EXPECT_EQ(std::tuple(result.code, result.end, result.size, result.received),
                  std::tuple(0u, int{ESP_SNAPSHOT_DONE}, uint64_t{row.size}, uint64_t{row.size}));
        EXPECT_TRUE(taken == flash(row.size)) << "the snapshot differs from the flash";
        EXPECT_EQ(linesAfter("SPI_ATTACH OK"),
                  (Lines{"Reading the flash layout...", row.extent,
                         "Reading " + std::to_string(row.size - kHead) + " more bytes...",
                         "Whole flash read: " + std::to_string(row.size) + " bytes, MD5 OK"}));
        ASSERT_FALSE(progressCalls.empty());
        EXPECT_EQ(progressCalls.back(), std::pair(1.0f, std::string("Reading flash")));
        EXPECT_FLOAT_EQ(progressCalls.front().first,
                        static_cast<float>(static_cast<double>(kHead) / row.size));
        EXPECT_TRUE(nothingWritten());
        EXPECT_FALSE(device->endsWithoutReset());
    }

    // Listening after the reset hears the firmware the snapshot left running.
    machine(0);
    esp::StartupRecord startup;
    ASSERT_EQ(snapshot(SIZE_MAX, &startup).code, 0u);
    EXPECT_TRUE(startup.listened);
    EXPECT_EQ(startup.version, std::optional<std::string>("FluidNC v3.7.8 (sim)"));
}

// A snapshot that failed gives no bytes to keep, sends nothing after the read, and
// still puts the chip back into its firmware once the stub ran.
TEST_F(WholeFlashJobTest, AFailedSnapshotSaysWhyAndSendsNoFurtherCommand) {
    const uint64_t rest = kMiB - kHead;
    const struct {
        const char* what;
        std::optional<uint8_t> sizeCode;
        std::function<void(sim::Config&)> change;
        esp_error_t code;
        int end;
        std::string line;
        size_t stopAt = SIZE_MAX;
    } rows[] = {
        {"a stall", 0, [](auto& c) { c.readStallAfterPackets = 20; }, 9, ESP_SNAPSHOT_NO_DATA,
         "READ_FLASH: no data for 5000 ms after 45056 of " + std::to_string(rest) + " bytes"},
        {"a wrong MD5 of the head", 0, [](auto& c) { c.wrongReadDigestAt = 0; }, 7,
         ESP_SNAPSHOT_MD5_MISMATCH, "READ_FLASH: MD5 mismatch"},
        {"a wrong MD5 of the rest", 0, [](auto& c) { c.wrongReadDigestAt = 1; }, 7,
         ESP_SNAPSHOT_MD5_MISMATCH, "READ_FLASH: MD5 mismatch"},
        {"READ_FLASH refused", 0,
         [](auto& c) {
             c.responseFaults = {{esp::READ_FLASH, 1, sim::FaultKind::ErrorStatus, 0x06}};
         },
         8, ESP_SNAPSHOT_READ_REFUSED, "ERROR: READ_FLASH status=1 error=6"},
        {"the receiver stops", 0, [](auto&) {}, 8, ESP_SNAPSHOT_STOPPED,
         "READ_FLASH: stopped after 4096 of " + std::to_string(rest) + " bytes", kHead + 1},
        {"an erased chip", std::nullopt, [](auto&) {}, 8, ESP_SNAPSHOT_NOTHING_TO_KEEP,
         "Nothing worth keeping: no bootloader header at 0x0 and no partition table at 0x8000"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        sim::Config config;
        row.change(config);
        auto& plotter = machine(row.sizeCode, config);
        if (!row.sizeCode) {
            plotter.loadFlash(0x8000, Bytes(0x1000, 0xFF));
        }
        const esp::SnapshotResult result = snapshot(row.stopAt);
        EXPECT_EQ(std::pair(result.code, result.end), std::pair(row.code, row.end));
        ASSERT_FALSE(logLines.empty());
        EXPECT_TRUE(logLines.back().starts_with(row.line)) << logLines.back();
        EXPECT_TRUE(plotter.transcript().back().starts_with("READ_FLASH"))
            << plotter.transcript().back();
        EXPECT_FALSE(device->endsWithoutReset());
    }

    // Before the stub runs there is nothing to reset from.
    sim::Config silent;
    silent.silent = true;
    machine(0, silent);
    const esp::SnapshotResult result = snapshot();
    EXPECT_EQ(std::pair(result.code, result.end), std::pair(3u, int{ESP_SNAPSHOT_NOT_STARTED}));
    EXPECT_TRUE(device->endsWithoutReset());
}

// The undo road: an update that leaves the machine restarting in a loop is undone by
// writing the snapshot back; the flash is byte for byte what it was and it runs
// again. The start belongs to the flash (the one the plotter came with was healthy,
// whatever the knob said): the same update loops again, unless the knob changes.
TEST_F(WholeFlashJobTest, RestoringASnapshotBringsBackTheFlashAndItsStart) {
    sim::Config config;
    config.startup = sim::Startup::BootLoop;
    auto& plotter = machine(0, config);
    ASSERT_EQ(snapshot().code, 0u);
    const Bytes original = taken;
    EXPECT_EQ(update(1), ESP_STARTUP_BOOT_LOOP);
    EXPECT_EQ(plotter.startup(), sim::Startup::BootLoop);
    EXPECT_FALSE(flash(kMiB) == original);

    clearRecords();
    EXPECT_EQ(restore(original), ESP_STARTUP_RUNNING);
    EXPECT_TRUE(flash(kMiB) == original) << "the flash differs from the snapshot";
    EXPECT_EQ(plotter.startup(), sim::Startup::Healthy);
    EXPECT_EQ(plotter.config().startup, sim::Startup::Healthy) << "the knob follows the start";
    const Lines written = linesAfter("SPI_ATTACH OK");
    ASSERT_EQ(written.size(), 8u);
    EXPECT_EQ(Lines(written.begin(), written.begin() + 4),
              (Lines{"Restoring whole flash: 1048576 bytes at 0x00000",
                     "FLASH_BEGIN addr=0x00000000 size=1048576 blocks=64 blockSize=16384",
                     "FLASH_BEGIN OK (erase complete)", "VERIFY addr=0x00000000 size=1048576"}));
    EXPECT_EQ(Lines(written.end() - 2, written.end()), (Lines{"VERIFY OK", "FLASH_END OK"}));
    EXPECT_EQ(progressCalls.size(), 64u);
    EXPECT_EQ(progressCalls.back(), std::pair(0.85f, std::string("Flashing")));

    EXPECT_EQ(update(1), ESP_STARTUP_BOOT_LOOP);
    plotter.config().startup = sim::Startup::Panic;
    EXPECT_EQ(restore(original), ESP_STARTUP_PANIC);
    EXPECT_EQ(update(2), ESP_STARTUP_PANIC);
}

// A failed write or check ends the restore with the flashing job's code, and no reset.
TEST_F(WholeFlashJobTest, AFailedRestoreStopsWithTheFlashingJobsCode) {
    const Bytes snapshot = [] {
        Bytes bytes = pattern(kMiB, 8);
        const Bytes header = bootloaderHeader(0);
        std::copy(header.begin(), header.end(), bytes.begin());
        return bytes;
    }();
    const std::pair<std::function<void(sim::Config&)>, esp_error_t> rows[] = {
        {[](auto& c) {
             c.responseFaults = {{esp::FLASH_DATA, 3, sim::FaultKind::ErrorStatus, 0x06}};
         },
         6},
        {[](auto& c) { c.wrongMd5At = 0; }, 7},
    };
    for (const auto& [change, code] : rows) {
        SCOPED_TRACE(code);
        sim::Config config;
        change(config);
        machine(0, config);
        EXPECT_EQ(esp::runRestoreJob(*port, snapshot.data(), snapshot.size(), stub.data(),
                                     stub.size(), nullptr, recordLog),
                  code);
        EXPECT_TRUE(device->endsWithoutReset());
    }
}

// A file that is not a snapshot is refused before the port is opened.
TEST(WholeFlashEntryPoints, RefuseWhatCannotBeReadOrWrittenBeforeOpeningThePort) {
    const Bytes stub = stubImage();
    const Bytes notASnapshot = pattern(kMiB + 1);
    esp_startup_report report;
    clearRecords();
    EXPECT_EQ(esp_restore_machine("/nonexistent/ttyACM0", notASnapshot.data(), notASnapshot.size(),
                                  stub.data(), stub.size(), nullptr, nullptr, recordLog, &report),
              6u);
    EXPECT_EQ(logLines, Lines{"Snapshot cannot be used: not a whole-flash snapshot (1,048,577 "
                              "bytes; a snapshot holds 1, 2, 4, 8 or 16 MiB)"});
    EXPECT_EQ(report.listened, 0);
    clearRecords();
    EXPECT_EQ(esp_restore_machine("/nonexistent/ttyACM0", nullptr, 5, stub.data(), stub.size(),
                                  nullptr, nullptr, recordLog, nullptr),
              6u);
    EXPECT_EQ(logLines, Lines{"Invalid argument: snapshot is null with length 5"});

    esp_snapshot_status status;
    clearRecords();
    EXPECT_EQ(esp_snapshot_machine("/nonexistent/ttyACM0", stub.data(), stub.size(), nullptr,
                                   nullptr, nullptr, recordLog, &status, &report),
              8u);
    EXPECT_EQ(logLines, Lines{"Invalid argument: sink is null"});
    EXPECT_EQ(std::tuple(status.end, status.size, status.received, report.listened),
              std::tuple(int{ESP_SNAPSHOT_INVALID_ARGUMENTS}, uint64_t{0}, uint64_t{0}, 0));
}

}  // namespace
