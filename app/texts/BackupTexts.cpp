#include "app/texts/BackupTexts.h"

#include <QLocale>
#include <QStringList>

#include "esp_flasher.h"

namespace Texts {

QString configSavedTo(const QString& path, qint64 bytes) {
    return QStringLiteral("Machine config saved to %1 (%2 bytes)")
        .arg(path, QString::number(bytes));
}

QString configNotSaved(const QString& path, const QString& reason) {
    return QStringLiteral("Could not save the machine config to %1: %2").arg(path, reason);
}

QString configNotRead(const QString& why) {
    return QStringLiteral("Could not read config.yaml from the machine: %1").arg(why);
}

QString downloadFailure(int failure, quint32 block) {
    switch (failure) {
        case ESP_DOWNLOAD_PORT_NOT_OPENED:
            return QStringLiteral("Failed to open port");
        case ESP_DOWNLOAD_INVALID_ARGUMENTS:
            return QStringLiteral("XModem download: invalid arguments");
        case ESP_DOWNLOAD_INVALID_NAME:
            return QStringLiteral("XModem download: invalid file name");
        case ESP_DOWNLOAD_COMMAND_NOT_SENT:
            return QStringLiteral("XModem download: could not send the command");
        case ESP_DOWNLOAD_NO_BLOCK:
            return QStringLiteral("XModem download: no block received");
        case ESP_DOWNLOAD_CANCELLED:
            return QStringLiteral("XModem download: cancelled by the device");
        case ESP_DOWNLOAD_TOO_LARGE:
            return QStringLiteral("XModem download: file larger than 16 MiB");
        case ESP_DOWNLOAD_BLOCK_FAILED:
            return QStringLiteral("XModem download: block %1 failed 25 times").arg(block);
        case ESP_DOWNLOAD_ANSWER_NOT_SENT:
            return QStringLiteral("XModem download: could not answer the device");
        case ESP_DOWNLOAD_OUT_OF_MEMORY:
            return QStringLiteral("XModem download: out of memory");
        default:
            return QStringLiteral("XModem download: failed (%1)").arg(failure);
    }
}

QString backupFailed(const QString& reason) {
    return QStringLiteral("Could not back up the machine config; the upload did not start: %1")
        .arg(reason);
}

QString configSaved() {
    return QStringLiteral("Machine config saved");
}

QString configCompared() {
    return QStringLiteral("Machine config compared");
}

QString configMatches(const QString& label) {
    return QStringLiteral("Machine config matches %1 by key").arg(label);
}

QString configDiffers(const QString& label, qsizetype keys) {
    return keys == 1 ? QStringLiteral("Machine config differs from %1 in 1 key").arg(label)
                     : QStringLiteral("Machine config differs from %1 in %2 keys")
                           .arg(label, QString::number(keys));
}

QString equalByKey() {
    return QStringLiteral("Equal by key");
}

QString different() {
    return QStringLiteral("Different");
}

QString backupFolderUnusable(const QString& folder) {
    return QStringLiteral("Could not prepare the backups folder %1 as a folder only you can read")
        .arg(folder);
}

QString backupNotWritten(const QString& path, const QString& reason) {
    return QStringLiteral("Could not write the backup %1: %2").arg(path, reason);
}

QString backupNotKept(const QString& reason) {
    return QStringLiteral("No backup was kept: %1").arg(reason);
}

QString backupRecordSkipped(const QString& path, const QString& why) {
    return QStringLiteral("Skipped the backup record %1: %2").arg(path, why);
}

QString notABackupRecord() {
    return QStringLiteral("not a backup record");
}

QString backupCopyMissing(const QString& fileName) {
    return QStringLiteral("its copy %1 is missing").arg(fileName);
}

QString backupCopyChanged(const QString& fileName) {
    return QStringLiteral("its copy %1 has changed").arg(fileName);
}

QString backupTime(const QDateTime& time, Audience audience) {
    return audience == Audience::window
               ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)
               : time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString backupReason(BackupReason reason) {
    switch (reason) {
        case BackupReason::save:
            return QStringLiteral("Saved");
        case BackupReason::compare:
            return QStringLiteral("Compared");
        case BackupReason::beforeUpload:
            return QStringLiteral("Before upload");
        case BackupReason::beforeErase:
            return QStringLiteral("Before erase");
        case BackupReason::snapshot:
            return QStringLiteral("Snapshot");
        case BackupReason::beforeUpdate:
            return QStringLiteral("Before update");
        case BackupReason::beforeRepair:
            return QStringLiteral("Before repair");
    }
    return QString();
}

QString backupLine(const QString& time, const QString& reason, const QString& version, qint64 bytes,
                   const QString& machine, const QString& path) {
    return QStringLiteral("%1  %2  %3  %4 bytes  %5  %6")
        .arg(time, reason, version, QString::number(bytes), machine, path);
}

QString noBackups(const QString& folder) {
    return QStringLiteral("No backups in %1").arg(folder);
}

QString backupsIn(qsizetype count, const QString& folder) {
    return count == 1 ? QStringLiteral("1 backup in %1").arg(folder)
                      : QStringLiteral("%1 backups in %2").arg(QString::number(count), folder);
}

QString noBackupOfMachine(const QString& machine, const QString& folder) {
    return QStringLiteral("No backup of the machine %1 in %2").arg(machine, folder);
}

QString backupNotFound(const QString& name, const QString& folder) {
    return QStringLiteral("No backup %1 in %2").arg(name, folder);
}

QString backupsToRestore(const QString& folder) {
    return QStringLiteral(
               "Every configuration read from a machine is kept in %1. The connected "
               "machine's are on top, newest first.")
        .arg(folder);
}

QString noBackupsToRestore(const QString& folder) {
    return QStringLiteral(
               "No configuration has been kept yet. Every configuration read from a machine "
               "(Save Machine Config, Compare With Machine, the backup before an upload, the "
               "save before Erase All Flash) is kept in %1.")
        .arg(folder);
}

QString thisMachine(const QString& machine) {
    return QStringLiteral("%1 (this machine)").arg(machine);
}

QString byteCount(qint64 bytes) {
    return QStringLiteral("%1 bytes").arg(bytes);
}

QString noVersion() {
    return QStringLiteral("-");
}

QString savingSettings() {
    return QStringLiteral("Saving the machine's settings before Erase All Flash\u2026");
}

QString firmwareSilentNothingSaved() {
    return QStringLiteral(
        "The machine's firmware does not answer, so its settings cannot be saved.");
}

QString erasingWithoutSaving() {
    return QStringLiteral("Erasing all flash without saving the settings.");
}

QString nothingErased(const QString& reason) {
    return QStringLiteral("Nothing was erased: %1").arg(reason);
}

QString restoreLaterInWindow(const QString& path) {
    return QStringLiteral(
               "The settings read before the erase were not put back; they are kept in %1. "
               "Once the machine runs, restore them with Config > Restore Machine Config\u2026.")
        .arg(path);
}

QString restoreLaterWithCommand(const QString& path, const QString& port, const QString& name) {
    return QStringLiteral(
               "The settings read before the erase were not put back; they are kept in %1. "
               "Once the machine runs, restore them with: teskal-flash restore-config --port %2 "
               "%3")
        .arg(path, port, name);
}

QString restorePreviousWithCommand(const QString& port, const QString& name) {
    return QStringLiteral(
               "To put back the configuration the machine had before: teskal-flash "
               "restore-config --port %1 %2")
        .arg(port, name);
}

QString settingsRestored(const QString& time) {
    return QStringLiteral("Settings restored from the backup of %1.").arg(time);
}

QString firmwareRunningWithSettings(const QString& version, const QString& time) {
    return QStringLiteral(
               "Firmware %1 installed and running, with your settings restored from the backup "
               "of %2.")
        .arg(version, time);
}

QString firmwareRunningUnnamedWithSettings(const QString& time) {
    return QStringLiteral(
               "Firmware installed and running, with your settings restored from the backup of "
               "%1.")
        .arg(time);
}

QString shippedFirmware(const QString& version) {
    return QStringLiteral("firmware %1").arg(version);
}

QString settingsOf(const QDateTime& time, Audience audience) {
    const QString when =
        audience == Audience::window
            ? backupTime(time, audience)
            : QLocale::c().toString(time.toLocalTime(), QStringLiteral("d MMM yyyy HH:mm"));
    return QStringLiteral("your settings from %1").arg(when);
}

QString currentSettingsSavedFirst() {
    return QStringLiteral("your current settings, saved first");
}

QString stockConfigOf(const QString& product) {
    return QStringLiteral("the stock configuration of %1").arg(product);
}

QString repairPlan(const QString& firmware, const QString& what) {
    return QStringLiteral("Erase the machine, install %1, then put back %2.").arg(firmware, what);
}

QString repairPlanWithoutConfig(const QString& firmware) {
    return QStringLiteral("Erase the machine and install %1, without a configuration.")
        .arg(firmware);
}

QString repaired(const QString& firmware, const QString& what) {
    return QStringLiteral("Machine repaired: it runs %1 with %2.").arg(firmware, what);
}

QString repairedWithoutConfig(const QString& firmware) {
    return QStringLiteral("Machine repaired: it runs %1, without a configuration.").arg(firmware);
}

QString nothingToRestore(const QString& machine, const QString& folder, Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. No backups in %2. Choose another backup, a product's "
                     "stock configuration, or none in the Repair dialog.")
                     .arg(machine, folder)
               : QStringLiteral(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. No backups in %2. Choose what goes back with --backup "
                     "FILE, --product NAME or --no-config.")
                     .arg(machine, folder);
}

QString nothingToRestoreBesides(const QString& machine, const QString& folder,
                                const QStringList& named, Audience audience) {
    const QString list = named.join(QStringLiteral(", "));
    return audience == Audience::window
               ? QStringLiteral(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. Backups in %2: %3. Choose another backup, a product's "
                     "stock configuration, or none in the Repair dialog.")
                     .arg(machine, folder, list)
               : QStringLiteral(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. Backups in %2: %3. Choose what goes back with --backup "
                     "FILE, --product NAME or --no-config.")
                     .arg(machine, folder, list);
}

QString namedBackup(const QString& fileName, const QString& machine, const QString& time) {
    return QStringLiteral("%1 (%2, %3)").arg(fileName, machine, time);
}

QString repairNeedsChoice() {
    return QStringLiteral(
        "This machine has no backup of its settings. Choose what goes back after the erase.");
}

}  // namespace Texts
