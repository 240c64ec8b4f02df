#include "app/operations/MachineConfigFile.h"

#include <QFileInfo>
#include <QSaveFile>

#include "app/FlasherBridge.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"

namespace MachineConfigFile {

std::variant<QByteArray, Outcome> read(const QString& port, const OperationSink& sink) {
    sink.enter(Phase::readingConfig);
    FlasherBridge::Download download = FlasherBridge::downloadFile(
        port, QStringLiteral("config.yaml"), sink.progress, sink.libraryLog);
    if (download.result == 0) {
        return std::move(download.data);
    }
    const DownloadCause cause{download.status.failure, download.status.block};
    Outcome failure = Outcome::library(download.result);
    failure.cause = cause;
    failure.message = Texts::configNotRead(cause);
    return PortDiagnosis::afterJob(port, failure);
}

Outcome write(const QString& path, const QByteArray& bytes, const OperationSink& sink) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QSaveFile file(absolute);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        return Outcome::make(Outcome::Kind::notWritten,
                             Texts::configNotSaved(absolute, file.errorString()));
    }
    sink.info(Texts::configSavedTo(absolute, bytes.size()));
    return Outcome::success(Texts::configSaved());
}

}  // namespace MachineConfigFile
