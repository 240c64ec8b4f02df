#pragma once

#include <QDateTime>
#include <QString>

/// Where the machine's own config.yaml is kept before an upload replaces it.
namespace MachineConfigBackup {

/// The user's data folder for backups: "teskal-firmware-updater/backups" below the
/// generic data location (~/.local/share unless XDG_DATA_HOME says otherwise).
QString folder();

/// "config-yyyyMMdd-HHmmss.yaml" for `when`, as its clock shows it.
QString fileName(const QDateTime& when);

}  // namespace MachineConfigBackup
