#include "app/MachineConfigBackup.h"

#include <QDir>
#include <QStandardPaths>

#include "app/SaveMachineConfigJob.h"

namespace MachineConfigBackup {

QString folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/teskal-firmware-updater/backups");
}

QString fileName(const QDateTime& when) {
    return QStringLiteral("config-") + when.toString(QStringLiteral("yyyyMMdd-HHmmss")) +
           QStringLiteral(".yaml");
}

std::optional<QString> run(const QString& port, const QDateTime& when, const JobSink& sink) {
    const QDir backups(folder());
    // A folder that cannot be made shows up as the file that cannot be written.
    backups.mkpath(QStringLiteral("."));
    const SaveMachineConfigJob save(port, backups.filePath(fileName(when)));
    if (const auto failure = save.run(sink)) {
        return QStringLiteral("Could not back up the machine config; the upload did not start: ") +
               *failure;
    }
    return std::nullopt;
}

}  // namespace MachineConfigBackup
