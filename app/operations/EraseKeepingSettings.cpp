#include "app/operations/EraseKeepingSettings.h"

#include <QFileInfo>

#include "app/DeviceQueries.h"
#include "app/Texts.h"
#include "app/operations/MachineConfigFile.h"

EraseKeepingSettings::EraseKeepingSettings(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {
    options_.flash.eraseAll = true;
}

Outcome EraseKeepingSettings::run(const OperationSink& sink) {
    sink.info(Texts::savingSettings());
    const auto version = DeviceQueries::firmwareVersion(port_);
    if (!version) {
        if (!options_.goOnWhenSilent) {
            stop_ = Stop::firmwareSilent;
            return Outcome::make(Outcome::Kind::noAnswer, Texts::firmwareSilentNothingSaved());
        }
        sink.info(Texts::firmwareSilentNothingSaved());
        sink.info(Texts::erasingWithoutSaving());
        return flash(sink);
    }
    if (auto failure = saveSettings(version, sink)) {
        stop_ = Stop::notSaved;
        failure->message = Texts::nothingErased(failure->message);
        return *failure;
    }
    // The flashing job is the same as without the save; only a machine that runs
    // afterwards can take its configuration back. A firmware that rejects its
    // configuration runs too, and after the erase it has none of its own.
    const Outcome flashed = flash(sink);
    if (flashed.kind != Outcome::Kind::succeeded && flashed.kind != Outcome::Kind::configRejected) {
        return notRestored(flashed, sink);
    }
    Outcome restored = restore_->run(sink);
    if (restored.isFailure()) {
        return notRestored(restored, sink);
    }
    restored.message = Texts::settingsRestored(backup_->time);
    sink.info(restored.message);
    return restored;
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
    sink.info(options_.commandLinePort
                  ? Texts::restoreLaterWithCommand(backup_->path, *options_.commandLinePort, name)
                  : Texts::restoreLaterInWindow(backup_->path));
    return outcome;
}
