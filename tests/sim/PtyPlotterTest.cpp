#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>

#include "Wire.h"
#include "sim/PtyPlotter.h"

namespace {

using wire::Bytes;

int openRaw(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDWR | O_NOCTTY);
    if (fd >= 0) {
        termios attrs{};
        ::tcgetattr(fd, &attrs);
        ::cfmakeraw(&attrs);
        ::tcsetattr(fd, TCSANOW, &attrs);
    }
    return fd;
}

// Reads what arrives within `ms`, one read call per element.
std::vector<Bytes> readFor(int fd, int ms) {
    std::vector<Bytes> reads;
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
    while (std::chrono::steady_clock::now() < end) {
        pollfd p{fd, POLLIN, 0};
        if (::poll(&p, 1, 10) <= 0) {
            continue;
        }
        uint8_t buf[4096];
        const ssize_t n = ::read(fd, buf, sizeof buf);
        if (n <= 0) {
            break;
        }
        reads.emplace_back(buf, buf + n);
    }
    return reads;
}

Bytes joined(const std::vector<Bytes>& reads) {
    Bytes all;
    for (const auto& r : reads) {
        all.insert(all.end(), r.begin(), r.end());
    }
    return all;
}

TEST(SimPty, ServesConsoleAndLoaderUntilUnplugged) {
    sim::PtyPlotter plotter;
    const int fd = openRaw(plotter.path());
    ASSERT_GE(fd, 0);

    ASSERT_EQ(::write(fd, "$I\n", 3), 3);
    EXPECT_NE(wire::str(joined(readFor(fd, 200))).find("[VER:FluidNC v3.7.8 (sim):]\r\n"),
              std::string::npos);

    Bytes sync{0x07, 0x07, 0x12, 0x20};
    sync.resize(36, 0x55);
    const Bytes frame = wire::request(0x08, sync);
    ASSERT_EQ(::write(fd, frame.data(), frame.size()), static_cast<ssize_t>(frame.size()));
    const auto reads = readFor(fd, 300);
    EXPECT_EQ(wire::frames(joined(reads)).size(), 8u);
    EXPECT_GE(reads.size(), 2u) << "the extra replies follow as separate writes";

    plotter.inspect([](const sim::Plotter& p) {
        EXPECT_EQ(p.mode(), sim::Mode::RomLoader);
        EXPECT_EQ(p.transcript(), (std::vector<std::string>{"$I", "SYNC"}));
    });

    plotter.unplug();
    uint8_t byte = 0;
    EXPECT_LE(::read(fd, &byte, 1), 0) << "the line is gone";
    EXPECT_LT(openRaw(plotter.path()), 0);
    ::close(fd);
}

}  // namespace
