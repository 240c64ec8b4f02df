#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "image/FirmwareCheck.h"
#include "image/Partitions.h"
#include "tests/support/TestImages.h"

namespace {

using Bytes = std::vector<uint8_t>;

Bytes devImage(const std::string& name) {
    std::ifstream file(std::string(TFU_DEV_RESOURCES_DIR "/") + name, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

Bytes changed(Bytes bytes, size_t at, uint8_t value) {
    bytes.at(at) = value;
    return bytes;
}

Bytes resized(Bytes bytes, size_t size, uint8_t fill = 0xFF) {
    bytes.resize(size, fill);
    return bytes;
}

constexpr uint32_t kDevApplicationPartition = 0x1E0000;

TEST(ImageInspection, ReadsTheDevelopmentSet) {
    const Bytes file = devImage("firmware.bin");
    const auto firmware = image::inspectImage(file.data(), file.size());
    EXPECT_EQ(std::tuple(firmware.layoutFault, firmware.chipId, firmware.segments.size()),
              std::tuple("", 9, 4u));
    EXPECT_TRUE(firmware.checksumMatches && firmware.sha256Appended && firmware.sha256Matches &&
                firmware.developmentMarker);
    ASSERT_TRUE(firmware.app);
    const auto& app = *firmware.app;
    EXPECT_EQ(app.version + "|" + app.projectName + "|" + app.date + " " + app.time,
              "0.0.0-devset|teskal-devset|Jan  1 2000 00:00:00");

    // A changed label no longer matches the MD5 entry; without app0 there is no limit.
    using Md5 = image::PartitionTableReport::Md5;
    const Bytes table = devImage("partitions.bin");
    const auto inspectTable = [](const Bytes& bytes, size_t size) {
        const auto report = image::inspectPartitionTable(bytes.data(), size);
        return std::tuple(report.entries.size(), report.md5, report.applicationSize);
    };
    EXPECT_EQ(inspectTable(table, table.size()),
              std::tuple(5u, Md5::matches, kDevApplicationPartition));
    EXPECT_EQ(inspectTable(changed(table, 2 * 32 + 12, 'b'), table.size()),
              std::tuple(5u, Md5::differs, kDevApplicationPartition));
    EXPECT_EQ(inspectTable(table, 64), std::tuple(2u, Md5::absent, std::nullopt));
    // Byte 0 alone marks an entry, as the probe of a plotter's flash reads it.
    EXPECT_EQ(inspectTable(changed(table, 2 * 32 + 1, 0x51), table.size()),
              std::tuple(5u, Md5::differs, kDevApplicationPartition));
    EXPECT_EQ(inspectTable(changed(table, 2 * 32, 0xAB), table.size()),
              std::tuple(2u, Md5::absent, std::nullopt));
}

TEST(ImageInspection, RefusesWhatMustNotBeWrittenAsFirmware) {
    const Bytes firmware = devImage("firmware.bin");
    const std::string json = R"({"name": "plotter", "pens": 12}
)";  // 32 bytes
    const Bytes text(json.begin(), json.end());
    const image::FirmwareRules real{kDevApplicationPartition, false};
    const image::FirmwareRules simulated{kDevApplicationPartition, true};
    const image::FirmwareRules noTable{std::nullopt, true};
    // The marker is looked for in the whole file: halfway through it (in the largest
    // segment), and in the last bytes of an image as large as the partition.
    const Bytes unmarked = testimg::unmarked(firmware);
    const Bytes halfway = testimg::withText(unmarked, {unmarked.size() / 2}, testimg::kMarker);
    Bytes full = resized(unmarked, kDevApplicationPartition - testimg::kMarker.size());
    full.insert(full.end(), testimg::kMarker.begin(), testimg::kMarker.end());
    const std::string development = "a development image, not firmware";
    // The file, the rules it is checked under, and the refusal expected (none: accepted).
    const std::tuple<const char*, Bytes, image::FirmwareRules, std::optional<std::string>> rows[] =
        {
            {"0 bytes", {}, simulated, "an empty file (0 bytes)"},
            {"text as .bin", text, simulated,
             "not a firmware image (first byte 0x7B, expected 0xE9)"},
            {"cut in header", resized(firmware, 20), simulated,
             "damaged: it ends inside its header"},
            {"no segments", changed(firmware, 1, 0), simulated,
             "damaged: it declares 0 segments (1 to 16 expected)"},
            {"cut in segment 1", resized(firmware, 40000), simulated,
             "damaged: segment 1 runs past the end of the file"},
            {"cut in SHA-256", resized(firmware, firmware.size() - 10), simulated,
             "damaged: it ends before its SHA-256"},
            {"ESP32 image", changed(firmware, 12, 0), simulated,
             "built for another chip (chip id 0, ESP32; this machine is an ESP32-S3)"},
            {"unknown chip", changed(firmware, 12, 77), simulated,
             "built for another chip (chip id 77; this machine is an ESP32-S3)"},
            {"segment byte changed", changed(firmware, 40000, firmware[40000] ^ 1), simulated,
             "damaged: its checksum does not match"},
            {"SHA-256 changed", changed(firmware, firmware.size() - 1, firmware.back() ^ 1),
             simulated, "damaged: its SHA-256 does not match"},
            {"bootloader", devImage("bootloader.bin"), simulated,
             "not an application image (it has no application description)"},
            {"development image", firmware, real, development},
            {"development image, simulated", firmware, simulated, std::nullopt},
            {"unmarked", unmarked, real, std::nullopt},
            {"marker halfway", halfway, real, development},
            {"marker last, the partition's size", full, real, development},
            {"the partition's size, simulated", full, simulated, std::nullopt},
            {"a byte more than the partition", resized(full, full.size() + 1), simulated,
             "too large for the application partition (1,966,081 bytes; the partition holds "
             "1,966,080)"},
            {"larger, no partition table", resized(full, 4 * 1024 * 1024), noTable, std::nullopt},
        };
    for (const auto& [name, bytes, rules, refusal] : rows) {
        EXPECT_EQ(image::firmwareRefusal(image::inspectImage(bytes.data(), bytes.size()), rules),
                  refusal)
            << name;
    }
}

}  // namespace
