#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Reading of the partition table image written at 0x8000: 32-byte entries
/// (0xAA 0x50, type, subtype, offset, size, 16-byte label, flags), closed by an
/// optional MD5 entry (0xEB 0xEB, 14 bytes 0xFF, the MD5 of the entries before it)
/// and 0xFF padding. The one reader of the table: the updater's image check and the
/// library's partition-table probe both go by it.
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
    /// Size of the first application partition (type 0) at 0x10000; none when the
    /// table has none. A table with one is what a plotter needs to boot its firmware.
    std::optional<uint32_t> applicationSize;
};

/// Reads the borrowed bytes: a record whose byte 0 is 0xAA is an entry, the MD5 entry or any other
/// record ends the table, and at most 128 entries are read. Null or fewer than 32 bytes give no
/// entries. Never fails; a table that is not one has no entries. Thread-safe.
PartitionTableReport inspectPartitionTable(const uint8_t* data, size_t size);

}  // namespace image
