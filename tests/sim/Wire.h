#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

// Test-side view of the wire, written independently of the simulator's own framing.
namespace wire {

using Bytes = std::vector<uint8_t>;

/// Little-endian words.
Bytes words(std::initializer_list<uint32_t> values);

/// SLIP frame of a request packet: direction 0, opcode, size, checksum, payload.
Bytes request(uint8_t op, const Bytes& payload, uint32_t checksum = 0);

/// Data-command payload: length, sequence, two zero words, data.
Bytes dataPayload(const Bytes& data, uint32_t seq);

/// 0xEF folded with every byte.
uint32_t checksum(const Bytes& data);

/// Every frame in `bytes`, decoded; bytes outside frames are skipped. A frame with a
/// bad escape comes out as std::nullopt.
std::vector<std::optional<Bytes>> frames(const Bytes& bytes);

struct Response {
    uint8_t op = 0;
    uint32_t value = 0;
    Bytes data;
    uint8_t status = 0;
    uint8_t error = 0;
};

/// Parses a response packet with `statusBytes` status bytes; fails the test and
/// returns an empty response when malformed.
Response parse(const Bytes& packet, size_t statusBytes);

/// The single frame that `bytes` must consist of, parsed.
Response only(const Bytes& bytes, size_t statusBytes);

Bytes text(const std::string& s);
std::string str(const Bytes& b);

}  // namespace wire
