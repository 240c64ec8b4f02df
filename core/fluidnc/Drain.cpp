#include "fluidnc/Drain.h"

#include <algorithm>
#include <cstdint>

#include "serial/Clock.h"

namespace fluidnc {

void drainInput(SerialPort& port, size_t chunk, int sliceMs, Transcript* transcript) {
    uint8_t scratch[256];
    const size_t want = std::min(chunk, sizeof scratch);
    const mono::Deadline limit(kDrainLimitMs);
    size_t drained = 0;
    while (drained < kDrainLimitBytes && !limit.expired()) {
        const size_t n = port.read(scratch, want, sliceMs);
        if (n == 0) {
            return;
        }
        if (transcript != nullptr) {
            transcript->append(scratch, n);
        }
        drained += n;
    }
}

}  // namespace fluidnc
