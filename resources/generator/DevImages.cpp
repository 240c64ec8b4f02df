#include "DevImages.h"

#include "EspImage.h"

namespace devset {
namespace {

constexpr size_t kPartitionTableSize = 3072;
constexpr size_t kBootAppSize = 8192;

struct Partition {
    const char* label;
    uint8_t type;
    uint8_t subtype;
    uint32_t offset;
    uint32_t size;
};

constexpr Partition kPartitions[] = {
    {"nvs", 0x01, 0x02, 0x9000, 0x5000},       {"otadata", 0x01, 0x00, 0xE000, 0x2000},
    {"app0", 0x00, 0x10, 0x10000, 0x1E0000},   {"app1", 0x00, 0x11, 0x1F0000, 0x1E0000},
    {"spiffs", 0x01, 0x82, 0x3D0000, 0x30000},
};

Bytes appDescriptor(std::string_view version) {
    Bytes out;
    appendLE32(out, 0xABCD5432);
    appendLE32(out, 0);  // secure version
    out.insert(out.end(), 8, 0);
    appendField(out, version, 32);
    appendField(out, kProjectName, 32);
    appendField(out, "00:00:00", 16);
    appendField(out, "Jan  1 2000", 16);
    appendField(out, kMarker, 32);      // SDK version field: the marker, cut to fit
    out.insert(out.end(), 32 + 80, 0);  // ELF hash, reserved
    return out;
}

Bytes withMarker(Bytes data) {
    Bytes out(kMarker.begin(), kMarker.end());
    out.push_back(0);
    out.insert(out.end(), data.begin(), data.end());
    return out;
}

}  // namespace

Bytes partitionTable() {
    Bytes table;
    for (const auto& partition : kPartitions) {
        table.push_back(0xAA);
        table.push_back(0x50);
        table.push_back(partition.type);
        table.push_back(partition.subtype);
        appendLE32(table, partition.offset);
        appendLE32(table, partition.size);
        appendField(table, partition.label, 16);
        appendLE32(table, 0);
    }
    const Bytes digest = md5(table);
    table.push_back(0xEB);
    table.push_back(0xEB);
    table.insert(table.end(), 14, 0xFF);
    table.insert(table.end(), digest.begin(), digest.end());
    table.resize(kPartitionTableSize, 0xFF);
    return table;
}

Bytes bootApp() {
    return Bytes(kBootAppSize, 0xFF);
}

Bytes bootloader() {
    return buildEspImage(0x403C9908, {
                                         {0x3FCE3810, withMarker(filler(0x0AF0, 11))},
                                         {0x403C9700, withMarker(filler(0x3480, 12))},
                                         {0x403CE710, filler(0x0C10, 13)},
                                     });
}

Bytes application(std::string_view version) {
    Bytes rodata = appDescriptor(version);
    const Bytes text = markerText(0x10000 - rodata.size());
    rodata.insert(rodata.end(), text.begin(), text.end());
    return buildEspImage(0x40375A80, {
                                         {0x3C000020, rodata},
                                         {0x3FC8A000, withMarker(filler(0x2400, 21))},
                                         {0x40374000, withMarker(filler(0xC000, 22))},
                                         {0x42000020, withMarker(filler(0x15E000, 23))},
                                     });
}

Bytes stub() {
    constexpr uint32_t kTextAddress = 0x40380000;
    constexpr uint32_t kDataAddress = 0x3FC96000;
    const Bytes text = withMarker(filler(0x3F00, 31));
    const Bytes data = withMarker(filler(0x0C00, 32));
    Bytes image;
    appendLE32(image, kTextAddress);
    appendLE32(image, static_cast<uint32_t>(text.size()));
    appendLE32(image, kDataAddress);
    appendLE32(image, static_cast<uint32_t>(data.size()));
    appendLE32(image, kTextAddress + 0x0400);
    image.insert(image.end(), text.begin(), text.end());
    image.insert(image.end(), data.begin(), data.end());
    return image;
}

}  // namespace devset
