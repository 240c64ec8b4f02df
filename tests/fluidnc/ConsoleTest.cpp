#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "fluidnc/Console.h"
#include "fluidnc/Drain.h"
#include "fluidnc/Transcript.h"
#include "serial/Clock.h"
#include "tests/support/VirtualTime.h"

namespace {

// A firmware console over loopback: one chunk per read, so lines arrive split.
class FakeConsole {
  public:
    std::deque<std::string> pending;  // waiting to be read, before any command
    std::vector<std::string> answer;  // chunks queued when "$I\n" arrives
    std::string written;

    void attach(SerialPort& port) {
        port.openLoopback(
            [this](const uint8_t* data, size_t len) {
                written.append(reinterpret_cast<const char*>(data), len);
                if (written.ends_with("$I\n")) {
                    pending.insert(pending.end(), answer.begin(), answer.end());
                }
                return std::vector<uint8_t>{};
            },
            [this](int timeoutMs) {
                if (pending.empty()) {
                    mono::sleepMs(timeoutMs);
                    return std::vector<uint8_t>{};
                }
                std::vector<uint8_t> chunk(pending.front().begin(), pending.front().end());
                pending.pop_front();
                return chunk;
            });
    }
};

struct VersionCase {
    std::vector<std::string> answer;
    std::optional<std::string> expected;
    std::deque<std::string> stale = {};
    int64_t ms = 50;  // the drain's empty 50 ms read, then the answer at once
    int timeoutMs = 2000;
};

void PrintTo(const VersionCase& c, std::ostream* os) {
    *os << ::testing::PrintToString(c.answer) << " within " << c.timeoutMs << " ms";
}

class QueryVersionTest : public ::testing::TestWithParam<VersionCase> {};

TEST_P(QueryVersionTest, CutsTheVersionFromTheReport) {
    FakeConsole console;
    console.answer = GetParam().answer;
    console.pending = GetParam().stale;
    SerialPort port;
    console.attach(port);
    const int64_t start = mono::nowNs();
    EXPECT_EQ(fluidnc::queryVersion(port, GetParam().timeoutMs), GetParam().expected);
    EXPECT_NEAR(virtualMsSince(start), GetParam().ms, 1);
    EXPECT_EQ(console.written, "$I\n");
}

INSTANTIATE_TEST_SUITE_P(
    Reports, QueryVersionTest,
    ::testing::Values(VersionCase{{"[VER:1.2 build 7:]\r\n", "ok\r\n"}, "1.2 build 7"},
                      VersionCase{{"[VER:2.0:extra]\n"}, "2.0"},
                      VersionCase{{"[VER:2.0]\n"}, "2.0"}, VersionCase{{"[VER:a:b:c]\n"}, "a:b"},
                      VersionCase{{"[VER:]\n", "ok\n"}, ""},
                      VersionCase{{"[MSG:INFO] [VER:3.1:x] ok\n"}, "3.1"},
                      VersionCase{{"[VER:2.", "10.6:build", " 42]\r\n"}, "2.10.6"},
                      VersionCase{{"[VER:1.5:no line feed]"}, "1.5", {}, 50 + 500},
                      VersionCase{{"OK\n", "error:3\n", "[VER:1.1]\n"}, "1.1"},
                      VersionCase{{"ok\n", "[VER:1.0]\n"}, std::nullopt},
                      VersionCase{{"[VER:3.1\n", "[OPT:x]\n", "ok\n", "[VER:9.9]\n"}, std::nullopt},
                      VersionCase{{"boot text\n", "look\n", "[VER:4.0]\n"}, std::nullopt},
                      VersionCase{{"[VER:2.1:new]\n"}, "2.1", {"[VER:0.9:old]\n", "ok\n"}},
                      VersionCase{{""}, std::nullopt, {}, 50 + 2000},
                      VersionCase{{"[VER:1.0]\n"}, std::nullopt, {}, 50, 0}));

TEST(WaitForOk, EndsOnALineContainingOkOrAtTheDeadline) {
    FakeConsole console;
    console.pending = {"OK\r\n", "error:9\n", "lo", "oking\r\nnext"};
    SerialPort port;
    console.attach(port);
    fluidnc::waitForOk(port, 5000);
    uint8_t rest[8] = {};
    ASSERT_EQ(port.read(rest, sizeof rest, 50), 4u) << "reads no further than the line";

    console.pending = {"OK\n", "o", "\n", "k\n"};
    const int64_t start = mono::nowNs();
    fluidnc::waitForOk(port, 5000);
    EXPECT_NEAR(virtualMsSince(start), 5000, 1);
    EXPECT_TRUE(console.pending.empty());

    console.pending = {"ok\n"};
    fluidnc::waitForOk(port, 0);
    EXPECT_EQ(console.pending.size(), 1u) << "no time, no read";
}

// The start-up transcript: what the drain swallows, the lines the query skips and its
// answer; the replay of the start-up messages up to the console's own "ok"; a listen
// that sends nothing and ends at its deadline.
TEST(ConsoleTranscript, KeepsEveryByteTheConsoleReads) {
    FakeConsole console;
    SerialPort port;
    console.attach(port);
    const auto kept = [](const fluidnc::Transcript& t) {
        const auto bytes = t.bytes();
        return std::string(bytes.begin(), bytes.end());
    };
    fluidnc::Transcript transcript;
    console.pending = {"rst:0x15\r\n", "boot"};
    console.answer = {"[MSG:INFO: x]\n", "[VER:1.0]\n", "ok\n"};
    EXPECT_EQ(fluidnc::queryVersion(port, 2000, &transcript), "1.0");
    EXPECT_EQ(kept(transcript), "rst:0x15\r\nboot[MSG:INFO: x]\n[VER:1.0]\n");

    fluidnc::Transcript replay;
    console.pending = {"[MSG:INFO: lookup ok]\r\n", "[MSG:ERR: x]\nok\r\n", "later"};
    fluidnc::replayStartup(port, 1500, replay);
    EXPECT_EQ(kept(replay), "[MSG:INFO: lookup ok]\r\n[MSG:ERR: x]\nok\r\n");
    EXPECT_EQ(console.written, "$I\n$SS\n");

    fluidnc::Transcript heard;
    console.written.clear();
    const int64_t start = mono::nowNs();
    fluidnc::listen(port, 2000, heard);
    EXPECT_NEAR(virtualMsSince(start), 2000, 1);
    EXPECT_EQ(kept(heard), "later");
    EXPECT_EQ(console.written, "");
}

// A drain ends at 64 KiB or after 2 s of unbroken input, whichever comes first:
// `queued` bytes wait in the port, then the console prints a byte every 10 ms
// until `printingMs`. Whether input is left shows where the drain stopped.
TEST(Drain, EndsAt64KiBOrAfterTwoSecondsOfUnbrokenInput) {
    const struct {
        size_t queued;
        int64_t printingMs;
        bool leftOver;
    } rows[] = {{64 * 1024, 0, false}, {64 * 1024 + 1, 0, true}, {0, 1990, false}, {0, 2010, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.queued << " bytes, printing " << row.printingMs);
        const int64_t start = mono::nowNs();
        SerialPort port;
        port.openLoopback([&](const uint8_t*, size_t) { return std::vector<uint8_t>(row.queued); },
                          [&](int timeoutMs) {
                              const bool printing = virtualMsSince(start) < row.printingMs;
                              mono::sleepMs(printing ? 10 : timeoutMs);
                              return std::vector<uint8_t>(printing ? 1 : 0);
                          });
        port.write(nullptr, 0);
        fluidnc::drainInput(port, 256, 500);
        uint8_t byte = 0;
        EXPECT_EQ(port.read(&byte, 1, 100) == 1, row.leftOver);
    }
}

}  // namespace
