#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "esp/Packet.h"

namespace {

// A parsed response must be made of the frame's own bytes: its data ends where
// the status bytes of the declared size begin.
void check(const std::vector<uint8_t>& frame, bool stubRunning) {
    const auto response = esp::parseResponsePacket(frame, stubRunning);
    if (!response) {
        return;
    }
    const size_t statusBytes = stubRunning ? 2 : 4;
    const size_t declared = esp::readLE16(frame, 2);
    if (response->data.size() + statusBytes != declared || 8 + declared > frame.size() ||
        response->op != frame[1] || response->status != frame[8 + response->data.size()] ||
        !std::equal(response->data.begin(), response->data.end(), frame.begin() + 8)) {
        std::abort();
    }
    if (std::strlen(esp::cmdName(response->op)) == 0) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<uint8_t> frame(data, data + size);
    check(frame, false);
    check(frame, true);
    return 0;
}
