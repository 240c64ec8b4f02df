#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "esp/Slip.h"

// Frames found in arbitrary receive buffers must lie inside them and come back
// unchanged through encode and decode.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<uint8_t> bytes(data, data + size);
    if (const auto found = slip::readFrame(data, size)) {
        const auto& [payload, consumed] = *found;
        if (consumed < 2 || consumed > size || payload.size() > consumed - 2) {
            std::abort();
        }
        if (slip::decode(slip::encode(payload)) != payload) {
            std::abort();
        }
    }
    if (const auto decoded = slip::decode(bytes)) {
        if (slip::encode(*decoded).size() > size && decoded->size() > size) {
            std::abort();
        }
    }
    if (slip::decode(slip::encode(bytes)) != bytes) {
        std::abort();
    }
    const auto framed = slip::encode(bytes);
    const auto again = slip::readFrame(framed.data(), framed.size());
    if (!again || again->first != bytes || again->second != framed.size()) {
        std::abort();
    }
    return 0;
}
