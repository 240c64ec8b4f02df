#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Reading of the partition table image written at 0x8000: 32-byte entries
/// (0xAA 0x50, type, subtype, offset, size, 16-byte label, flags), closed by an
/// optional MD5 entry (0xEB 0xEB, 14 bytes 0xFF, the MD5 of the entries before it)
/// and 0xFF padding.
namespace image {

inline constexpr uint32_t kApplicationOffset = 0x10000;

struct PartitionEntry {
    uint8_t type = 0;  ///< 0 application, 1 data
    uint8_t subtype = 0;
    uint32_t offset = 0;
    uint32_t size = 0;
    std::string label;
    uint32_t flags = 0;
};

struct PartitionTableReport {
    enum class Md5 { absent, matches, differs };

    std::vector<PartitionEntry> entries;  ///< in table order
    Md5 md5 = Md5::absent;
    /// Size of the application partition at 0x10000; none when the table has none.
    std::optional<uint32_t> applicationSize;
};

/// Reads the borrowed bytes up to the first record that is neither an entry nor
/// the MD5 entry. Never fails; a table that is not one has no entries.
/// Thread-safe.
PartitionTableReport inspectPartitionTable(const uint8_t* data, size_t size);

}  // namespace image
