#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "fluidnc/Console.h"
#include "serial/Clock.h"
#include "serial/SerialPort.h"

// The console's answer to "$I" comes from the input; silence costs virtual time only.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string answer(reinterpret_cast<const char*>(data), size);
    SerialPort port;
    port.openLoopback(
        [&](const uint8_t* bytes, size_t len) {
            const std::string written(reinterpret_cast<const char*>(bytes), len);
            return written == "$I\n" ? std::vector<uint8_t>(data, data + size)
                                     : std::vector<uint8_t>{};
        },
        [](int timeoutMs) {
            mono::sleepMs(timeoutMs);
            return std::vector<uint8_t>{};
        });
    const int64_t start = mono::nowNs();
    const auto version = fluidnc::queryVersion(port, 2000);
    if (version) {
        if (answer.find("[VER:" + *version) == std::string::npos) {
            std::abort();
        }
    }
    fluidnc::waitForOk(port, 500);
    // Every wait is bounded: 50 ms to drain, 2 s for the answer, 0.5 s for "ok".
    if (mono::nowNs() - start > int64_t{4000} * 1'000'000 + static_cast<int64_t>(size) * 100'000) {
        std::abort();
    }
    return 0;
}
