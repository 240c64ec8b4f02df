#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "app/MachineConfigCheck.h"
#include "app/UpdateController.h"

// Any bytes may be picked as a configuration file; a version found is text that
// stood in the file, which has a "meta:" line. The configuration check reads any
// bytes, and takes nothing larger than its limit.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto version = UpdateController::extractMetaVersion(bytes);
    if (version) {
        if (version->isEmpty() || !QString::fromUtf8(bytes).contains(*version) ||
            !bytes.contains("meta:")) {
            std::abort();
        }
    }
    if (!machineConfigProblem(bytes) && bytes.size() > kMaxMachineConfigSize) {
        std::abort();
    }
    return 0;
}
