#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "serial/SerialPort.h"

namespace fluidnc {

/// Why a download ended without a file.
struct DownloadFailure {
    enum class Reason {
        none,
        invalidName,     ///< empty, or holds a line break
        commandNotSent,  ///< the console command could not be written
        noBlock,         ///< the sender never started
        cancelled,       ///< the sender cancelled (two CAN)
        tooLarge,        ///< more than 16 MiB arrived
        blockFailed,     ///< one block failed 25 times in a row
        answerNotSent,   ///< an ACK or NAK could not be written
    };
    Reason reason = Reason::none;
    size_t block = 0;  ///< for `blockFailed`: the block, counted from 1
};

/// Asks the console to send the file `name` from the firmware's file system
/// ("$Xmodem/Send=<name>") and receives it over XModem: CRC-16 first, falling back
/// to the 8-bit sum when no block comes; 128- and 1024-byte blocks. Trailing 0x1A
/// padding is removed, then the console's "ok" is awaited (up to 5000 ms, not
/// required).
///
/// Returns the file's bytes, or nothing on failure, which is described by exactly
/// one `log` line starting "XModem download: " and, when `failure` is not null, as
/// data in `*failure`. A transfer given up after the command went out (no block,
/// too large, a block that kept failing) is ended with CAN CAN and a line end, and
/// the console's reply drained, so that the next command is understood. `progress` gets fraction 0
/// and the bytes received so far while blocks arrive (XModem carries no total), then 1. Both
/// callbacks may be null and run on the calling thread. Blocks the calling thread; every wait is
/// bounded (at most about 30 s for the handshake and 25 x 5000 ms for a block).
std::optional<std::vector<uint8_t>> downloadFile(SerialPort& port, const std::string& name,
                                                 void (*progress)(float, const char*),
                                                 void (*log)(const char*),
                                                 DownloadFailure* failure = nullptr);

}  // namespace fluidnc
