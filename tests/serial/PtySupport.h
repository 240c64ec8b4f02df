#pragma once

// Pseudo-terminal helpers shared by the serial tests.

#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

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
    Pty(const Pty&) = delete;
    Pty& operator=(const Pty&) = delete;

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

inline double msSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}
