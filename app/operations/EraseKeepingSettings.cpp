#include "app/operations/EraseKeepingSettings.h"

#include <QFileInfo>

#include "app/DeviceQueries.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/MachineConfigFile.h"

namespace {

// The banner's sentence tells the firmware and the settings alike.
QString restoredMessage(const Outcome& flashed, const QString& time) {
    const StartupCause* started = flashed.startup();
    const QString version =
        started
            ? VersionText::shown(started->version.value_or(started->expected.value_or(QString())))
            : QString();
    return version.isEmpty() ? Texts::firmwareRunningUnnamedWithSettings(time)
                             : Texts::firmwareRunningWithSettings(version, time);
}

Outcome stopped(Outcome outcome, SettingsCause::Stop stop) {
    SettingsCause cause;
    cause.stop = stop;
    outcome.cause = cause;
    return outcome;
}

}  // namespace

EraseKeepingSettings::EraseKeepingSettings(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {
    options_.flash.eraseAll = true;
}

Outcome EraseKeepingSettings::run(const OperationSink& sink) {
    sink.info(Texts::savingSettings());
    const auto version = DeviceQueries::firmwareVersion(port_);
    // Before anything is saved or erased: the flashing job would refuse it only
    // after the settings were read.
    if (auto& release = options_.flash.release) {
        if (auto older = olderRefusal(*release, version, sink.audience)) {
            return *older;
        }
        release->allowOlder = true;
    }
    if (!version) {
        if (!options_.goOnWhenSilent) {
            return stopped(
                Outcome::make(Outcome::Kind::noAnswer, Texts::firmwareSilentNothingSaved()),
                SettingsCause::Stop::firmwareSilent);
        }
        sink.info(Texts::firmwareSilentNothingSaved());
        sink.info(Texts::erasingWithoutSaving());
        return carrying(flash(sink), false);
    }
    if (auto failure = saveSettings(version, sink)) {
        failure->message = Texts::nothingErased(failure->message);
        return stopped(*failure, SettingsCause::Stop::notSaved);
    }
    options_.flash.putBack = Texts::settingsOf(backup_->time, sink.audience);
    // The flashing job is the same as without the save; only a machine that runs
    // afterwards can take its configuration back. A firmware that rejects its
    // configuration runs too, and after the erase it has none of its own.
    const Outcome flashed = flash(sink);
    if (flashed.kind != Outcome::Kind::succeeded && flashed.kind != Outcome::Kind::configRejected) {
        return carrying(notRestored(flashed, sink), false);
    }
    Outcome restored = restore_->run(sink);
    if (restored.isFailure()) {
        return carrying(notRestored(restored, sink), false);
    }
    restored.message = restoredMessage(flashed, Texts::backupTime(backup_->time, sink.audience));
    return carrying(restored, true);
}

// The copy is checked as its upload will check it before anything is erased, so
// that a machine is never left without settings that could not be put back.
std::optional<Outcome> EraseKeepingSettings::saveSettings(const std::optional<QString>& version,
                                                          const OperationSink& sink) {
    auto kept = MachineConfigFile::keep({port_, options_.machine, BackupReason::beforeErase},
                                        version, sink);
    if (auto* failure = std::get_if<Outcome>(&kept)) {
        return *failure;
    }
    backup_ = std::get<Backup>(kept);
    UploadConfig::Options upload;
    upload.machine = options_.machine;
    restore_ = std::make_shared<UploadConfig>(port_, resources_,
                                              ConfigChoice::ofFile(backup_->path), upload);
    return restore_->refusal();
}

Outcome EraseKeepingSettings::flash(const OperationSink& sink) const {
    return FlashFirmware(port_, resources_, options_.flash).run(sink);
}

Outcome EraseKeepingSettings::notRestored(Outcome outcome, const OperationSink& sink) const {
    const QString name = QFileInfo(backup_->path).fileName();
    sink.info(sink.audience == Texts::Audience::window
                  ? Texts::restoreLaterInWindow(backup_->path)
                  : Texts::restoreLaterWithCommand(backup_->path, sink.portName, name));
    return outcome;
}

Outcome EraseKeepingSettings::carrying(Outcome outcome, bool restored) const {
    if (outcome.isVerdict() || std::holds_alternative<std::monostate>(outcome.cause)) {
        const StartupCause* startup = outcome.startup();
        SettingsCause cause;
        cause.startup = startup ? std::optional(*startup) : std::nullopt;
        cause.saved = backup_ ? std::optional(backup_->path) : std::nullopt;
        cause.restored = restored ? cause.saved : std::nullopt;
        outcome.cause = cause;
    }
    return outcome;
}
