#include <string>

#include "api/JobSteps.h"
#include "api/Jobs.h"
#include "serial/Clock.h"

namespace esp {

esp_error_t runRestoreJob(SerialPort& port, const uint8_t* snapshot, size_t size,
                          const uint8_t* stub, size_t stubLen, esp_progress_cb progress,
                          esp_log_cb log, StartupRecord* startup) {
    const JobLog jobLog(log);
    // Opening the node raises DTR and RTS, which the chip may take as a reset.
    mono::sleepMs(500);
    EspLoader loader(port, jobLog.forLoader());
    if (const auto code = startFlasher(loader, stub, stubLen, jobLog); code != 0) {
        return code;
    }
    jobLog("Restoring whole flash: " + std::to_string(size) + " bytes at 0x00000");
    if (!loader.flashImage(0, snapshot, size, progress, ESP_PROGRESS_REGIONS_START,
                           ESP_PROGRESS_REGIONS_SPAN)) {
        return result::WriteFailed;
    }
    if (!loader.verifyFlash(0, size, snapshot)) {
        return result::VerifyFailed;
    }
    loader.flashEnd();
    loader.hardReset();
    if (startup != nullptr) {
        *startup = hearRestart(port);
    }
    return result::Success;
}

}  // namespace esp
