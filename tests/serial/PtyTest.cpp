#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <string>
#include <thread>
#include <tuple>
#include <utility>

#include "serial/PosixImpl.h"

// Link seam (--wrap=read and --wrap=write, set in CMakeLists.txt). In raw mode with
// VMIN = VTIME = 0 a terminal never sleeps inside read(), and the port writes
// without blocking, so no real signal makes those two calls fail with EINTR; a
// flag set here makes the next one fail so, once, to reach the port's retry.
std::atomic<bool> interruptNextRead{false};
std::atomic<bool> interruptNextWrite{false};

extern "C" ssize_t __real_read(int fd, void* buf, size_t n);
extern "C" ssize_t __real_write(int fd, const void* buf, size_t n);

static bool interrupted(std::atomic<bool>& next) {
    const bool now = next.exchange(false);
    errno = now ? EINTR : errno;
    return now;
}

extern "C" ssize_t __wrap_read(int fd, void* buf, size_t n) {
    return interrupted(interruptNextRead) ? -1 : __real_read(fd, buf, n);
}

extern "C" ssize_t __wrap_write(int fd, const void* buf, size_t n) {
    return interrupted(interruptNextWrite) ? -1 : __real_write(fd, buf, n);
}

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Bytes = std::vector<uint8_t>;

// The slave side stands in for the device node, left in the line discipline a new
// terminal starts with (canonical, echo, signals, CR/NL translation): only the port
// may make it raw. The test plays the device on the master.
struct Pty {
    Pty() {
        char name[128];
        EXPECT_EQ(openpty(&master, &slave, name, nullptr, nullptr), 0);
        path = name;
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
    // What the port wrote, gathered until `size` bytes came or the line stayed quiet.
    std::string received(size_t size) const {
        std::string got;
        char chunk[4096];
        while (got.size() < size && (poll(1000) & POLLIN)) {
            got.append(chunk,
                       static_cast<size_t>(std::max<ssize_t>(::read(master, chunk, 4096), 0)));
        }
        return got;
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

TEST(PosixPortOpen, MakesATerminalInItsDefaultDisciplineRaw) {
    Pty pty;
    SerialPort port;
    termios tio{};
    tcgetattr(pty.slave, &tio);
    tio.c_cflag |= CRTSCTS;
    cfsetspeed(&tio, B9600);
    tio.c_cc[VMIN] = 1;
    tio.c_cc[VTIME] = 5;
    tcsetattr(pty.slave, TCSANOW, &tio);
    ASSERT_TRUE(port.open(pty.path));

    ASSERT_EQ(tcgetattr(pty.slave, &tio), 0);
    EXPECT_EQ(tio.c_lflag & (ICANON | ECHO | ECHONL | ISIG | IEXTEN), 0u);
    EXPECT_EQ(tio.c_iflag & (ICRNL | INLCR | IGNCR | IXON | ISTRIP | BRKINT | PARMRK), 0u);
    EXPECT_EQ(tio.c_oflag & OPOST, 0u);
    EXPECT_EQ(tio.c_cflag & (CSIZE | PARENB | CLOCAL | CREAD | CRTSCTS), CS8 | CLOCAL | CREAD);
    EXPECT_EQ(std::pair(cfgetispeed(&tio), cfgetospeed(&tio)),
              std::pair(speed_t{B115200}, speed_t{B115200}));
    EXPECT_EQ(std::pair(tio.c_cc[VMIN], tio.c_cc[VTIME]), std::pair(cc_t{0}, cc_t{0}));

    // Return, interrupt, erase, end of file: data like any other byte, none echoed.
    const std::string control = "\r\x03\x7f\x04\n";
    pty.send(control);
    uint8_t got[16];
    EXPECT_EQ(std::string(got, got + port.read(got, sizeof got, 1000)), control);
    EXPECT_TRUE(port.write(Bytes{'o', 'k', '\n'}));
    EXPECT_EQ(pty.received(3), "ok\n");
}

TEST(ModemLines, SettingOneLineKeepsEveryOtherBit) {
    const std::tuple<int, int, bool, int> rows[] = {
        {0x004, TIOCM_DTR, true, 0x006}, {0x006, TIOCM_DTR, false, 0x004},
        {0x002, TIOCM_RTS, true, 0x006}, {0x166, TIOCM_RTS, false, 0x162},
        {0x002, TIOCM_DTR, true, 0x002},
    };
    for (const auto& [before, line, level, after] : rows) {
        EXPECT_EQ(withModemLine(before, line, level), after)
            << std::hex << "0x" << before << (line == TIOCM_DTR ? " DTR " : " RTS ") << level;
    }
}

TEST_F(PosixPort, ReadsOneReadsWorthWritesAllRefusesModemLinesAndClosesOnReopen) {
    pty.send("abc");
    EXPECT_EQ(port.read(buf, sizeof buf, 0), 0u);
    EXPECT_EQ(port.read(buf, sizeof buf, -1), 0u);
    auto start = Clock::now();
    ASSERT_EQ(port.read(buf, sizeof buf, 1000), 3u);
    EXPECT_LT(msSince(start), 500);
    EXPECT_EQ(std::string(buf, buf + 3), "abc");
    pty.send("stale");
    port.flush();
    start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 150), 0u);
    EXPECT_GE(msSince(start), 140);
    EXPECT_LT(msSince(start), 1000);

    EXPECT_TRUE(port.write(nullptr, 0));
    EXPECT_EQ(pty.poll(0), 0);
    EXPECT_TRUE(port.write(Bytes(100, 'Z')));
    EXPECT_EQ(pty.received(100), std::string(100, 'Z'));
    // A pseudo-terminal has no modem-control lines: the driver refuses TIOCMGET.
    EXPECT_FALSE(port.setDTR(true));
    EXPECT_FALSE(port.setRTS(false));

    ::close(std::exchange(pty.slave, -1));
    EXPECT_FALSE(pty.poll(0) & POLLHUP);
    EXPECT_FALSE(port.open("/dev/does-not-exist-tfu"));
    EXPECT_TRUE(pty.poll(0) & POLLHUP) << "an open closes the device held before";
    EXPECT_FALSE(port.isOpen() || port.write(buf, 1));
}

TEST_F(PosixPort, InterruptedReadAndWriteAreRetried) {
    pty.send("abc");
    interruptNextRead = true;
    ASSERT_EQ(port.read(buf, sizeof buf, 1000), 3u);
    EXPECT_EQ(std::string(buf, buf + 3), "abc");
    EXPECT_FALSE(interruptNextRead) << "the read never reached read()";
    interruptNextWrite = true;
    EXPECT_TRUE(port.write(Bytes{'x', 'y', 'z'}));
    EXPECT_FALSE(interruptNextWrite) << "the write never reached write()";
    EXPECT_EQ(pty.received(3), "xyz");
}

// Closing the master hangs the slave up, as pulling the cable does to a USB port:
// from then on the line reports itself readable at once and for ever, and the port
// tells that it hung up.
TEST_F(PosixPort, ReadOnAHungUpLineReturnsNothingOnlyAtItsTimeOut) {
    std::thread unplug([this] {
        std::this_thread::sleep_for(200ms);
        ::close(std::exchange(pty.master, -1));
    });
    EXPECT_FALSE(port.hungUp());
    auto start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 1000), 0u);
    EXPECT_GE(msSince(start), 990) << "hung up during the wait";
    EXPECT_TRUE(port.hungUp()) << "noted by the read";
    unplug.join();

    start = Clock::now();
    EXPECT_EQ(port.read(buf, sizeof buf, 300), 0u);
    EXPECT_GE(msSince(start), 295) << "hung up before the read";
    EXPECT_FALSE(port.write(buf, 1));
}

}  // namespace
