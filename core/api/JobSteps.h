#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "esp/EspLoader.h"
#include "fluidnc/Transcript.h"
#include "serial/SerialPort.h"

/// The steps that the jobs which talk to the ROM loader share, so that each is
/// written once: bootloader entry, the start up to an attached flash, and the wait
/// for the firmware after the reset. Internal to core/api; one thread at a time.
namespace esp {

/// Passes lines to a C log callback; does nothing when it is null.
class JobLog {
  public:
    explicit JobLog(esp_log_cb log) : log_(log) {}

    void operator()(const std::string& line) const {
        if (log_ != nullptr) {
            log_(line.c_str());
        }
    }

    /// The loader session's log function: the same callback, or none.
    EspLoader::LogFn forLoader() const {
        if (log_ == nullptr) {
            return {};
        }
        return [log = log_](const std::string& line) { log(line.c_str()); };
    }

  private:
    esp_log_cb log_;
};

/// At most three resets into the ROM loader, each followed by up to ten SYNCs;
/// true at the first answered SYNC. Logs "Syncing..." for each attempt and, from the
/// second on, "Retrying bootloader entry (attempt N)..." before it.
bool enterAndSync(EspLoader& loader, const JobLog& log);

/// From "Entering bootloader..." to an attached flash: bootloader entry, chip id 9,
/// the security fuses, the stub, SPI_ATTACH (whose result is not examined), with
/// the flashing job's log lines. Returns 0, or 3, 4 or 5 for the step that failed.
esp_error_t startFlasher(EspLoader& loader, const uint8_t* stub, size_t stubLen, const JobLog& log);

/// After the reset into the firmware: the 2 s it needs before its console answers
/// (listened to into `keep` when given, else slept through), then up to three
/// version queries of 2 s, 1 s apart. The first version answered, or none.
std::optional<std::string> awaitVersion(SerialPort& port, fluidnc::Transcript* keep);

/// `awaitVersion` with everything the machine prints kept, as a record; logs nothing.
StartupRecord hearRestart(SerialPort& port);

}  // namespace esp
