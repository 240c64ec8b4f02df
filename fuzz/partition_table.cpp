#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "api/Jobs.h"
#include "esp/Packet.h"

namespace {

// The rule restated the plainest way, to compare against.
bool reference(const uint8_t* data, size_t size) {
    bool application = false;
    size_t entries = 0;
    for (size_t at = 0; at + 32 <= size && entries < 128 && data[at] == 0xAA; at += 32) {
        ++entries;
        application = application || (data[at + 2] == 0 && esp::readLE32(data + at + 4) == 0x10000);
    }
    return entries > 0 && application;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (esp::isPartitionTableValid(data, size) != reference(data, size)) {
        std::abort();
    }
    if (esp::isPartitionTableValid(nullptr, size)) {
        std::abort();
    }
    return 0;
}
