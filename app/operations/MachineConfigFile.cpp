#include "app/operations/MachineConfigFile.h"

#include <QFileInfo>
#include <QSaveFile>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/FlasherBridge.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"

namespace MachineConfigFile {
namespace {

std::variant<Read, Outcome> downloadAndKeep(const Request& request,
                                            const std::optional<QString>& firmwareVersion,
                                            const OperationSink& sink) {
    FlasherBridge::Download download = FlasherBridge::downloadFile(
        request.port, QStringLiteral("config.yaml"), sink.progress, sink.libraryLog);
    if (download.result != 0) {
        const DownloadCause cause{download.status.failure, download.status.block};
        Outcome failure = Outcome::library(download.result);
        failure.cause = cause;
        failure.message = Texts::configNotRead(Texts::downloadFailure(cause.failure, cause.block));
        return PortDiagnosis::afterJob(request.port, failure, sink.audience);
    }
    BackupIndex::Source source;
    source.reason = request.reason;
    source.machine =
        request.machine.isEmpty() ? DeviceQueries::machineIdentity(request.port) : request.machine;
    source.firmwareVersion = firmwareVersion;
    auto kept = BackupIndex().keep(download.data, source);
    return Read{std::move(download.data), std::move(kept)};
}

}  // namespace

std::variant<Read, Outcome> read(const Request& request, const OperationSink& sink) {
    sink.enter(Phase::readingConfig);
    return downloadAndKeep(request, DeviceQueries::firmwareVersion(request.port), sink);
}

std::variant<Read, Outcome> read(const Request& request,
                                 const std::optional<QString>& firmwareVersion,
                                 const OperationSink& sink) {
    sink.enter(Phase::readingConfig);
    return downloadAndKeep(request, firmwareVersion, sink);
}

std::variant<Backup, Outcome> keep(const Request& request,
                                   const std::optional<QString>& firmwareVersion,
                                   const OperationSink& sink) {
    auto read = MachineConfigFile::read(request, firmwareVersion, sink);
    if (auto* failure = std::get_if<Outcome>(&read)) {
        return *failure;
    }
    const auto& kept = std::get<Read>(read).kept;
    if (const auto* reason = std::get_if<QString>(&kept)) {
        return Outcome::make(Outcome::Kind::notWritten, *reason);
    }
    const Backup& backup = std::get<Backup>(kept);
    sink.info(Texts::configSavedTo(backup.path, backup.size));
    return backup;
}

void noteUnkept(const Read& read, const OperationSink& sink) {
    if (const auto* reason = std::get_if<QString>(&read.kept)) {
        sink.error(Texts::backupNotKept(*reason));
    }
}

Outcome write(const QString& path, const QByteArray& bytes, const OperationSink& sink) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QSaveFile file(absolute);
    // A configuration can hold network credentials: the owner's alone, as its
    // backups are.
    if (!file.open(QIODevice::WriteOnly) ||
        !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
        file.write(bytes) != bytes.size() || !file.commit()) {
        return Outcome::make(Outcome::Kind::notWritten,
                             Texts::configNotSaved(absolute, file.errorString()));
    }
    sink.info(Texts::configSavedTo(absolute, bytes.size()));
    return Outcome::success(Texts::configSaved());
}

}  // namespace MachineConfigFile
