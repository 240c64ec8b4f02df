#include "app/StartupVerdict.h"

#include "app/VersionText.h"
#include "app/texts/OutcomeTexts.h"

namespace StartupVerdict {
namespace {

QString firmwareMessage(const StartupCause& cause) {
    const QString version =
        VersionText::shown(cause.version.value_or(cause.expected.value_or(QString())));
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
            return version.isEmpty() ? Texts::firmwareRunningUnnamed()
                                     : Texts::firmwareRunning(version);
        case ESP_STARTUP_WRONG_VERSION:
            return Texts::firmwareOtherVersion(
                VersionText::shown(cause.version.value_or(QString())),
                VersionText::shown(cause.expected.value_or(QString())));
        case ESP_STARTUP_BOOT_LOOP:
            return Texts::firmwareRestartsInALoop();
        case ESP_STARTUP_PANIC:
            return Texts::firmwareCrashed();
        case ESP_STARTUP_NO_APP:
            return Texts::firmwareNotFound();
        case ESP_STARTUP_BROWNOUT:
            return Texts::firmwareUnderpowered();
        case ESP_STARTUP_CONFIG_ERROR:
            return Texts::configurationRejected();
        default:
            return Texts::firmwareUnconfirmed();
    }
}

QString configurationMessage(const StartupCause& cause) {
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
        case ESP_STARTUP_WRONG_VERSION:
            return Texts::configurationRestarted();
        case ESP_STARTUP_BOOT_LOOP:
            return Texts::configurationRestartsInALoop();
        case ESP_STARTUP_PANIC:
            return Texts::configurationCrashed();
        case ESP_STARTUP_NO_APP:
            return Texts::configurationNoFirmware();
        case ESP_STARTUP_BROWNOUT:
            return Texts::configurationUnderpowered();
        case ESP_STARTUP_CONFIG_ERROR:
            return Texts::configurationRejected();
        default:
            return Texts::configurationUnconfirmed();
    }
}

}  // namespace

Outcome::Kind kind(int verdict) {
    switch (verdict) {
        case ESP_STARTUP_RUNNING:
            return Outcome::Kind::succeeded;
        case ESP_STARTUP_BOOT_LOOP:
        case ESP_STARTUP_PANIC:
        case ESP_STARTUP_NO_APP:
        case ESP_STARTUP_BROWNOUT:
            return Outcome::Kind::notStarting;
        case ESP_STARTUP_CONFIG_ERROR:
            return Outcome::Kind::configRejected;
        default:
            return Outcome::Kind::notConfirmed;
    }
}

QString message(const StartupCause& cause) {
    return cause.written == StartupCause::Written::firmware ? firmwareMessage(cause)
                                                            : configurationMessage(cause);
}

QString nextStep(const StartupCause& cause, Texts::Audience audience) {
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
            return QString();
        case ESP_STARTUP_BROWNOUT:
            return Texts::plugInPowerSupply();
        case ESP_STARTUP_CONFIG_ERROR:
            return Texts::correctConfiguration(audience);
        case ESP_STARTUP_WRONG_VERSION:
            return Texts::runUpdateAgain(audience);
        case ESP_STARTUP_NO_ANSWER:
            return Texts::checkSwitchedOn(audience);
        default:
            return Texts::repairIt(audience);
    }
}

bool repairHelps(const StartupCause& cause) {
    return cause.verdict == ESP_STARTUP_BOOT_LOOP || cause.verdict == ESP_STARTUP_PANIC ||
           cause.verdict == ESP_STARTUP_NO_APP;
}

}  // namespace StartupVerdict
