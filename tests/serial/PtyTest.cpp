#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include "serial/SerialPort.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// The slave side stands in for the device node; the test plays the device on the master.
struct Pty {
    Pty() {
        char name[128];
        EXPECT_EQ(openpty(&master, &slave, name, nullptr, nullptr), 0);
        path = name;
        termios tio{};
        tcgetattr(slave, &tio);
        cfmakeraw(&tio);
        tcsetattr(slave, TCSANOW, &tio);
    }
    ~Pty() {
        ::close(master);
        ::close(slave);
    }
    void send(const std::string& text) const {
        EXPECT_EQ(::write(master, text.data(), text.size()), static_cast<ssize_t>(text.size()));
        usleep(20'000);
    }
    short poll(int timeoutMs) const {
        pollfd p{master, POLLIN, 0};
        return ::poll(&p, 1, timeoutMs) > 0 ? p.revents : 0;
    }

    int master = -1;
    int slave = -1;
    std::string path;
};

double msSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

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

// Closing the master hangs the slave up, as pulling the cable does to a USB port:
// from then on the line reports itself readable at once and for ever.
TEST_F(PosixPort, ReadOnAHungUpLineReturnsNothingOnlyAtItsTimeOut) {
    std::thread unplug([this] {
        std::this_thread::sleep_for(200ms);
        ::close(std::exchange(pty.master, -1));
    });
    auto start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 1000), 0u);
    EXPECT_GE(msSince(start), 990) << "hung up during the wait";
    unplug.join();

    start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 300), 0u);
    EXPECT_GE(msSince(start), 295) << "hung up before the read";
    EXPECT_FALSE(port.write(buf, 1));
}

}  // namespace
