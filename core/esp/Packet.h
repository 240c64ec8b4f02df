#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Request and response packets of the ROM loader and flasher stub protocol,
/// with the little-endian helpers every payload layout is written with.
namespace esp {

/// Opcodes the updater issues.
enum Opcode : uint8_t {
    FLASH_BEGIN = 0x02,
    FLASH_DATA = 0x03,
    FLASH_END = 0x04,
    MEM_BEGIN = 0x05,
    MEM_END = 0x06,
    MEM_DATA = 0x07,
    SYNC = 0x08,
    READ_REG = 0x0A,
    SPI_ATTACH = 0x0D,
    SPI_FLASH_MD5 = 0x13,
    GET_SECURITY_INFO = 0x14,
    ERASE_FLASH = 0xD0,
    READ_FLASH = 0xD2,
};

/// The four bytes that open every SYNC payload.
constexpr std::array<uint8_t, 4> SYNC_PREAMBLE = {0x07, 0x07, 0x12, 0x20};

/// A parsed response packet.
struct ResponsePacket {
    uint8_t op = 0;
    uint32_t value = 0;
    std::vector<uint8_t> data;
    uint8_t status = 0;
    uint8_t error = 0;
};

/// Appends `value` least significant byte first.
void packLE32(std::vector<uint8_t>& out, uint32_t value);

/// Little-endian reads; no bounds checks, callers check lengths first.
uint32_t readLE32(const std::vector<uint8_t>& v, size_t offset);
uint32_t readLE32(const uint8_t* p);
uint16_t readLE16(const std::vector<uint8_t>& v, size_t offset);
uint16_t readLE16(const uint8_t* p);

/// 0xEF exclusive-or every byte of the block.
uint8_t calculateChecksum(const std::vector<uint8_t>& block);

/// `SYNC_PREAMBLE` followed by 32 bytes of 0x55.
std::vector<uint8_t> buildSyncPayload();

/// Direction 0, opcode, 16-bit payload size, 32-bit checksum, payload.
std::vector<uint8_t> buildCommandPacket(uint8_t op, const std::vector<uint8_t>& payload,
                                        uint32_t checksum);

/// Parses a response with 2 status bytes (stub) or 4 (ROM); no value when malformed.
std::optional<ResponsePacket> parseResponsePacket(const std::vector<uint8_t>& frame,
                                                  bool stubRunning);

/// The log name of an opcode; unnamed ones are written as "CMD_0x%02X" into one
/// static buffer that the next such call overwrites (one job at a time).
const char* cmdName(uint8_t op);

}  // namespace esp
