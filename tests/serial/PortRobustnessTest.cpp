#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

#include "PtySupport.h"
#include "serial/SerialPort.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Closing the master hangs the slave up, as pulling the cable does to a USB port:
// from then on the line reports itself readable at once and for ever.
TEST(PortRobustness, ReadOnAHungUpLineReturnsNothingOnlyAtItsTimeOut) {
    Pty pty;
    SerialPort port;
    ASSERT_TRUE(port.open(pty.path));
    uint8_t buf[64];
    std::thread unplug([&] {
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

void readExactly(int fd, size_t count) {
    std::vector<char> sink(count);
    for (size_t got = 0; got < count;) {
        const ssize_t n = ::read(fd, sink.data() + got, count - got);
        ASSERT_GT(n, 0);
        got += static_cast<size_t>(n);
    }
}

// The stall limit counts from the last progress, not from the start of the write.
TEST(PortRobustness, WriteToASlowReaderOutlastsTheStallLimit) {
    constexpr size_t kTotal = 64 * 1024;
    constexpr size_t kFirstRead = 16 * 1024;
    Pty pty;
    SerialPort port;
    ASSERT_TRUE(port.open(pty.path));
    std::thread device([&] {
        std::this_thread::sleep_for(6s);
        readExactly(pty.master, kFirstRead);
        std::this_thread::sleep_for(6s);
        readExactly(pty.master, kTotal - kFirstRead);
    });
    const auto start = Clock::now();
    EXPECT_TRUE(port.write(std::vector<uint8_t>(kTotal, 'x')));
    EXPECT_GT(msSince(start), 11'000) << "the line took the bytes too fast to test anything";
    device.join();
}

// select() cannot watch a descriptor above 1023, and a long-running application
// with many open files may well get one for its port. Its fd_set overflow does not
// always crash; the sanitizer build catches it on the stack.
TEST(PortRobustness, PortOnADescriptorAbove1023) {
    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &saved), 0);
    if (saved.rlim_max < 1100) {
        GTEST_SKIP() << "the descriptor limit stops below 1100";
    }
    const rlimit raised{std::min<rlim_t>(saved.rlim_max, 2048), saved.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &raised), 0);
    Pty pty;
    std::vector<int> fillers;
    const int null = ::open("/dev/null", O_RDONLY);
    ASSERT_GE(null, 0);
    for (int fd = null; fd >= 0 && fd < 1023;) {
        fd = ::dup(null);
        fillers.push_back(fd);
    }
    {
        SerialPort port;
        ASSERT_TRUE(port.open(pty.path));
        pty.send("abc");
        uint8_t buf[16];
        EXPECT_EQ(port.read(buf, sizeof buf, 1000), 3u);
        EXPECT_TRUE(port.write(buf, 3));
        EXPECT_TRUE(pty.poll(1000) & POLLIN);
    }
    for (const int fd : fillers) {
        ::close(fd);
    }
    ::close(null);
    ::setrlimit(RLIMIT_NOFILE, &saved);
}

}  // namespace
