#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "serial/Clock.h"

/// Callback recorders and images for the job tests. The library's callbacks are
/// plain function pointers, so what they receive is kept in globals.
namespace jobtest {

inline std::vector<std::string> logLines;
inline std::vector<int64_t> logTimesNs;  // clock reading at each line
inline std::vector<std::pair<float, std::string>> progressCalls;

inline void recordLog(const char* line) {
    logLines.emplace_back(line);
    logTimesNs.push_back(mono::nowNs());
}
inline void recordProgress(float fraction, const char* stage) {
    progressCalls.emplace_back(fraction, stage);
}

inline void clearRecords() {
    logLines.clear();
    logTimesNs.clear();
    progressCalls.clear();
}

/// Bytes that vary with the position and a seed, so regions differ from each other.
inline std::vector<uint8_t> pattern(size_t size, uint8_t seed) {
    std::vector<uint8_t> bytes(size);
    for (size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<uint8_t>(seed + i * 31 + i / 509);
    }
    return bytes;
}

/// A stub image: header, 100 bytes of text at 0x40380000, 20 bytes of data.
inline std::vector<uint8_t> stubImage() {
    std::vector<uint8_t> image;
    for (uint32_t word : {0x40380000u, 100u, 0x3FC90000u, 20u, 0x40380004u}) {
        esp::packLE32(image, word);
    }
    const auto body = pattern(120, 0x5A);
    image.insert(image.end(), body.begin(), body.end());
    return image;
}

/// A 3072-byte table: an NVS data entry at 0x9000, then an entry of `appType` at
/// 0x10000, then erased flash.
inline std::vector<uint8_t> partitionTable(uint8_t appType) {
    std::vector<uint8_t> table(3072, 0xFF);
    const uint8_t nvs[] = {0xAA, 0x50, 1, 2, 0x00, 0x90, 0, 0, 0x00, 0x50, 0, 0};
    const uint8_t app[] = {0xAA, 0x50, appType, 0, 0x00, 0x00, 1, 0, 0x00, 0x00, 0x10, 0};
    std::copy(std::begin(nvs), std::end(nvs), table.begin());
    std::copy(std::begin(app), std::end(app), table.begin() + 32);
    return table;
}

/// The loader's and the job's lines from the start of the job body up to a
/// running, attached stub, for a healthy chip and the image of `stubImage`.
inline std::vector<std::string> preambleLines() {
    return {"Entering bootloader...",
            "Syncing...",
            "Sync OK",
            "Chip ID: 0x9",
            "Chip: ESP32-S3",
            "Security fuses: 0x00000000",
            "Security check OK - no secure boot or flash encryption",
            "Uploading flash stub (140 bytes)...",
            "Stub: text=100 @ 0x40380000 data=20 @ 0x3fc90000 entry=0x40380004",
            "Stub running",
            "Attaching SPI flash...",
            "SPI_ATTACH (default pins)",
            "SPI_ATTACH OK"};
}

/// The loader's lines for a region written and verified without trouble.
inline std::vector<std::string> regionLines(uint32_t address, const std::vector<uint8_t>& data) {
    char addr[16];
    std::snprintf(addr, sizeof addr, "0x%08x", address);
    const auto digest = esp::EspLoader::md5(data.data(), data.size());
    std::string hex;
    for (uint8_t byte : digest) {
        char two[3];
        std::snprintf(two, sizeof two, "%02x", byte);
        hex += two;
    }
    const size_t blocks = (data.size() + 16383) / 16384;
    const std::string size = std::to_string(data.size());
    return {"FLASH_BEGIN addr=" + std::string(addr) + " size=" + size +
                " blocks=" + std::to_string(blocks) + " blockSize=16384",
            "FLASH_BEGIN OK (erase complete)",
            "VERIFY addr=" + std::string(addr) + " size=" + size,
            "VERIFY local_md5=" + hex,
            "VERIFY flash_md5=" + hex,
            "VERIFY OK"};
}

}  // namespace jobtest
