#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The digests the image formats carry, over borrowed bytes. Thread-safe.
namespace image::detail {

std::array<uint8_t, 32> sha256(const uint8_t* data, size_t size);
std::array<uint8_t, 16> md5(const uint8_t* data, size_t size);

/// Little-endian fields; `at` must hold 2 or 4 readable bytes.
inline uint16_t le16(const uint8_t* at) {
    return static_cast<uint16_t>(at[0] | at[1] << 8);
}
inline uint32_t le32(const uint8_t* at) {
    return uint32_t{at[0]} | uint32_t{at[1]} << 8 | uint32_t{at[2]} << 16 | uint32_t{at[3]} << 24;
}

}  // namespace image::detail
