#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "serial/SerialPort.h"

/// What the XModem sender and receiver share: the control bytes, the limits both
/// sides keep, and the small wire helpers. Internal to core/fluidnc.
namespace fluidnc::xmodem {

inline constexpr uint8_t SOH = 0x01;
inline constexpr uint8_t STX = 0x02;
inline constexpr uint8_t EOT = 0x04;
inline constexpr uint8_t ACK = 0x06;
inline constexpr uint8_t NAK = 0x15;
inline constexpr uint8_t CAN = 0x18;
inline constexpr uint8_t CRC_REQUEST = 'C';
inline constexpr uint8_t PADDING = 0x1A;

inline constexpr size_t kBlockData = 1024;
inline constexpr size_t kShortBlockData = 128;
inline constexpr int kHandshakeTries = 30;
inline constexpr int kHandshakeTryMs = 1000;
inline constexpr int kMaxTransmissions = 25;
inline constexpr int kReplyMs = 5000;

enum class Mode { Checksum, Crc };

/// The 8-bit sum of `len` bytes, modulo 256.
uint8_t sum8(const uint8_t* data, size_t len);

/// One byte within `timeoutMs`, or none.
std::optional<uint8_t> readByte(SerialPort& port, int timeoutMs);

/// Calls `progress` when it is not null.
void report(void (*progress)(float, const char*), float fraction, const char* stage);

/// Writes a console command that starts a transfer, then drains what the console
/// prints in reply before the transfer begins. False when the write fails.
bool startTransfer(SerialPort& port, std::string_view command);

}  // namespace fluidnc::xmodem
