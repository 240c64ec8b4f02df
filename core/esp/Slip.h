#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

/// RFC 1055 framing of ROM loader packets. Stateless free functions.
namespace slip {

constexpr uint8_t END = 0xC0;
constexpr uint8_t ESC = 0xDB;
constexpr uint8_t ESC_END = 0xDC;
constexpr uint8_t ESC_ESC = 0xDD;

/// Frames a payload: END, the escaped bytes, END.
std::vector<uint8_t> encode(const std::vector<uint8_t>& payload);

/// Unframes exactly one frame (END ... END); no value for a malformed frame.
std::optional<std::vector<uint8_t>> decode(const std::vector<uint8_t>& frame);

/// Finds the first complete frame in a receive buffer, skipping bytes before its
/// opening END. Returns the payload and the count of bytes consumed up to and
/// including the closing END; no value while incomplete or corrupt.
std::optional<std::pair<std::vector<uint8_t>, size_t>> readFrame(const uint8_t* data, size_t len);

}  // namespace slip
