#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "JobSupport.h"
#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

// The whole-flash entry points of the shared library, over a pseudo-terminal in real time.
namespace {

using namespace jobtest;

constexpr size_t kMiB = 1024 * 1024;

int keep(void* context, const uint8_t* data, size_t length) {
    auto& bytes = *static_cast<Bytes*>(context);
    bytes.insert(bytes.end(), data, data + length);
    return 0;
}

// A machine with a 1 MiB flash: its snapshot, a write that spoils part of it, and the
// snapshot written back; the stub behind the pseudo-terminal sends several packets
// ahead, as the host asks.
TEST(WholeFlashEntryPoints, SnapshotAndRestoreOverAPseudoTerminal) {
    sim::Config config;
    config.readSendsAhead = true;
    sim::PtyPlotter plotter(config);
    plotter.modify([](sim::Plotter& p) {
        p.loadFlash(0, bootloaderHeader(0));
        p.loadFlash(0x8000, partitionTable("dA"));
        p.loadFlash(0x10000, pattern(0x20000, 4));
    });
    const Bytes stub = stubImage();
    Bytes snapshot;
    esp_snapshot_status status;
    esp_startup_report report;
    clearRecords();
    ASSERT_EQ(esp_snapshot_machine(plotter.path().c_str(), stub.data(), stub.size(), keep,
                                   &snapshot, recordProgress, recordLog, &status, &report),
              0u);
    EXPECT_EQ(std::tuple(status.end, status.size, status.received),
              std::tuple(int{ESP_SNAPSHOT_DONE}, uint64_t{kMiB}, uint64_t{kMiB}));
    EXPECT_EQ(std::tuple(report.listened, report.verdict), std::tuple(1, int{ESP_STARTUP_RUNNING}));
    esp_startup_report_free(&report);
    plotter.inspect([&](const sim::Plotter& p) {
        EXPECT_TRUE(std::equal(snapshot.begin(), snapshot.end(), p.flash().begin()));
    });

    plotter.modify([](sim::Plotter& p) { p.loadFlash(0x9000, pattern(0x8000, 9)); });
    clearRecords();
    ASSERT_EQ(
        esp_restore_machine(plotter.path().c_str(), snapshot.data(), snapshot.size(), stub.data(),
                            stub.size(), "3.7.8", recordProgress, recordLog, &report),
        0u);
    EXPECT_EQ(std::tuple(report.listened, report.verdict), std::tuple(1, int{ESP_STARTUP_RUNNING}));
    esp_startup_report_free(&report);
    plotter.inspect([&](const sim::Plotter& p) {
        EXPECT_TRUE(std::equal(snapshot.begin(), snapshot.end(), p.flash().begin()));
    });
    EXPECT_EQ(logLines.front(), "Opening port: " + plotter.path());
}

}  // namespace
