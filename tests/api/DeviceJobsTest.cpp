#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "JobSupport.h"
#include "api/Jobs.h"
#include "esp/Packet.h"

namespace {

using namespace jobtest;
using Prepare = std::function<void(WatchedPlotter&)>;

class DeviceJobsTest : public ::testing::Test {
  protected:
    void SetUp() override { clearRecords(); }

    // A fresh plotter set up by `setup`, connected to `port` with `stale` waiting.
    WatchedPlotter& device(
        const Prepare& setup = [](auto&) {}, const Bytes& stale = {}) {
        auto& watched = devices.emplace_back(std::make_unique<WatchedPlotter>());
        setup(*watched);
        watched->connect(port, stale);
        return *watched;
    }

    std::vector<std::unique_ptr<WatchedPlotter>> devices;
    SerialPort port;
};

TEST_F(DeviceJobsTest, UploadFailuresReturn8WithoutRestart) {
    const auto file = pattern(5000, 5);
    for (const Prepare& fault :
         {Prepare([](auto& d) { d.plotter.config().xmodemHandshake = false; }),
          Prepare([](auto& d) { d.plotter.config().xmodemCanBlock = 2; })}) {
        const auto& watched = device(fault);
        EXPECT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), nullptr), 8u);
        EXPECT_FALSE(watched.plotter.storedConfig().has_value());
        EXPECT_NE(watched.plotter.transcript().back(), "$Bye");
    }
}

// Within the few milliseconds by which read loops stop short of their deadlines:
// settle 500 ms, drain 50 ms, "$I" (2 s to answer), "$Xmodem...", a drain of 500 ms
// that swallows the receiver's first request (200 ms after the command), its next
// one a second later, the blocks, 5 s for an "ok" that never comes, "$Bye", 500 ms.
// Stale "ok" lines, more than two of the console's bounded drains (64 KiB each)
// can swallow, must not end the query or the wait for "ok".
TEST_F(DeviceJobsTest, UploadKeepsItsWaitsAndDropsStaleConsoleOutput) {
    const std::string command = "$Xmodem/Receive=config.yaml";
    using Writes = std::vector<WatchedPlotter::Write>;
    const Writes answered = {
        {550, "$I"}, {550, command}, {1750, "block 1"}, {1750, "EOT"}, {6750, "$Bye"}};
    const Writes unanswered = {
        {550, "$I"}, {2550, command}, {3750, "block 1"}, {3750, "EOT"}, {8750, "$Bye"}};
    const Writes empty = {{550, "$I"}, {550, command}, {1750, "EOT"}, {6750, "$Bye"}};
    Bytes oks;
    for (int i = 0; i < 64 * 1024; ++i) {
        oks.insert(oks.end(), {'o', 'k', '\r', '\n'});
    }
    const auto file = pattern(700, 5);
    const struct {
        const char* name;
        bool answerVersion;
        Bytes afterVersion, stale, file;
        Writes writes;
    } cases[] = {
        {"version answered", true, {}, {}, file, answered},
        {"version unanswered", false, {}, {}, file, unanswered},
        {"stale output before the query", true, {}, oks, file, answered},
        {"stale output after the answer", true, oks, {}, file, answered},
        {"empty file", true, {}, {}, {}, empty},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto& watched = device(
            [&](WatchedPlotter& d) {
                d.plotter.config().handshakeFirstMs = 200;
                d.quietAfterUpload = true;
                d.answerVersion = c.answerVersion;
                d.afterVersion = c.afterVersion;
            },
            c.stale);
        clearRecords();
        ASSERT_EQ(esp::runUploadConfigJob(port, c.file.data(), c.file.size(), recordProgress), 0u);
        EXPECT_EQ(watched.plotter.storedConfig(), c.file);
        EXPECT_EQ(progressCalls.size(), c.file.empty() ? 0u : 1u);
        ASSERT_EQ(watched.writes.size(), c.writes.size()) << testing::PrintToString(watched.writes);
        for (size_t i = 0; i < c.writes.size(); ++i) {
            EXPECT_EQ(watched.writes[i].second, c.writes[i].second);
            EXPECT_NEAR(watched.writes[i].first, c.writes[i].first, 5) << c.writes[i].second;
        }
        EXPECT_NEAR(watched.elapsedMs(), c.writes.back().first + 500, 5);
    }
}

TEST_F(DeviceJobsTest, QueryVersionTellsAnEmptyVersionFromNoneWithinTwoSeconds) {
    device([](auto& d) { d.plotter.config().versionReport = ""; });
    EXPECT_EQ(esp::runQueryVersionJob(port), "");
    const auto& silent = device([](auto& d) { d.plotter.config().silentConsole = true; });
    EXPECT_EQ(esp::runQueryVersionJob(port), std::nullopt);
    EXPECT_NEAR(silent.elapsedMs(), 500 + 50 + 2000, 5);
}

// A configuration as the machine keeps it: text, so never ending in the 0x1A that
// XModem pads with.
Bytes configFile(size_t size) {
    auto file = pattern(size, 7);
    if (!file.empty()) {
        file.back() = '\n';
    }
    return file;
}

TEST_F(DeviceJobsTest, DownloadGivesBackTheUploadedBytes) {
    for (const auto& [crc, blockSize] : {std::pair{true, 1024}, {false, 1024}, {true, 128}}) {
        for (const size_t size : {0, 1, 1023, 1024, 1025, 70000}) {
            SCOPED_TRACE(testing::Message() << (crc ? "CRC " : "checksum ") << blockSize
                                            << "-byte blocks, " << size << " bytes");
            clearRecords();
            device([&](auto& d) {
                d.plotter.config().xmodemCrc = d.plotter.config().xmodemSendCrc = crc;
                d.plotter.config().xmodemSendBlockSize = static_cast<size_t>(blockSize);
            });
            const auto file = configFile(size);
            ASSERT_EQ(esp::runUploadConfigJob(port, file.data(), file.size(), nullptr), 0u);
            EXPECT_EQ(esp::runDownloadFileJob(port, "config.yaml", recordProgress, recordLog),
                      file);
            EXPECT_TRUE(logLines.empty());
            ASSERT_FALSE(progressCalls.empty());
            EXPECT_EQ(progressCalls.back(),
                      std::make_pair(1.0f, "Downloading config.yaml\u2026 " + std::to_string(size) +
                                               " bytes"));
        }
    }
}

// Each bound at its limit and one step past it: 25 transmissions of a block, 30
// transfer requests (the sender waits longer than that), 16 MiB of file. A failure
// is told by its log line and as data.
TEST_F(DeviceJobsTest, DownloadAsksAgainForLostBlocksAndEndsCleanlyOnFailure) {
    using Reason = fluidnc::DownloadFailure::Reason;
    const auto small = configFile(5000);
    // `failure` null: the file arrives whole.
    const auto expectDownload = [&](const std::function<void(sim::Config&)>& fault,
                                    const char* failure, fluidnc::DownloadFailure cause,
                                    const Bytes& file, int lostRequests = 0,
                                    int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        clearRecords();
        const auto& watched = device([&](auto& d) {
            d.plotter.config().machineConfig = std::string(file.begin(), file.end());
            d.plotter.config().xmodemIdleTimeoutMs = 40000;
            d.lostRequests = lostRequests;
            fault(d.plotter.config());
        });
        fluidnc::DownloadFailure told;
        const auto downloaded =
            esp::runDownloadFileJob(port, "config.yaml", nullptr, recordLog, &told);
        EXPECT_EQ(watched.writes.front().second, "$I") << "after the settle and a drain";
        EXPECT_NEAR(watched.writes.front().first, 550, 5);
        EXPECT_EQ(downloaded, failure ? std::nullopt : std::optional(file));
        EXPECT_EQ(logLines, failure ? Lines{failure} : Lines{});
        EXPECT_EQ(std::pair(told.reason, told.block), std::pair(cause.reason, cause.block));
    };
    const auto corrupt = [](int times) {
        return [times](sim::Config& c) {
            c.xmodemSendCorruptBlock = 2;
            c.xmodemSendCorruptTimes = times;
        };
    };
    const auto healthy = [](sim::Config&) {};
    const fluidnc::DownloadFailure none;
    expectDownload([](auto& c) { c.xmodemSendDropBlock = 3; }, nullptr, none, small);
    expectDownload([](auto& c) { c.xmodemSendRepeatBlock = 1; }, nullptr, none, small);
    expectDownload(corrupt(24), nullptr, none, small);
    expectDownload(corrupt(25), "XModem download: block 2 failed 25 times",
                   {Reason::blockFailed, 2}, small);
    expectDownload(healthy, nullptr, none, small, 29);
    expectDownload(healthy, "XModem download: no block received", {Reason::noBlock}, small, 30);
    expectDownload(healthy, nullptr, none, configFile(16 * 1024 * 1024));
    expectDownload(healthy, "XModem download: file larger than 16 MiB", {Reason::tooLarge},
                   configFile(16 * 1024 * 1024 + 1024));
    expectDownload([](auto& c) { c.xmodemSendCanBlock = 2; },
                   "XModem download: cancelled by the device", {Reason::cancelled}, small);
}

// The console takes every byte that reaches it while it waits for a line, the
// receiver's requests too; a sender keeps taking bytes until it is cancelled or
// gives up. Either way the next command must be understood.
TEST_F(DeviceJobsTest, AFailedDownloadLeavesTheConsoleUnderstandingTheNextCommand) {
    const std::pair<const char*, std::function<void(sim::Config&)>> faults[] = {
        {"never started", [](auto& c) { c.xmodemSendSilent = true; }},
        {"a block failed 25 times",
         [](auto& c) {
             c.xmodemSendCorruptBlock = 2;
             c.xmodemSendCorruptTimes = 100;
         }},
        {"cancelled by the sender", [](auto& c) { c.xmodemSendCanBlock = 2; }},
    };
    for (const auto& [name, fault] : faults) {
        SCOPED_TRACE(name);
        auto& watched = device([&](auto& d) {
            d.plotter.config().machineConfig = std::string(3000, '#');
            fault(d.plotter.config());
        });
        ASSERT_EQ(esp::runDownloadFileJob(port, "config.yaml", nullptr, nullptr), std::nullopt);
        EXPECT_EQ(esp::runQueryVersionJob(port), "FluidNC v3.7.8 (sim)");
        EXPECT_EQ(watched.plotter.transcript().back(), "$I");
    }
}

TEST(PartitionTable, NeedsAReachableApplicationEntryAt0x10000) {
    const std::pair<std::string, bool> cases[] = {
        {"ddA" + std::string(93, '-'), true},
        {"D", false},
        {"a", false},
        {"xA", false},
        {"d-A", false},
        {"d~", false},
        {std::string(127, 'd') + "A", true},
        {std::string(128, 'd') + "A", false},
        {"~", false},
    };
    for (const auto& [entries, valid] : cases) {
        const auto bytes = partitionTable(entries);
        EXPECT_EQ(esp::isPartitionTableValid(bytes.data(), bytes.size()), valid)
            << entries.substr(0, 8) << " (" << entries.size() << " entries)";
    }
    EXPECT_FALSE(esp::isPartitionTableValid(nullptr, 3072));
}

// The probe leaves the chip in its loader: it settles 500 ms first and never resets it.
TEST_F(DeviceJobsTest, ProbeReadsTheTableThroughTheStubWithoutAReset) {
    const auto stub = stubImage();
    const auto expectProbe = [&](const std::function<void(sim::Plotter&)>& setup, int expected,
                                 int row = __builtin_LINE()) {
        const ::testing::ScopedTrace trace(__FILE__, row, "in this row");
        const auto& watched = device([&](auto& d) { setup(d.plotter); });
        EXPECT_EQ(esp::runProbePartitionTableJob(port, stub.data(), stub.size()), expected);
        EXPECT_EQ(watched.firstActionMs, 500);
        EXPECT_TRUE(watched.endsWithoutReset());
    };
    const auto table = [](const char* entries, int syncFrom = 1) {
        return [=](sim::Plotter& p) {
            p.loadFlash(0x8000, partitionTable(entries));
            p.config().syncFromAttempt = syncFrom;
        };
    };
    expectProbe(table("dA"), 1);
    expectProbe(table("dD"), 0);
    expectProbe([](auto&) {}, 0);
    expectProbe(table("dA", 25), 1);
    expectProbe([](auto& p) { p.config().silent = true; }, -1);
    expectProbe([](auto& p) { p.config().greeting = false; }, -1);
    expectProbe(
        [](auto& p) {
            p.config().responseFaults = {{esp::READ_FLASH, 0, sim::FaultKind::Drop}};
        },
        -1);
}

}  // namespace
