#include "app/texts/OutcomeTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class OutcomeTexts {
    Q_DECLARE_TR_FUNCTIONS(OutcomeTexts)
};

}  // namespace

QString noDeviceFound() {
    return OutcomeTexts::tr("No device found. Is it connected?");
}

QString noDeviceFoundDoctor() {
    return OutcomeTexts::tr(
        "No device found. Is it connected? Run teskal-flash doctor to see why.");
}

QString portNotOpened() {
    return OutcomeTexts::tr("Could not open serial port. Is another app using it?");
}

QString syncFailed() {
    return OutcomeTexts::tr("Failed to sync with device. Try unplugging and reconnecting.");
}

QString unexpectedChip() {
    return OutcomeTexts::tr("Unexpected chip detected. Verify hardware.");
}

QString stubFailed() {
    return OutcomeTexts::tr("Failed to upload communication stub.");
}

QString flashWriteFailed() {
    return OutcomeTexts::tr("Flash write failed. Try again.");
}

QString verificationFailed() {
    return OutcomeTexts::tr("Verification failed. Flash may be corrupted \u2014 try again.");
}

QString configUploadFailed() {
    return OutcomeTexts::tr("Config upload failed.");
}

QString timedOut() {
    return OutcomeTexts::tr("Operation timed out. Try unplugging and reconnecting.");
}

QString disconnected() {
    return OutcomeTexts::tr("Device disconnected during operation.");
}

QString unknownError(esp_error_t code) {
    return OutcomeTexts::tr("Unknown error (code %1)").arg(code);
}

QString closeOtherProgramAndRetry() {
    return OutcomeTexts::tr(
        "Close any other program that uses the port, unplug and reconnect the machine, and try "
        "again.");
}

QString replugAndRetry() {
    return OutcomeTexts::tr("Unplug the machine, plug it in again, and try again.");
}

QString contactSupport() {
    return OutcomeTexts::tr(
        "This controller cannot take this firmware; contact support before trying again.");
}

QString retryWithAnotherCable() {
    return OutcomeTexts::tr("Try again; if it fails again, use another USB cable or port.");
}

QString firmwareRunning(const QString& version) {
    return OutcomeTexts::tr("Firmware %1 installed and running.").arg(version);
}

QString firmwareRunningUnnamed() {
    return OutcomeTexts::tr("Firmware installed and running.");
}

QString firmwareOtherVersion(const QString& reported, const QString& expected) {
    return OutcomeTexts::tr(
               "Firmware written and verified, but the machine reports version %1, not %2.")
        .arg(reported, expected);
}

QString firmwareUnconfirmed() {
    return OutcomeTexts::tr(
        "Firmware written and verified, but the machine did not answer to confirm that it runs.");
}

QString firmwareRestartsInALoop() {
    return OutcomeTexts::tr(
        "Firmware written, but the machine does not start: it restarts in a loop.");
}

QString firmwareCrashed() {
    return OutcomeTexts::tr(
        "Firmware written, but the machine does not start: it crashed at start-up.");
}

QString firmwareNotFound() {
    return OutcomeTexts::tr(
        "Firmware written, but the machine does not start: it finds no firmware to start.");
}

QString firmwareUnderpowered() {
    return OutcomeTexts::tr(
        "Firmware written, but the machine does not start: its power supply is too weak.");
}

QString configurationRestarted() {
    return OutcomeTexts::tr("Configuration uploaded; the machine restarted with it.");
}

QString configurationUnconfirmed() {
    return OutcomeTexts::tr(
        "Configuration uploaded, but the machine did not answer after its restart.");
}

QString configurationRestartsInALoop() {
    return OutcomeTexts::tr(
        "Configuration uploaded, but the machine does not start: it restarts in a loop.");
}

QString configurationCrashed() {
    return OutcomeTexts::tr(
        "Configuration uploaded, but the machine does not start: it crashed at start-up.");
}

QString configurationNoFirmware() {
    return OutcomeTexts::tr(
        "Configuration uploaded, but the machine does not start: it finds no firmware to start.");
}

QString configurationUnderpowered() {
    return OutcomeTexts::tr(
        "Configuration uploaded, but the machine does not start: its power supply is too weak.");
}

QString configurationRejected() {
    return OutcomeTexts::tr("The machine rejected its configuration:");
}

QString plugInPowerSupply() {
    return OutcomeTexts::tr(
        "Plug in the machine's own power supply (USB power is not enough), then try again.");
}

QString correctConfiguration(Audience audience) {
    return audience == Audience::window
               ? OutcomeTexts::tr(
                     "Correct the configuration and upload it again, or upload a product's "
                     "configuration from Config > Update Config.")
               : OutcomeTexts::tr(
                     "Correct the configuration and run teskal-flash upload-config again, or "
                     "upload a product's with --product NAME.");
}

QString runUpdateAgain(Audience audience) {
    return audience == Audience::window ? OutcomeTexts::tr("Run the update again.")
                                        : OutcomeTexts::tr("Run teskal-flash flash again.");
}

QString checkSwitchedOn(Audience audience) {
    return audience == Audience::window
               ? OutcomeTexts::tr(
                     "Check that the machine is switched on and connected; if it still does not "
                     "answer, run the update again.")
               : OutcomeTexts::tr(
                     "Check that the machine is switched on and connected, then run teskal-flash "
                     "version.");
}

QString repairIt(Audience audience) {
    return audience == Audience::window
               ? OutcomeTexts::tr(
                     "Press Repair\u2026 to erase the machine, install the firmware again and put "
                     "back your settings. If it keeps happening, save the log (File > Save "
                     "Log\u2026) for support.")
               : OutcomeTexts::tr(
                     "Run teskal-flash repair to erase the machine, install the firmware again "
                     "and put back your settings. If it keeps happening, keep this output for "
                     "support.");
}

QString endedWithoutResult() {
    return OutcomeTexts::tr("ended without a result");
}

QString endedAbnormally() {
    return OutcomeTexts::tr("ended abnormally after its result");
}

QString endedAbnormallyBecause(const QString& why) {
    return OutcomeTexts::tr("ended abnormally after its result: %1").arg(why);
}

}  // namespace Texts
