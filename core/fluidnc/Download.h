#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "serial/SerialPort.h"

namespace fluidnc {

/// Asks the console to send the file `name` from the firmware's file system
/// ("$Xmodem/Send=<name>") and receives it over XModem: CRC-16 first, falling back
/// to the 8-bit sum when no block comes; 128- and 1024-byte blocks. Trailing 0x1A
/// padding is removed, then the console's "ok" is awaited (up to 5000 ms, not
/// required).
///
/// Returns the file's bytes, or nothing on failure, which is described by exactly
/// one `log` line starting "XModem download: ". `progress` gets fraction 0 and the
/// bytes received so far while blocks arrive (XModem carries no total), then 1.
/// Both callbacks may be null and run on the calling thread. Blocks the calling
/// thread; every wait is bounded (at most about 30 s for the handshake and
/// 25 x 5000 ms for a block).
std::optional<std::vector<uint8_t>> downloadFile(SerialPort& port, const std::string& name,
                                                 void (*progress)(float, const char*),
                                                 void (*log)(const char*));

}  // namespace fluidnc
