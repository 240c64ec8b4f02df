#include "app/operations/UploadConfig.h"

#include <QFileInfo>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/FlasherBridge.h"
#include "app/MachineConfigCheck.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CheckStartup.h"
#include "app/operations/MachineConfigFile.h"

namespace {

// The firmware restarts after the upload: finding its port again and the whole
// check after it take no longer than this.
constexpr int kCheckAfterUploadMs = 8000;

}  // namespace

UploadConfig::UploadConfig(QString port, ResourceBundle resources, ConfigChoice choice,
                           Options options)
    : port_(std::move(port)),
      resources_(std::move(resources)),
      choice_(std::move(choice)),
      options_(options) {}

std::optional<Outcome> UploadConfig::refusal() {
    checked_ = true;
    if (choice_.product) {
        if (options_.developmentConfigsRefused) {
            return Outcome::make(Outcome::Kind::refused, Texts::developmentConfigs());
        }
        return std::nullopt;
    }
    auto checked = choice_.bytes ? checkConfigBytes(choice_.path, *choice_.bytes)
                                 : checkConfigFile(choice_.path);
    if (auto* refused = std::get_if<Outcome>(&checked)) {
        return *refused;
    }
    fileBytes_ = std::get<QByteArray>(std::move(checked));
    announcement_ =
        Texts::preparingFile(QFileInfo(choice_.path).fileName(),
                             Texts::versionSuffix(VersionText::metaVersion(fileBytes_)));
    return std::nullopt;
}

Outcome UploadConfig::run(const OperationSink& sink) {
    if (!checked_) {
        if (auto refused = refusal()) {
            return *refused;
        }
    }
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    if (!choice_.product) {
        sink.info(announcement_);
    }
    if (options_.backUpFirst) {
        if (auto failure = backUp(sink)) {
            return *failure;
        }
    }
    const auto bytes = choice_.product ? productConfig(sink) : std::optional(fileBytes_);
    if (!bytes) {
        return Outcome::make(Outcome::Kind::missingResource,
                             Texts::configMissing(choice_.product->configFile));
    }
    if (!choice_.product) {
        sink.enter(Phase::uploadingConfig, bytes->size());
        sink.info(Texts::uploadingFile());
    }
    const PlotterPort plotter = PlotterPort::at(port_);
    const esp_error_t result =
        FlasherBridge::uploadConfig(port_, *bytes, sink.progress, sink.libraryLog);
    if (result != 0) {
        return PortDiagnosis::afterJob(port_, Outcome::library(result), sink.audience);
    }
    sink.enter(Phase::configUploaded);
    sink.info(Texts::uploadComplete());
    Outcome started = CheckStartup(plotter, StartupCause::Written::configuration, std::nullopt,
                                   kCheckAfterUploadMs)
                          .run(sink);
    if (started.kind == Outcome::Kind::configRejected) {
        std::get<StartupCause>(started.cause).previous = previous(sink);
    }
    return started;
}

std::optional<Backup> UploadConfig::previous(const OperationSink& sink) const {
    const auto found = backup_ ? backup_
                               : BackupIndex().newestOf(options_.machine.isEmpty()
                                                            ? DeviceQueries::machineIdentity(port_)
                                                            : options_.machine);
    if (!found || (!choice_.product && found->path == choice_.path)) {
        return std::nullopt;
    }
    if (sink.audience == Texts::Audience::commandLine) {
        sink.info(
            Texts::restorePreviousWithCommand(sink.portName, QFileInfo(found->path).fileName()));
    }
    return found;
}

// The state is "uploading" from the start, also when the file then is not found.
std::optional<QByteArray> UploadConfig::productConfig(const OperationSink& sink) const {
    const auto found = resources_.readConfig(choice_.product->configFile);
    sink.enter(Phase::uploadingConfig, found ? found->size() : 0);
    if (found) {
        sink.info(Texts::preparingProduct(choice_.product->name,
                                          Texts::versionSuffix(VersionText::metaVersion(*found))));
    }
    return found;
}

std::optional<Outcome> UploadConfig::backUp(const OperationSink& sink) {
    auto read =
        MachineConfigFile::read({port_, options_.machine, BackupReason::beforeUpload}, sink);
    if (auto* failure = std::get_if<Outcome>(&read)) {
        failure->message = Texts::backupFailed(failure->message);
        return *failure;
    }
    const auto& kept = std::get<MachineConfigFile::Read>(read).kept;
    if (const auto* reason = std::get_if<QString>(&kept)) {
        return Outcome::make(Outcome::Kind::notWritten, Texts::backupFailed(*reason));
    }
    backup_ = std::get<Backup>(kept);
    sink.info(Texts::configSavedTo(backup_->path, backup_->size));
    return std::nullopt;
}
