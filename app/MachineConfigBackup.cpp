#include "app/MachineConfigBackup.h"

#include <QStandardPaths>

namespace MachineConfigBackup {

QString folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/teskal-firmware-updater/backups");
}

QString fileName(const QDateTime& when) {
    return QStringLiteral("config-") + when.toString(QStringLiteral("yyyyMMdd-HHmmss")) +
           QStringLiteral(".yaml");
}

}  // namespace MachineConfigBackup
