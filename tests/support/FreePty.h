#pragma once

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

/// A pseudo-terminal whose slave nobody has open: a serial port that opens and stays
/// silent. Never unlocked (`unlocked` false), every open of it fails with EIO, as a
/// USB node's does once its device has gone. Closed on destruction.
struct FreePty {
    explicit FreePty(bool unlocked = true) : master(::posix_openpt(O_RDWR | O_NOCTTY)) {
        if (master < 0 || ::grantpt(master) != 0 || (unlocked && ::unlockpt(master) != 0)) {
            throw std::runtime_error("no pseudo-terminal");
        }
        path = ::ptsname(master);
    }
    ~FreePty() { ::close(master); }
    FreePty(const FreePty&) = delete;
    FreePty& operator=(const FreePty&) = delete;

    int master;
    std::string path;
};
