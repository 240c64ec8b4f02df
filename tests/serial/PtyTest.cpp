#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "PtySupport.h"
#include "serial/SerialPort.h"

namespace {

using Clock = std::chrono::steady_clock;

class PosixPort : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(port.open(pty.path)); }
    Pty pty;
    SerialPort port;
    uint8_t buf[256] = {};
};

TEST_F(PosixPort, ReadsOneReadsWorthAndNothingWithoutTime) {
    pty.send("abc");
    EXPECT_EQ(port.read(buf, sizeof buf, 0), 0u);
    EXPECT_EQ(port.read(buf, sizeof buf, -1), 0u);
    const auto start = Clock::now();
    ASSERT_EQ(port.read(buf, sizeof buf, 1000), 3u);
    EXPECT_LT(msSince(start), 500);
    EXPECT_EQ(std::string(buf, buf + 3), "abc");

    pty.send("stale");
    port.flush();
    EXPECT_EQ(port.read(buf, sizeof buf, 1), 0u);
}

TEST_F(PosixPort, SilentDeviceTimesOut) {
    const auto start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 150), 0u);
    EXPECT_GE(msSince(start), 140);
    EXPECT_LT(msSince(start), 1000);
}

TEST_F(PosixPort, WritesReachTheDeviceAndModemLinesAreRefused) {
    EXPECT_TRUE(port.write(nullptr, 0));
    EXPECT_EQ(pty.poll(0), 0);
    EXPECT_TRUE(port.write(std::vector<uint8_t>(100, 'Z')));
    ASSERT_TRUE(pty.poll(200) & POLLIN);
    char got[200];
    EXPECT_EQ(::read(pty.master, got, sizeof got), 100);
    // A pseudo-terminal has no modem-control lines: the driver refuses TIOCMGET.
    EXPECT_FALSE(port.setDTR(true));
    EXPECT_FALSE(port.setRTS(false));
}

TEST_F(PosixPort, ReopenClosesTheFirstDeviceAndAFailedOpenLeavesItClosed) {
    ::close(pty.slave);
    pty.slave = -1;
    EXPECT_FALSE(pty.poll(0) & POLLHUP);
    Pty second;
    ASSERT_TRUE(port.open(second.path));
    EXPECT_TRUE(pty.poll(0) & POLLHUP);
    EXPECT_FALSE(port.open("/dev/does-not-exist-tfu"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(port.write(buf, 1));
    EXPECT_EQ(port.read(buf, 1, 50), 0u);
    EXPECT_FALSE(port.setDTR(true));
    port.flush();
}

}  // namespace
