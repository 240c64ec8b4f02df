#include "app/operations/RestoreConfig.h"

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/Texts.h"

RestoreConfig::RestoreConfig(QString port, ResourceBundle resources, QString backup,
                             UploadConfig::Options options)
    : port_(std::move(port)),
      resources_(std::move(resources)),
      named_(std::move(backup)),
      options_(std::move(options)) {}

std::optional<Outcome> RestoreConfig::refusal() {
    checked_ = true;
    const BackupIndex index;
    if (named_.isEmpty()) {
        const QString machine =
            options_.machine.isEmpty() ? DeviceQueries::machineIdentity(port_) : options_.machine;
        backup_ = index.newestOf(machine);
        if (!backup_) {
            return Outcome::make(Outcome::Kind::noBackup,
                                 Texts::noBackupOfMachine(machine, index.folder()));
        }
    } else {
        backup_ = index.find(named_);
        if (!backup_) {
            return Outcome::make(Outcome::Kind::noBackup,
                                 Texts::backupNotFound(named_, index.folder()));
        }
    }
    upload_ = std::make_shared<UploadConfig>(port_, resources_, ConfigChoice::ofFile(backup_->path),
                                             options_);
    return upload_->refusal();
}

Outcome RestoreConfig::run(const OperationSink& sink) {
    if (!checked_) {
        if (auto refused = refusal()) {
            return *refused;
        }
    }
    Outcome uploaded = upload_->run(sink);
    if (uploaded.isFailure()) {
        return uploaded;
    }
    uploaded.message = Texts::settingsRestored(Texts::backupTime(backup_->time, sink.audience));
    return uploaded;
}
