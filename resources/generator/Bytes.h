#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// Little helpers for assembling binary images in memory.
namespace devset {

using Bytes = std::vector<uint8_t>;

/// The marker every development image carries, readable with `strings`.
inline constexpr std::string_view kMarker = "TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE";
/// The line before the development catalogue key's PEM block (PEM readers skip it).
inline constexpr std::string_view kKeyMarker = "TESKAL DEVELOPMENT KEY - NOT FOR RELEASES";

void appendLE32(Bytes& out, uint32_t value);
void appendLE16(Bytes& out, uint16_t value);
/// `text` in a zero-padded field of `width` bytes (cut when longer).
void appendField(Bytes& out, std::string_view text, size_t width);
/// `count` deterministic filler bytes (xorshift), so regions differ and their MD5s mean something.
Bytes filler(size_t count, uint32_t seed);
/// `size` bytes that repeat the marker line over and over.
Bytes markerText(size_t size);

Bytes md5(const Bytes& data);
Bytes sha256(const Bytes& data);

}  // namespace devset
