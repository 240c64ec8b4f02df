#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "serial/SerialPort.h"

namespace fluidnc {

/// The 256-entry table of CRC-16/XMODEM (polynomial 0x1021).
extern const std::array<uint16_t, 256> crc16tab;

/// CRC-16/XMODEM of `len` bytes: initial 0, no reflection, no final XOR.
uint16_t crc16(const uint8_t* data, size_t len);

/// Asks the console to receive config.yaml and sends `data` as XModem-1K blocks in
/// the mode the receiver's handshake chose (CRC or checksum). True when the
/// receiver acknowledged the end of transmission. `progress` may be null and is
/// called on this thread. The handshake waits 30 x 1000 ms (the caller passes 30000).
bool uploadConfig(SerialPort& port, const uint8_t* data, size_t length,
                  void (*progress)(float, const char*), int timeoutMs);

}  // namespace fluidnc
