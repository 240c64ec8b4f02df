#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QtGlobal>
#include <optional>

#include "app/Backup.h"
#include "app/texts/Audience.h"

/// The machine's own configuration and its backups: reading, saving and comparing
/// it, the backups folder, Erase All Flash that keeps the settings, and the repair.
/// Pure functions; any thread.
namespace Texts {

// The machine's own configuration.
QString configSavedTo(const QString& path, qint64 bytes);
QString configNotSaved(const QString& path, const QString& reason);
/// "Could not read config.yaml from the machine: WHY", `why` as `downloadFailure`
/// gives it.
QString configNotRead(const QString& why);
/// Why a download failed (enum esp_download_failure), `block` counted from 1.
QString downloadFailure(int failure, quint32 block);
QString backupFailed(const QString& reason);
QString configSaved();     ///< "Machine config saved"
QString configCompared();  ///< "Machine config compared"
QString configMatches(const QString& label);
QString configDiffers(const QString& label, qsizetype keys);
QString equalByKey();  ///< "Equal by key"
QString different();   ///< "Different"

// The backups folder.
QString backupFolderUnusable(const QString& folder);
QString backupNotWritten(const QString& path, const QString& reason);
QString backupNotKept(const QString& reason);  ///< "No backup was kept: REASON"
QString backupRecordSkipped(const QString& path, const QString& why);
QString notABackupRecord();
QString backupCopyMissing(const QString& fileName);
QString backupCopyChanged(const QString& fileName);
/// A backup's time: in the window the locale's short date and time, the one date
/// format it shows; on the command line "yyyy-MM-dd HH:mm:ss". Local time.
QString backupTime(const QDateTime& time, Audience audience);
/// How the window names a reason: "Saved", "Compared", "Before upload", "Before erase",
/// "Snapshot", "Before update", "Before repair".
QString backupReason(BackupReason reason);
/// "TIME  REASON  VERSION  N bytes  MACHINE  PATH", the reason in the sidecar's word.
QString backupLine(const QString& time, const QString& reason, const QString& version, qint64 bytes,
                   const QString& machine, const QString& path);
QString noBackups(const QString& folder);                   ///< "No backups in FOLDER"
QString backupsIn(qsizetype count, const QString& folder);  ///< "N backups in FOLDER"
QString noBackupOfMachine(const QString& machine, const QString& folder);
QString backupNotFound(const QString& name, const QString& folder);
/// The Restore Machine Config window's summary, with backups and without.
QString backupsToRestore(const QString& folder);
QString noBackupsToRestore(const QString& folder);
QString thisMachine(const QString& machine);  ///< "MACHINE (this machine)"
QString byteCount(qint64 bytes);              ///< "N bytes"
QString noVersion();                          ///< "-", for a firmware that did not answer

// Erase All Flash that keeps the machine's settings.
QString savingSettings();  ///< "Saving the machine's settings before Erase All Flash…"
/// "The machine's firmware does not answer, so its settings cannot be saved."
QString firmwareSilentNothingSaved();
QString erasingWithoutSaving();
QString nothingErased(const QString& reason);  ///< "Nothing was erased: REASON"
QString restoreLaterInWindow(const QString& path);
QString restoreLaterWithCommand(const QString& path, const QString& port, const QString& name);
/// After a configuration the machine rejected, the command that puts back the one
/// it had before.
QString restorePreviousWithCommand(const QString& port, const QString& name);
/// "Settings restored from the backup of TIME."
QString settingsRestored(const QString& time);
/// Erase All Flash that put the settings back: "Firmware VERSION installed and
/// running, with your settings restored from the backup of TIME."
QString firmwareRunningWithSettings(const QString& version, const QString& time);
QString firmwareRunningUnnamedWithSettings(const QString& time);

// Repairing a machine that does not start.
QString shippedFirmware(const QString& version);  ///< "firmware VERSION"
/// "your settings from TIME"; on the command line TIME reads "24 Nov 2026 14:02".
QString settingsOf(const QDateTime& time, Audience audience);
QString currentSettingsSavedFirst();            ///< "your current settings, saved first"
QString stockConfigOf(const QString& product);  ///< "the stock configuration of PRODUCT"
/// "Erase the machine, install FIRMWARE, then put back WHAT."
QString repairPlan(const QString& firmware, const QString& what);
/// "Erase the machine and install FIRMWARE, without a configuration."
QString repairPlanWithoutConfig(const QString& firmware);
/// "Machine repaired: it runs FIRMWARE with WHAT."
QString repaired(const QString& firmware, const QString& what);
QString repairedWithoutConfig(const QString& firmware);
/// Nothing erased because nothing is known to put back: which backups exist
/// (`named`: "FILE (MACHINE, TIME)" each) and how to choose, in the audience's words.
QString nothingToRestore(const QString& machine, const QString& folder, Audience audience);
QString nothingToRestoreBesides(const QString& machine, const QString& folder,
                                const QStringList& named, Audience audience);
QString namedBackup(const QString& fileName, const QString& machine, const QString& time);
/// The dialog's line when the machine has no backup to put back.
QString repairNeedsChoice();

}  // namespace Texts
