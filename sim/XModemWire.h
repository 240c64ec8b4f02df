#pragma once

#include <cstddef>
#include <cstdint>

/// What the simulated console's XModem receiver and sender share: the control
/// bytes and the two block checks, written independently of the host's code.
namespace sim::detail::xmodem {

inline constexpr uint8_t kSoh = 0x01;
inline constexpr uint8_t kStx = 0x02;
inline constexpr uint8_t kEot = 0x04;
inline constexpr uint8_t kAck = 0x06;
inline constexpr uint8_t kNak = 0x15;
inline constexpr uint8_t kCan = 0x18;
inline constexpr uint8_t kPad = 0x1A;
/// A SLIP END from the host: it reset the chip into its ROM loader.
inline constexpr uint8_t kSlipEnd = 0xC0;

/// CRC-16/XMODEM (polynomial 0x1021, initial 0), computed bit by bit.
uint16_t crc16(const uint8_t* data, size_t len);

/// The 8-bit sum of the checksum variant, modulo 256.
uint8_t checksum8(const uint8_t* data, size_t len);

}  // namespace sim::detail::xmodem
