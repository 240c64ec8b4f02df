#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "esp/EspLoader.h"
#include "esp/Packet.h"

// An accepted header never claims segments beyond the image, whatever the sizes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto header = esp::EspLoader::parseStubHeader(data, size);
    if (header) {
        const uint64_t end = uint64_t{20} + header->textSize + header->dataSize;
        if (size < 20 || end > size) {
            std::abort();
        }
    } else if (size >= 20) {
        const uint64_t end = uint64_t{20} + esp::readLE32(data + 4) + esp::readLE32(data + 12);
        if (end <= size) {
            std::abort();
        }
    }
    return 0;
}
