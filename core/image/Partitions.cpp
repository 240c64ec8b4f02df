#include "image/Partitions.h"

#include <algorithm>

#include "image/Digest.h"

namespace image {
namespace {

using detail::le32;

constexpr size_t kRecordSize = 32;
constexpr size_t kMaxEntries = 128;
constexpr uint8_t kEntryMagic = 0xAA;
constexpr uint8_t kTypeApplication = 0;

bool opensWith(const uint8_t* record, uint8_t first, uint8_t second) {
    return record[0] == first && record[1] == second;
}

PartitionEntry readEntry(const uint8_t* record) {
    PartitionEntry entry;
    entry.type = record[2];
    entry.subtype = record[3];
    entry.offset = le32(record + 4);
    entry.size = le32(record + 8);
    const uint8_t* label = record + 12;
    entry.label.assign(label, std::find(label, label + 16, uint8_t{0}));
    entry.flags = le32(record + 28);
    return entry;
}

}  // namespace

PartitionTableReport inspectPartitionTable(const uint8_t* data, size_t size) {
    PartitionTableReport report;
    for (size_t at = 0;
         data != nullptr && size - at >= kRecordSize && report.entries.size() < kMaxEntries;
         at += kRecordSize) {
        const uint8_t* record = data + at;
        if (opensWith(record, 0xEB, 0xEB)) {
            const auto digest = detail::md5(data, at);
            report.md5 = std::equal(digest.begin(), digest.end(), record + 16)
                             ? PartitionTableReport::Md5::matches
                             : PartitionTableReport::Md5::differs;
            break;
        }
        // Byte 0 alone marks an entry, so that the image check and the probe of a
        // plotter's flash agree on every table.
        if (record[0] != kEntryMagic) {
            break;
        }
        report.entries.push_back(readEntry(record));
    }
    for (const PartitionEntry& entry : report.entries) {
        if (entry.type == kTypeApplication && entry.offset == kApplicationOffset) {
            report.applicationSize = entry.size;
            break;
        }
    }
    return report;
}

}  // namespace image
