#pragma once

#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "esp/EspLoader.h"
#include "serial/Clock.h"
#include "tests/support/TestImages.h"

/// Callback recorders and expected log lines for the job tests. The library's
/// callbacks are plain function pointers, so what they receive is kept in globals.
namespace jobtest {

using testimg::pattern;
using testimg::stubImage;
using Lines = std::vector<std::string>;

inline Lines logLines;
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

/// A partition table described entry by entry: 'A' an application at 0x10000, 'a' one
/// at 0x20000, 'D' data at 0x10000, 'd' data at 0x9000, 'x' an application at 0x10000
/// without the entry magic, '-' an erased entry, '~' 31 bytes of an application entry.
inline std::vector<uint8_t> partitionTable(const std::string& entries) {
    std::vector<uint8_t> out;
    for (const char kind : entries) {
        std::vector<uint8_t> entry(32, kind == '-' ? 0xFF : 0x00);
        if (kind != '-') {
            const uint32_t offset = kind == 'a' ? 0x20000 : kind == 'd' ? 0x9000 : 0x10000;
            entry[0] = kind == 'x' ? 0xAB : 0xAA;
            entry[1] = 0x50;
            entry[2] = (kind == 'D' || kind == 'd') ? 1 : 0;
            entry[5] = static_cast<uint8_t>(offset >> 8);
            entry[6] = static_cast<uint8_t>(offset >> 16);
            entry[9] = 0x10;
        }
        out.insert(out.end(), entry.begin(), entry.end() - (kind == '~' ? 1 : 0));
    }
    return out;
}

inline Lines concat(std::initializer_list<Lines> parts) {
    Lines all;
    for (const auto& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

/// The lines from the start of a job up to a running, attached stub, for a healthy
/// chip and the default `stubImage`.
inline Lines preambleLines() {
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

/// The lines for a region written and verified without trouble.
inline Lines regionLines(uint32_t address, const std::vector<uint8_t>& data) {
    char head[96];
    std::snprintf(head, sizeof head, "addr=0x%08x size=%zu", address, data.size());
    std::string hex;
    for (uint8_t byte : esp::EspLoader::md5(data.data(), data.size())) {
        char two[3];
        std::snprintf(two, sizeof two, "%02x", byte);
        hex += two;
    }
    const std::string blocks = std::to_string((data.size() + 16383) / 16384);
    return {"FLASH_BEGIN " + std::string(head) + " blocks=" + blocks + " blockSize=16384",
            "FLASH_BEGIN OK (erase complete)",
            "VERIFY " + std::string(head),
            "VERIFY local_md5=" + hex,
            "VERIFY flash_md5=" + hex,
            "VERIFY OK"};
}

}  // namespace jobtest
