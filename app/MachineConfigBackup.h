#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

#include "app/JobSink.h"

/// Keeps the machine's own config.yaml before an upload replaces it.
namespace MachineConfigBackup {

/// The user's data folder for backups: "teskal-firmware-updater/backups" below the
/// generic data location (~/.local/share unless XDG_DATA_HOME says otherwise).
QString folder();

/// "config-yyyyMMdd-HHmmss.yaml" for `when`, as its clock shows it.
QString fileName(const QDateTime& when);

/// Downloads config.yaml from the machine on `port` into `folder()` (created when
/// missing) under `fileName(when)`, written as `SaveMachineConfigJob` writes, which
/// logs where it went. Returns nothing on success, else the user message "Could not
/// back up the machine config; the upload did not start: " and the cause. Blocks
/// the calling thread; one library job at a time.
std::optional<QString> run(const QString& port, const QDateTime& when, const JobSink& sink);

}  // namespace MachineConfigBackup
