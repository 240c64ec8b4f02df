#include "api/Jobs.h"
#include "esp/Packet.h"

namespace esp {
namespace {

constexpr size_t kEntrySize = 32;
constexpr size_t kMaxEntries = 128;
constexpr uint8_t kEntryMagic = 0xAA;
constexpr uint8_t kTypeApplication = 0;
constexpr uint32_t kApplicationOffset = 0x10000;

}  // namespace

// An entry reads: magic 0xAA 0x50, type (0 = application), subtype, offset and size
// as little-endian words at bytes 4 and 8, a 16-byte label, flags. The byte right
// after 0xAA is the second magic byte and never 0, so the type byte is the one
// that tells an application partition.
bool isPartitionTableValid(const uint8_t* data, size_t size) {
    if (data == nullptr || size < kEntrySize) {
        return false;
    }
    size_t entries = 0;
    bool applicationFound = false;
    for (size_t offset = 0; offset + kEntrySize <= size && entries < kMaxEntries;
         offset += kEntrySize) {
        const uint8_t* entry = data + offset;
        if (entry[0] != kEntryMagic) {
            break;
        }
        ++entries;
        if (entry[2] == kTypeApplication && readLE32(entry + 4) == kApplicationOffset) {
            applicationFound = true;
        }
    }
    return entries > 0 && applicationFound;
}

}  // namespace esp
