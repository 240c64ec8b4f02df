#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "image/WholeFlash.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Source = image::FlashExtent::Source;

constexpr size_t kMiB = 1024 * 1024;

Bytes devImage(const std::string& name) {
    std::ifstream file(std::string(TFU_DEV_RESOURCES_DIR "/") + name, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

// The first bytes of a plotter's flash: `bootloader` at 0x0, `table` at 0x8000.
Bytes flashHead(const Bytes& bootloader, const Bytes& table) {
    Bytes head(image::kFlashHeadSize, 0xFF);
    std::copy(bootloader.begin(), bootloader.end(), head.begin());
    std::copy(table.begin(), table.end(), head.begin() + image::kPartitionTableOffset);
    return head;
}

Bytes changed(Bytes bytes, size_t at, std::initializer_list<uint8_t> values) {
    std::copy(values.begin(), values.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
    return bytes;
}

std::optional<std::pair<uint64_t, Source>> extentOf(const Bytes& head) {
    const auto extent = image::wholeFlashExtent(head.data(), head.size());
    if (!extent) {
        return std::nullopt;
    }
    return std::pair(extent->size, extent->source);
}

// The development set's bootloader declares 4 MB (0x2F: high nibble 2); its table
// ends with the file system at 0x3D0000 + 0x30000 = 4 MiB, and its MD5 entry is the
// sixth record.
TEST(WholeFlash, TheBootloaderHeaderDecidesElseTheEndOfTheLastPartition) {
    const Bytes bootloader = devImage("bootloader.bin");
    const Bytes table = devImage("partitions.bin");
    const Bytes erased(32, 0xFF);
    const Bytes noMd5 = changed(table, 5 * 32, {0xFF, 0xFF});
    constexpr size_t kSpiffsSize = 4 * 32 + 8;
    using Row = std::pair<Bytes, std::optional<std::pair<uint64_t, Source>>>;
    const Row rows[] = {
        {flashHead(bootloader, table), std::pair(4 * kMiB, Source::bootloaderHeader)},
        {flashHead(changed(bootloader, 3, {0x0F}), table),
         std::pair(kMiB, Source::bootloaderHeader)},
        {flashHead(changed(bootloader, 3, {0x1F}), {}),
         std::pair(2 * kMiB, Source::bootloaderHeader)},
        {flashHead(changed(bootloader, 3, {0x3F}), {}),
         std::pair(8 * kMiB, Source::bootloaderHeader)},
        {flashHead(changed(bootloader, 3, {0x4F}), {}),
         std::pair(16 * kMiB, Source::bootloaderHeader)},
        // A size this chip's header cannot declare: the table says how far to read.
        {flashHead(changed(bootloader, 3, {0x5F}), table),
         std::pair(4 * kMiB, Source::partitionTable)},
        {flashHead(changed(bootloader, 3, {0x5F}), {}), std::nullopt},
        // An erased chip: the table alone, if it can be trusted.
        {flashHead(erased, table), std::pair(4 * kMiB, Source::partitionTable)},
        {flashHead(erased, noMd5), std::pair(4 * kMiB, Source::partitionTable)},
        {flashHead(erased, changed(table, 2 * 32 + 12, {'b'})), std::nullopt},
        {flashHead(erased, changed(noMd5, kSpiffsSize, {0x00, 0x00, 0xC3, 0x00})),
         std::pair(16 * kMiB, Source::partitionTable)},
        {flashHead(erased, changed(noMd5, kSpiffsSize, {0x00, 0x10, 0xC3, 0x00})), std::nullopt},
        {flashHead(erased, {}), std::nullopt},
        {Bytes(image::kPartitionTableOffset + 31, 0xFF), std::nullopt},
        {Bytes{0xE9, 0x03, 0x02}, std::nullopt},
    };
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(extentOf(rows[i].first), rows[i].second) << "row " << i;
    }
    EXPECT_EQ(image::wholeFlashExtent(nullptr, 0), std::nullopt);
}

// A flash of `size` bytes, erased, with an image header for `chipId` at 0x0.
Bytes snapshot(size_t size, uint16_t chipId = 9) {
    Bytes flash(size, 0xFF);
    const Bytes header = {0xE9,
                          3,
                          2,
                          0x2F,
                          0x08,
                          0x99,
                          0x3C,
                          0x40,
                          0xEE,
                          0,
                          0,
                          0,
                          static_cast<uint8_t>(chipId),
                          static_cast<uint8_t>(chipId >> 8)};
    std::copy(header.begin(), header.end(), flash.begin());
    return flash;
}

TEST(WholeFlash, OnlyAWholeFlashOfThisChipIsASnapshot) {
    for (const size_t mib : {1, 2, 4, 8, 16}) {
        const Bytes flash = snapshot(mib * kMiB);
        EXPECT_EQ(image::snapshotRefusal(flash.data(), flash.size(), {}), std::nullopt) << mib;
    }
    Bytes marked = snapshot(16 * kMiB);
    std::copy(testimg::kMarker.begin(), testimg::kMarker.end(),
              marked.end() - static_cast<std::ptrdiff_t>(testimg::kMarker.size()));
    EXPECT_EQ(image::snapshotRefusal(marked.data(), marked.size(), {.allowDevelopment = true}),
              std::nullopt);

    const auto sizeRefusal = [](const char* bytes) {
        return "not a whole-flash snapshot (" + std::string(bytes) +
               " bytes; a snapshot holds 1, 2, 4, 8 or 16 MiB)";
    };
    const std::pair<Bytes, std::string> rows[] = {
        {{}, "an empty file (0 bytes)"},
        {snapshot(kMiB - 1), sizeRefusal("1,048,575")},
        {snapshot(kMiB + 1), sizeRefusal("1,048,577")},
        {snapshot(3 * kMiB), sizeRefusal("3,145,728")},
        {snapshot(32 * kMiB), sizeRefusal("33,554,432")},
        {changed(snapshot(4 * kMiB), 0, {0xFF}),
         "not a whole-flash snapshot (no image header at 0x0: first byte 0xFF, expected 0xE9)"},
        {snapshot(4 * kMiB, 5),
         "taken from another chip (chip id 5, ESP32-C3; this machine is an ESP32-S3)"},
        {snapshot(4 * kMiB, 77),
         "taken from another chip (chip id 77; this machine is an ESP32-S3)"},
        {marked, "a snapshot of a simulated machine (it holds development images, not firmware)"},
    };
    for (const auto& [bytes, refusal] : rows) {
        EXPECT_EQ(image::snapshotRefusal(bytes.data(), bytes.size(), {}), refusal);
    }
}

}  // namespace
