#include "image/WholeFlash.h"

#include <algorithm>

#include "image/Digest.h"
#include "image/EspImage.h"
#include "image/FirmwareCheck.h"
#include "image/Partitions.h"

namespace image {
namespace {

constexpr uint8_t kImageMagic = 0xE9;
constexpr size_t kFlashSizeByte = 3;
constexpr unsigned kLargestSizeCode = 4;  // 16 MiB
constexpr uint64_t kMiB = 1024 * 1024;
constexpr size_t kChipIdOffset = 12;

std::optional<uint64_t> partitionTableEnd(const uint8_t* head, size_t size) {
    if (size <= kPartitionTableOffset) {
        return std::nullopt;
    }
    const size_t tableSize = std::min(size - kPartitionTableOffset, kPartitionTableSize);
    const auto table = inspectPartitionTable(head + kPartitionTableOffset, tableSize);
    if (table.entries.empty() || table.md5 == PartitionTableReport::Md5::differs) {
        return std::nullopt;
    }
    uint64_t end = 0;
    for (const PartitionEntry& entry : table.entries) {
        end = std::max(end, uint64_t{entry.offset} + entry.size);
    }
    if (end == 0 || end > kLargestFlash) {
        return std::nullopt;
    }
    return end;
}

bool isSnapshotSize(size_t size) {
    for (unsigned code = 0; code <= kLargestSizeCode; ++code) {
        if (size == (kMiB << code)) {
            return true;
        }
    }
    return false;
}

std::string hexByte(uint8_t value) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    return {'0', 'x', kDigits[value >> 4], kDigits[value & 0xF]};
}

}  // namespace

std::optional<uint64_t> declaredFlashSize(const uint8_t* header, size_t size) {
    if (header == nullptr || size <= kFlashSizeByte || header[0] != kImageMagic) {
        return std::nullopt;
    }
    const unsigned code = header[kFlashSizeByte] >> 4;
    if (code > kLargestSizeCode) {
        return std::nullopt;
    }
    return kMiB << code;
}

std::optional<FlashExtent> wholeFlashExtent(const uint8_t* head, size_t size) {
    if (const auto declared = declaredFlashSize(head, size)) {
        return FlashExtent{*declared, FlashExtent::Source::bootloaderHeader};
    }
    if (head == nullptr) {
        return std::nullopt;
    }
    if (const auto end = partitionTableEnd(head, size)) {
        return FlashExtent{*end, FlashExtent::Source::partitionTable};
    }
    return std::nullopt;
}

std::optional<std::string> snapshotRefusal(const uint8_t* data, size_t size,
                                           const SnapshotRules& rules) {
    if (data == nullptr || size == 0) {
        return "an empty file (0 bytes)";
    }
    if (!isSnapshotSize(size)) {
        return "not a whole-flash snapshot (" + withThousands(size) +
               " bytes; a snapshot holds 1, 2, 4, 8 or 16 MiB)";
    }
    if (data[0] != kImageMagic) {
        return "not a whole-flash snapshot (no image header at 0x0: first byte " +
               hexByte(data[0]) + ", expected " + hexByte(kImageMagic) + ")";
    }
    const uint16_t chipId = detail::le16(data + kChipIdOffset);
    if (chipId != kChipIdEsp32S3) {
        const auto name = chipName(chipId);
        return "taken from another chip (chip id " + std::to_string(chipId) +
               (name ? ", " + *name : std::string()) + "; this machine is an ESP32-S3)";
    }
    if (!rules.allowDevelopment && carriesDevelopmentMarker(data, size)) {
        return "a snapshot of a simulated machine (it holds development images, not firmware)";
    }
    return std::nullopt;
}

}  // namespace image
