#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "esp/Packet.h"
#include "esp/Slip.h"
#include "sim/PtyPlotter.h"

namespace {

using Bytes = std::vector<uint8_t>;

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

// Every read until the line stays quiet for `quietMs`, one element per read call.
std::vector<Bytes> readUntilQuiet(int fd, int quietMs) {
    std::vector<Bytes> reads;
    for (pollfd p{fd, POLLIN, 0}; ::poll(&p, 1, quietMs) > 0; p.revents = 0) {
        uint8_t buf[4096];
        const ssize_t n = ::read(fd, buf, sizeof buf);
        if (n <= 0) {
            break;
        }
        reads.emplace_back(buf, buf + n);
    }
    return reads;
}

TEST(SimPty, ServesConsoleAndLoaderUntilUnplugged) {
    sim::PtyPlotter plotter;
    const int fd = openRaw(plotter.path());
    ASSERT_GE(fd, 0);

    ASSERT_EQ(::write(fd, "$I\n", 3), 3);
    std::string console;
    for (const Bytes& r : readUntilQuiet(fd, 200)) {
        console.append(r.begin(), r.end());
    }
    EXPECT_NE(console.find("[VER:FluidNC v3.7.8 (sim):]\r\n"), std::string::npos);

    const Bytes frame =
        slip::encode(esp::buildCommandPacket(esp::SYNC, esp::buildSyncPayload(), 0));
    ASSERT_EQ(::write(fd, frame.data(), frame.size()), static_cast<ssize_t>(frame.size()));
    const auto reads = readUntilQuiet(fd, 300);
    Bytes all;
    for (const Bytes& r : reads) {
        all.insert(all.end(), r.begin(), r.end());
    }
    size_t frames = 0;
    for (size_t at = 0; const auto found = slip::readFrame(all.data() + at, all.size() - at);) {
        at += found->second;
        ++frames;
    }
    EXPECT_EQ(frames, 8u);
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
