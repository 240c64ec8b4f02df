#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"
#include "tests/api/JobSupport.h"
#include "tests/support/Descriptors.h"
#include "tests/support/HoldingProcess.h"
#include "tests/support/Records.h"
#include "tests/support/TestImages.h"
#include "tests/support/Unprivileged.h"

// Every entry point of the shared library against a healthy plotter and against ports
// that cannot be opened; plotters that do what no healthy one does, and other
// programs on the plotter's port. Over real pseudo-terminals and the real clock.
namespace {

using namespace std::chrono_literals;
using namespace fdcheck;
using namespace records;
using Clock = std::chrono::steady_clock;
using Lines = std::vector<std::string>;

const std::vector<uint8_t> firmware = testimg::pattern(40000, 3);
const std::vector<uint8_t> stub = testimg::stubImage();

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

esp_error_t flash(const std::string& path, const uint8_t* image = firmware.data(),
                  size_t imageLen = firmware.size(), const uint8_t* stubImage = stub.data(),
                  const char* expectedVersion = nullptr, esp_log_cb log = recordLog) {
    return esp_flash_firmware(path.c_str(), image, imageLen, nullptr, 0, nullptr, 0, nullptr, 0,
                              stubImage, stub.size(), 0, 0, expectedVersion, nullptr, log);
}

esp_error_t upload(const std::string& path, const uint8_t* data = firmware.data(),
                   esp_log_cb log = recordLog) {
    return esp_upload_config(path.c_str(), data, firmware.size(), nullptr, log);
}

std::string queryVersion(const std::string& path) {
    char* version = esp_query_version(path.c_str());
    const std::string text = version != nullptr ? version : "null";
    std::free(version);
    return text;
}

// What each job does is checked at the job level and by the application's tests,
// which drive these entry points; here, one after another on one plotter, that no
// job leaves a descriptor behind.
TEST(EntryPoint, EveryJobAgainstOnePlotterLeavesNoDescriptor) {
    const auto bootloader = testimg::pattern(20000, 2);
    const auto partitions = jobtest::partitionTable("dA" + std::string(94, '-'));
    const auto bootApp = testimg::pattern(8192, 4);
    sim::Config config;
    config.versionReport = "2.10.6 (sim)";
    sim::PtyPlotter device(config);
    const char* path = device.path().c_str();
    const size_t descriptors = fdcheck::openDescriptorCount();
    EXPECT_EQ(esp_flash_firmware(path, firmware.data(), firmware.size(), bootloader.data(),
                                 bootloader.size(), partitions.data(), partitions.size(),
                                 bootApp.data(), bootApp.size(), stub.data(), stub.size(), 1, 0,
                                 "2.10.6", nullptr, nullptr),
              0u);
    EXPECT_EQ(queryVersion(path), "2.10.6 (sim)");
    EXPECT_EQ(esp_upload_config(path, bootApp.data(), 100, nullptr, nullptr), 0u);
    uint8_t* data = nullptr;
    size_t length = 0;
    EXPECT_EQ(esp_download_file(path, "config.yaml", &data, &length, nullptr, nullptr, nullptr),
              0u);
    EXPECT_EQ(length, 100u);
    std::free(data);
    // Last: the probe leaves the chip in its loader.
    EXPECT_EQ(esp_probe_partition_table(path, stub.data(), stub.size()), 1);
    EXPECT_EQ(fdcheck::openDescriptorCount(), descriptors);
}

// A missing node, and a regular file that nobody else holds: it opens but has no
// terminal attributes, so the calls fail after the descriptor was taken, the path
// where a leak would hide.
TEST(EntryPoint, PortsThatCannotBeOpenedFailEveryCallAndLeaveNoDescriptor) {
    char notATerminal[] = "/tmp/tfu-not-a-terminal-XXXXXX";
    ::close(::mkstemp(notATerminal));
    const size_t descriptors = fdcheck::openDescriptorCount();
    for (const std::string& path :
         {std::string("/nonexistent/ttyACM0"), std::string(notATerminal)}) {
        SCOPED_TRACE(path);
        for (int i = 0; i < 50; ++i) {
            clearRecords();
            ASSERT_EQ(esp_flash_firmware(path.c_str(), firmware.data(), firmware.size(), nullptr, 0,
                                         nullptr, 0, nullptr, 0, stub.data(), stub.size(), 0, 0,
                                         "2.10.6", recordProgress, recordLog),
                      2u);
            ASSERT_EQ(logLines, (Lines{"Opening port: " + path, "Failed to open port"}));
            ASSERT_EQ(
                esp_upload_config(path.c_str(), firmware.data(), 10, recordProgress, recordLog),
                2u);
            ASSERT_EQ(queryVersion(path), "null");
            ASSERT_EQ(esp_probe_partition_table(path.c_str(), stub.data(), stub.size()), -1);
            ASSERT_EQ(logLines.size(), 2u);
            uint8_t* data = nullptr;
            size_t length = 1;
            esp_download_status status{};
            ASSERT_EQ(esp_download_file(path.c_str(), "config.yaml", &data, &length, recordProgress,
                                        recordLog, &status),
                      2u);
            ASSERT_EQ(status.failure, ESP_DOWNLOAD_PORT_NOT_OPENED);
            ASSERT_EQ(length, 0u);
            ASSERT_EQ(logLines.back(), "Failed to open port");
            ASSERT_TRUE(progressCalls.empty());
        }
    }
    EXPECT_EQ(fdcheck::openDescriptorCount(), descriptors);
    ::unlink(notATerminal);
}

// Runs `call` against a fresh plotter set up by `configure`: it must come to `outcome`
// within `boundS` seconds and leave nothing open on the port.
void expectWithin(const std::function<void(sim::Config&)>& configure,
                  const std::function<std::string(const std::string&)>& call,
                  const std::string& outcome, double boundS, int row = __builtin_LINE()) {
    const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
    sim::Config config;
    configure(config);
    auto plotter = std::make_unique<sim::PtyPlotter>(config);
    const std::string path = plotter->path();
    const auto start = Clock::now();
    EXPECT_EQ(call(path), outcome);
    EXPECT_LT(secondsSince(start), boundS);
    plotter.reset();
    EXPECT_EQ(descriptorsOn(path), 0u) << "the job left its port open";
}

std::string flashCode(const std::string& path) {
    return std::to_string(flash(path));
}

std::string uploadCode(const std::string& path) {
    return std::to_string(upload(path));
}

// A firmware stuck printing status lines never leaves the gap that ends "read until
// nothing arrives"; each call ends by the drain bound and its own time-outs.
// Bounds: settle, 2 s per bounded drain, time-outs, and 1.5 s to spare.
TEST(MisbehavingDevice, FloodingConsoleEndsEveryCallWithinItsBound) {
    const auto flood = [](sim::Config& c) { c.floodConsole = true; };
    expectWithin(flood, queryVersion, "null", 0.5 + 2 + 2 + 1.5);
    expectWithin(flood, uploadCode, "8", 0.5 + (2 + 2) + 2 + 1.5);
    expectWithin(
        flood,
        [](auto& path) {
            const auto code = flash(path, firmware.data(), firmware.size(), stub.data(), "2.10.6");
            return std::to_string(code) + ", " + logLines.back();
        },
        "0, Could not confirm firmware version after update.", 2 + 2 + 3 * (2 + 2) + 2 * 1 + 1.5);
}

// The cable is pulled in the middle of a job. The simulator closes its side, the
// line hangs up, and the step that was waiting runs into its time-out.
// Bounds: settle, reset and exchanges, then the time-out of the waiting step.
TEST(MisbehavingDevice, UnpluggedMidJobFailsWithinTheStepTimeOutAndReleasesThePort) {
    expectWithin([](auto& c) { c.goneAfterFlashData = 2; }, flashCode, "6", 10.0 + 5.0);
    expectWithin([](auto& c) { c.goneAtMd5 = 0; }, flashCode, "7", 10.0 + 5.0);
    expectWithin([](auto& c) { c.goneAfterXModemBlocks = 2; }, uploadCode, "8", 7.5 + 5.0);
}

// In a child process, so that a crash fails the case rather than the test program.
// Exactly the one line is logged: the port was never opened.
TEST(MisbehavingDevice, NullBufferWithALengthIsRefusedBeforeThePortOpens) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const esp_log_cb logToStderr = [](const char* line) { std::fprintf(stderr, "%s\n", line); };
    sim::PtyPlotter plotter;
    const std::string path = plotter.path();
    // The buffer, the call, its result and what it logs.
    const std::tuple<const char*, std::function<int()>, int, std::string> cases[] = {
        {"firmware", [&] { return int(flash(path, nullptr, 20000, stub.data(), {}, logToStderr)); },
         6, "Invalid argument: firmware is null with length 20000\n"},
        {"stub", [&] { return int(flash(path, firmware.data(), 1, nullptr, {}, logToStderr)); }, 5,
         "Invalid argument: stub is null with length 140\n"},
        {"configuration", [&] { return int(upload(path, nullptr, logToStderr)); }, 8,
         "Invalid argument: data is null with length 40000\n"},
        {"probe stub", [&] { return esp_probe_partition_table(path.c_str(), nullptr, 140); }, -1,
         ""},
    };
    const auto untouched = [&] {
        bool empty = false;
        plotter.inspect([&](const sim::Plotter& p) { empty = p.transcript().empty(); });
        return empty;
    };
    for (const auto& [buffer, call, result, logged] : cases) {
        SCOPED_TRACE(buffer);
        EXPECT_EXIT(std::_Exit(call() == result && untouched() ? 0 : 1),
                    ::testing::ExitedWithCode(0), "^" + logged + "$");
    }
}

TEST(SharedPort, PortThatAnotherProcessHoldsIsNotOpened) {
    sim::PtyPlotter plotter;
    const HoldingProcess holder(plotter.path());
    const std::string inUse = "Port is in use by sleep (pid " + std::to_string(holder.pid) + ")";
    logLines.clear();
    EXPECT_EQ(flash(plotter.path()), 2u);
    EXPECT_EQ(logLines, (Lines{"Opening port: " + plotter.path(), inUse, "Failed to open port"}));
    logLines.clear();
    EXPECT_EQ(upload(plotter.path()), 2u);
    EXPECT_EQ(logLines, (Lines{inUse, "Failed to open port"}));
    EXPECT_EQ(queryVersion(plotter.path()), "null");
    EXPECT_EQ(esp_probe_partition_table(plotter.path().c_str(), stub.data(), stub.size()), -1);
    plotter.inspect([](const sim::Plotter& p) { EXPECT_EQ(p.transcript(), Lines{}); });
}

TEST(SharedPort, SecondOpenDuringAJobFailsWithEbusyForAnUnprivilegedProcess) {
    sim::Config config;
    config.silentConsole = true;  // the version query waits out its 2 s
    sim::PtyPlotter plotter(config);
    ASSERT_EQ(::chmod(plotter.path().c_str(), 0666), 0);
    const char* node = plotter.path().c_str();
    auto openAsOther = [node] {
        return std::to_string(::open(node, O_RDWR | O_NOCTTY | O_NONBLOCK) >= 0 ? 0 : errno);
    };
    std::thread job([&] { queryVersion(plotter.path()); });
    for (int i = 0; i < 100 && descriptorsOn(plotter.path()) < 2; ++i) {
        std::this_thread::sleep_for(10ms);
    }
    std::this_thread::sleep_for(100ms);  // past the open sequence, within the 500 ms settle
    EXPECT_EQ(runUnprivileged(openAsOther), std::to_string(EBUSY));
    job.join();
    EXPECT_EQ(runUnprivileged(openAsOther), "0") << "still exclusive after the job";
}

// A node that another descriptor keeps alive keeps its exclusivity flag across
// closes; the simulator holds its side open, so every job finds the same node.
TEST(SharedPort, TwoJobsInARowOnOnePseudoTerminalAsAnUnprivilegedUser) {
    const std::string failed = runUnprivileged([] {
        sim::PtyPlotter plotter;
        int failedJobs = 0;
        for (const int job : {1, 2}) {
            failedJobs |= queryVersion(plotter.path()) == "null" ? job : 0;
        }
        return std::to_string(failedJobs);
    });
    EXPECT_EQ(failed, "0") << "1: the first job failed, 2: the second, 3: both";
}

}  // namespace
