#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

/// Hexadecimal texts of the loader's log lines; internal to core/esp.
namespace esp {

/// "0x" and exactly eight lower-case digits, zero-filled.
inline std::string hexStr(uint32_t value) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08x", value);
    return text;
}

/// Two lower-case digits per byte, in byte order.
inline std::string hexBytes(const uint8_t* bytes, size_t count) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(count * 2);
    for (size_t i = 0; i < count; ++i) {
        text.push_back(kDigits[bytes[i] >> 4]);
        text.push_back(kDigits[bytes[i] & 0x0F]);
    }
    return text;
}

}  // namespace esp
