#include "app/SaveMachineConfigJob.h"

#include <QFileInfo>
#include <QSaveFile>

#include "app/MachineConfigDownload.h"

SaveMachineConfigJob::SaveMachineConfigJob(QString port, QString destination)
    : port_(std::move(port)), destination_(std::move(destination)) {}

QString SaveMachineConfigJob::defaultFileName(const QDateTime& when) {
    return QStringLiteral("machine-config-") + when.toString(QStringLiteral("yyyyMMdd-HHmm")) +
           QStringLiteral(".yaml");
}

std::optional<QString> SaveMachineConfigJob::run(const JobSink& sink) const {
    const MachineConfigRead config = downloadMachineConfig(port_, sink);
    if (!config.bytes) {
        return config.error;
    }
    const QString path = QFileInfo(destination_).absoluteFilePath();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(*config.bytes) != config.bytes->size() ||
        !file.commit()) {
        return QStringLiteral("Could not save the machine config to ") + path +
               QStringLiteral(": ") + file.errorString();
    }
    sink.logLine(QStringLiteral("Machine config saved to %1 (%2 bytes)")
                     .arg(path)
                     .arg(config.bytes->size()));
    return std::nullopt;
}
