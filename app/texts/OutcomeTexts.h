#pragma once

#include <QString>

#include "app/texts/Audience.h"
#include "esp_flasher.h"

/// How jobs end, in the owner's words: the library's result codes, the machine's
/// start after a write, and what to do next. Pure functions; any thread.
namespace Texts {

// The library's result codes (enum esp_result).
QString noDeviceFound();        ///< "No device found. Is it connected?"
QString noDeviceFoundDoctor();  ///< the same, then "Run teskal-flash doctor to see why."
QString portNotOpened();        ///< "Could not open serial port. Is another app using it?"
QString syncFailed();
QString unexpectedChip();
QString stubFailed();
QString flashWriteFailed();
QString verificationFailed();
QString configUploadFailed();
QString timedOut();
QString disconnected();
QString unknownError(esp_error_t code);  ///< "Unknown error (code N)"

// What to do after a library failure.
QString closeOtherProgramAndRetry();
QString replugAndRetry();
QString contactSupport();
QString retryWithAnotherCable();

// How the machine started after a firmware write.
QString firmwareRunning(const QString& version);  ///< "Firmware 2.10.6 installed and running."
QString firmwareRunningUnnamed();                 ///< "Firmware installed and running."
QString firmwareOtherVersion(const QString& reported, const QString& expected);
QString firmwareUnconfirmed();
QString firmwareRestartsInALoop();
QString firmwareCrashed();
QString firmwareNotFound();
QString firmwareUnderpowered();
// How the machine started after a configuration upload.
QString configurationRestarted();
QString configurationUnconfirmed();
QString configurationRestartsInALoop();
QString configurationCrashed();
QString configurationNoFirmware();
QString configurationUnderpowered();
/// "The machine rejected its configuration:", followed by its own lines.
QString configurationRejected();

// What to do after the machine's start.
QString plugInPowerSupply();
QString correctConfiguration(Audience audience);
QString runUpdateAgain(Audience audience);
QString checkSwitchedOn(Audience audience);
QString repairIt(Audience audience);

// Several plotters at once, one process each.
QString endedWithoutResult();  ///< "ended without a result"
QString endedAbnormally();     ///< "ended abnormally after its result"
QString endedAbnormallyBecause(const QString& why);

}  // namespace Texts
