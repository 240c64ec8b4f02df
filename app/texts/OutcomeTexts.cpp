#include "app/texts/OutcomeTexts.h"

namespace Texts {

QString noDeviceFound() {
    return QStringLiteral("No device found. Is it connected?");
}

QString noDeviceFoundDoctor() {
    return QStringLiteral("No device found. Is it connected? Run teskal-flash doctor to see why.");
}

QString portNotOpened() {
    return QStringLiteral("Could not open serial port. Is another app using it?");
}

QString syncFailed() {
    return QStringLiteral("Failed to sync with device. Try unplugging and reconnecting.");
}

QString unexpectedChip() {
    return QStringLiteral("Unexpected chip detected. Verify hardware.");
}

QString stubFailed() {
    return QStringLiteral("Failed to upload communication stub.");
}

QString flashWriteFailed() {
    return QStringLiteral("Flash write failed. Try again.");
}

QString verificationFailed() {
    return QStringLiteral("Verification failed. Flash may be corrupted \u2014 try again.");
}

QString configUploadFailed() {
    return QStringLiteral("Config upload failed.");
}

QString timedOut() {
    return QStringLiteral("Operation timed out. Try unplugging and reconnecting.");
}

QString disconnected() {
    return QStringLiteral("Device disconnected during operation.");
}

QString unknownError(esp_error_t code) {
    return QStringLiteral("Unknown error (code %1)").arg(code);
}

QString closeOtherProgramAndRetry() {
    return QStringLiteral(
        "Close any other program that uses the port, unplug and reconnect the machine, and try "
        "again.");
}

QString replugAndRetry() {
    return QStringLiteral("Unplug the machine, plug it in again, and try again.");
}

QString contactSupport() {
    return QStringLiteral(
        "This controller cannot take this firmware; contact support before trying again.");
}

QString retryWithAnotherCable() {
    return QStringLiteral("Try again; if it fails again, use another USB cable or port.");
}

QString firmwareRunning(const QString& version) {
    return QStringLiteral("Firmware %1 installed and running.").arg(version);
}

QString firmwareRunningUnnamed() {
    return QStringLiteral("Firmware installed and running.");
}

QString firmwareOtherVersion(const QString& reported, const QString& expected) {
    return QStringLiteral(
               "Firmware written and verified, but the machine reports version %1, not %2.")
        .arg(reported, expected);
}

QString firmwareUnconfirmed() {
    return QStringLiteral(
        "Firmware written and verified, but the machine did not answer to confirm that it runs.");
}

QString firmwareRestartsInALoop() {
    return QStringLiteral(
        "Firmware written, but the machine does not start: it restarts in a loop.");
}

QString firmwareCrashed() {
    return QStringLiteral(
        "Firmware written, but the machine does not start: it crashed at start-up.");
}

QString firmwareNotFound() {
    return QStringLiteral(
        "Firmware written, but the machine does not start: it finds no firmware to start.");
}

QString firmwareUnderpowered() {
    return QStringLiteral(
        "Firmware written, but the machine does not start: its power supply is too weak.");
}

QString configurationRestarted() {
    return QStringLiteral("Configuration uploaded; the machine restarted with it.");
}

QString configurationUnconfirmed() {
    return QStringLiteral(
        "Configuration uploaded, but the machine did not answer after its restart.");
}

QString configurationRestartsInALoop() {
    return QStringLiteral(
        "Configuration uploaded, but the machine does not start: it restarts in a loop.");
}

QString configurationCrashed() {
    return QStringLiteral(
        "Configuration uploaded, but the machine does not start: it crashed at start-up.");
}

QString configurationNoFirmware() {
    return QStringLiteral(
        "Configuration uploaded, but the machine does not start: it finds no firmware to start.");
}

QString configurationUnderpowered() {
    return QStringLiteral(
        "Configuration uploaded, but the machine does not start: its power supply is too weak.");
}

QString configurationRejected() {
    return QStringLiteral("The machine rejected its configuration:");
}

QString plugInPowerSupply() {
    return QStringLiteral(
        "Plug in the machine's own power supply (USB power is not enough), then try again.");
}

QString correctConfiguration(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Correct the configuration and upload it again, or upload a product's "
                     "configuration from Config > Update Config.")
               : QStringLiteral(
                     "Correct the configuration and run teskal-flash upload-config again, or "
                     "upload a product's with --product NAME.");
}

QString runUpdateAgain(Audience audience) {
    return audience == Audience::window ? QStringLiteral("Run the update again.")
                                        : QStringLiteral("Run teskal-flash flash again.");
}

QString checkSwitchedOn(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Check that the machine is switched on and connected; if it still does not "
                     "answer, run the update again.")
               : QStringLiteral(
                     "Check that the machine is switched on and connected, then run teskal-flash "
                     "version.");
}

QString repairIt(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Press Repair\u2026 to erase the machine, install the firmware again and put "
                     "back your settings. If it keeps happening, save the log (File > Save "
                     "Log\u2026) for support.")
               : QStringLiteral(
                     "Run teskal-flash repair to erase the machine, install the firmware again "
                     "and put back your settings. If it keeps happening, keep this output for "
                     "support.");
}

QString endedWithoutResult() {
    return QStringLiteral("ended without a result");
}

QString endedAbnormally() {
    return QStringLiteral("ended abnormally after its result");
}

QString endedAbnormallyBecause(const QString& why) {
    return QStringLiteral("ended abnormally after its result: %1").arg(why);
}

}  // namespace Texts
