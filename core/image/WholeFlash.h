#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// What "the whole flash" of a machine is, and whether a file is a whole-flash
/// snapshot that may be written back at 0x0.
namespace image {

inline constexpr uint32_t kPartitionTableOffset = 0x8000;
/// The partition table's bytes at `kPartitionTableOffset`.
inline constexpr size_t kPartitionTableSize = 0xC00;
/// The bytes from 0x0 that `wholeFlashExtent` looks at: the bootloader header and
/// the partition table.
inline constexpr size_t kFlashHeadSize = kPartitionTableOffset + kPartitionTableSize;
/// The largest flash a bootloader header of this chip declares.
inline constexpr uint64_t kLargestFlash = 16 * 1024 * 1024;

/// How much of the flash holds something worth keeping.
struct FlashExtent {
    enum class Source {
        bootloaderHeader,  ///< the flash size the bootloader image header at 0x0 declares
        partitionTable,    ///< the end of the last partition of the table at 0x8000
    };
    uint64_t size = 0;  ///< bytes from 0x0
    Source source = Source::bootloaderHeader;
};

/// The flash size in bytes that an image header declares in the high nibble of its
/// byte 3 (0 to 4: 1, 2, 4, 8 or 16 MiB); none without the image magic or for
/// another nibble. `header` needs 4 readable bytes when `size` says so.
std::optional<uint64_t> declaredFlashSize(const uint8_t* header, size_t size);

/// The whole flash from its first `size` bytes (borrowed; `kFlashHeadSize` of them
/// hold all that is looked at): the size the bootloader header declares; without a
/// header (an erased chip), the end of the last partition of a table at 0x8000 that
/// has entries, a matching MD5 entry if any, and every partition within 16 MiB;
/// with neither, none: nothing worth keeping. Thread-safe.
std::optional<FlashExtent> wholeFlashExtent(const uint8_t* head, size_t size);

/// What a snapshot is checked against besides its own layout.
struct SnapshotRules {
    /// Whether a snapshot that carries the development marker may be written (only
    /// where every device is simulated: such a flash holds no real firmware).
    bool allowDevelopment = false;
};

/// Why `size` borrowed bytes must not be written back as a whole flash, in plain
/// words that read after "cannot be used: "; none when they may. A refused file has
/// a size other than 1, 2, 4, 8 or 16 MiB, no image header at 0x0, a header for
/// another chip, or (unless allowed) the development marker. Thread-safe.
std::optional<std::string> snapshotRefusal(const uint8_t* data, size_t size,
                                           const SnapshotRules& rules);

}  // namespace image
