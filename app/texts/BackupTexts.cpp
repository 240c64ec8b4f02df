#include "app/texts/BackupTexts.h"

#include <QCoreApplication>

#include <QLocale>
#include <QStringList>

#include "esp_flasher.h"

namespace Texts {

namespace {

// The translators' context for this file's texts.
class BackupTexts {
    Q_DECLARE_TR_FUNCTIONS(BackupTexts)
};

}  // namespace

QString configSavedTo(const QString& path, qint64 bytes) {
    return BackupTexts::tr("Machine config saved to %1 (%2 bytes)")
        .arg(path, QString::number(bytes));
}

QString configNotSaved(const QString& path, const QString& reason) {
    return BackupTexts::tr("Could not save the machine config to %1: %2").arg(path, reason);
}

QString configNotRead(const QString& why) {
    return BackupTexts::tr("Could not read config.yaml from the machine: %1").arg(why);
}

QString downloadFailure(int failure, quint32 block) {
    switch (failure) {
        case ESP_DOWNLOAD_PORT_NOT_OPENED:
            return BackupTexts::tr("Failed to open port");
        case ESP_DOWNLOAD_INVALID_ARGUMENTS:
            return BackupTexts::tr("XModem download: invalid arguments");
        case ESP_DOWNLOAD_INVALID_NAME:
            return BackupTexts::tr("XModem download: invalid file name");
        case ESP_DOWNLOAD_COMMAND_NOT_SENT:
            return BackupTexts::tr("XModem download: could not send the command");
        case ESP_DOWNLOAD_NO_BLOCK:
            return BackupTexts::tr("XModem download: no block received");
        case ESP_DOWNLOAD_CANCELLED:
            return BackupTexts::tr("XModem download: cancelled by the device");
        case ESP_DOWNLOAD_TOO_LARGE:
            return BackupTexts::tr("XModem download: file larger than 16 MiB");
        case ESP_DOWNLOAD_BLOCK_FAILED:
            return BackupTexts::tr("XModem download: block %1 failed 25 times").arg(block);
        case ESP_DOWNLOAD_ANSWER_NOT_SENT:
            return BackupTexts::tr("XModem download: could not answer the device");
        case ESP_DOWNLOAD_OUT_OF_MEMORY:
            return BackupTexts::tr("XModem download: out of memory");
        default:
            return BackupTexts::tr("XModem download: failed (%1)").arg(failure);
    }
}

QString backupFailed(const QString& reason) {
    return BackupTexts::tr("Could not back up the machine config; the upload did not start: %1")
        .arg(reason);
}

QString configSaved() {
    return BackupTexts::tr("Machine config saved");
}

QString configCompared() {
    return BackupTexts::tr("Machine config compared");
}

QString configMatches(const QString& label) {
    return BackupTexts::tr("Machine config matches %1 by key").arg(label);
}

QString configDiffers(const QString& label, qsizetype keys) {
    return keys == 1 ? BackupTexts::tr("Machine config differs from %1 in 1 key").arg(label)
                     : BackupTexts::tr("Machine config differs from %1 in %2 keys")
                           .arg(label, QString::number(keys));
}

QString equalByKey() {
    return BackupTexts::tr("Equal by key");
}

QString different() {
    return BackupTexts::tr("Different");
}

QString backupFolderUnusable(const QString& folder) {
    return BackupTexts::tr("Could not prepare the backups folder %1 as a folder only you can read")
        .arg(folder);
}

QString backupNotWritten(const QString& path, const QString& reason) {
    return BackupTexts::tr("Could not write the backup %1: %2").arg(path, reason);
}

QString backupNotKept(const QString& reason) {
    return BackupTexts::tr("No backup was kept: %1").arg(reason);
}

QString backupRecordSkipped(const QString& path, const QString& why) {
    return BackupTexts::tr("Skipped the backup record %1: %2").arg(path, why);
}

QString notABackupRecord() {
    return BackupTexts::tr("not a backup record");
}

QString backupCopyMissing(const QString& fileName) {
    return BackupTexts::tr("its copy %1 is missing").arg(fileName);
}

QString backupCopyChanged(const QString& fileName) {
    return BackupTexts::tr("its copy %1 has changed").arg(fileName);
}

QString backupTime(const QDateTime& time, Audience audience) {
    return audience == Audience::window
               ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)
               : time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString backupReason(BackupReason reason) {
    switch (reason) {
        case BackupReason::save:
            return BackupTexts::tr("Saved");
        case BackupReason::compare:
            return BackupTexts::tr("Compared");
        case BackupReason::beforeUpload:
            return BackupTexts::tr("Before upload");
        case BackupReason::beforeErase:
            return BackupTexts::tr("Before erase");
        case BackupReason::snapshot:
            return BackupTexts::tr("Snapshot");
        case BackupReason::beforeUpdate:
            return BackupTexts::tr("Before update");
        case BackupReason::beforeRepair:
            return BackupTexts::tr("Before repair");
    }
    return QString();
}

QString backupLine(const QString& time, const QString& reason, const QString& version, qint64 bytes,
                   const QString& machine, const QString& path) {
    return BackupTexts::tr("%1  %2  %3  %4 bytes  %5  %6")
        .arg(time, reason, version, QString::number(bytes), machine, path);
}

QString noBackups(const QString& folder) {
    return BackupTexts::tr("No backups in %1").arg(folder);
}

QString backupsIn(qsizetype count, const QString& folder) {
    return count == 1 ? BackupTexts::tr("1 backup in %1").arg(folder)
                      : BackupTexts::tr("%1 backups in %2").arg(QString::number(count), folder);
}

QString noBackupOfMachine(const QString& machine, const QString& folder) {
    return BackupTexts::tr("No backup of the machine %1 in %2").arg(machine, folder);
}

QString backupNotFound(const QString& name, const QString& folder) {
    return BackupTexts::tr("No backup %1 in %2").arg(name, folder);
}

QString backupsToRestore(const QString& folder) {
    return BackupTexts::tr(
               "Every configuration read from a machine is kept in %1. The connected "
               "machine's are on top, newest first.")
        .arg(folder);
}

QString noBackupsToRestore(const QString& folder) {
    return BackupTexts::tr(
               "No configuration has been kept yet. Every configuration read from a machine "
               "(Save Machine Config, Compare With Machine, the backup before an upload, the "
               "save before Erase All Flash) is kept in %1.")
        .arg(folder);
}

QString thisMachine(const QString& machine) {
    return BackupTexts::tr("%1 (this machine)").arg(machine);
}

QString byteCount(qint64 bytes) {
    return BackupTexts::tr("%1 bytes").arg(bytes);
}

QString noVersion() {
    return QStringLiteral("-");
}

QString savingSettings() {
    return BackupTexts::tr("Saving the machine's settings before Erase All Flash\u2026");
}

QString firmwareSilentNothingSaved() {
    return BackupTexts::tr(
        "The machine's firmware does not answer, so its settings cannot be saved.");
}

QString erasingWithoutSaving() {
    return BackupTexts::tr("Erasing all flash without saving the settings.");
}

QString nothingErased(const QString& reason) {
    return BackupTexts::tr("Nothing was erased: %1").arg(reason);
}

QString restoreLaterInWindow(const QString& path) {
    return BackupTexts::tr(
               "The settings read before the erase were not put back; they are kept in %1. "
               "Once the machine runs, restore them with Config > Restore Machine Config\u2026.")
        .arg(path);
}

QString restoreLaterWithCommand(const QString& path, const QString& port, const QString& name) {
    return BackupTexts::tr(
               "The settings read before the erase were not put back; they are kept in %1. "
               "Once the machine runs, restore them with: teskal-flash restore-config --port %2 "
               "%3")
        .arg(path, port, name);
}

QString restorePreviousWithCommand(const QString& port, const QString& name) {
    return BackupTexts::tr(
               "To put back the configuration the machine had before: teskal-flash "
               "restore-config --port %1 %2")
        .arg(port, name);
}

QString settingsRestored(const QString& time) {
    return BackupTexts::tr("Settings restored from the backup of %1.").arg(time);
}

QString firmwareRunningWithSettings(const QString& version, const QString& time) {
    return BackupTexts::tr(
               "Firmware %1 installed and running, with your settings restored from the backup "
               "of %2.")
        .arg(version, time);
}

QString firmwareRunningUnnamedWithSettings(const QString& time) {
    return BackupTexts::tr(
               "Firmware installed and running, with your settings restored from the backup of "
               "%1.")
        .arg(time);
}

QString shippedFirmware(const QString& version) {
    return BackupTexts::tr("firmware %1").arg(version);
}

QString settingsOf(const QDateTime& time, Audience audience) {
    const QString when =
        audience == Audience::window
            ? backupTime(time, audience)
            : QLocale::c().toString(time.toLocalTime(), QStringLiteral("d MMM yyyy HH:mm"));
    return BackupTexts::tr("your settings from %1").arg(when);
}

QString currentSettingsSavedFirst() {
    return BackupTexts::tr("your current settings, saved first");
}

QString stockConfigOf(const QString& product) {
    return BackupTexts::tr("the stock configuration of %1").arg(product);
}

QString repairPlan(const QString& firmware, const QString& what) {
    return BackupTexts::tr("Erase the machine, install %1, then put back %2.").arg(firmware, what);
}

QString repairPlanWithoutConfig(const QString& firmware) {
    return BackupTexts::tr("Erase the machine and install %1, without a configuration.")
        .arg(firmware);
}

QString repaired(const QString& firmware, const QString& what) {
    return BackupTexts::tr("Machine repaired: it runs %1 with %2.").arg(firmware, what);
}

QString repairedWithoutConfig(const QString& firmware) {
    return BackupTexts::tr("Machine repaired: it runs %1, without a configuration.").arg(firmware);
}

QString nothingToRestore(const QString& machine, const QString& folder, Audience audience) {
    return audience == Audience::window
               ? BackupTexts::tr(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. No backups in %2. Choose another backup, a product's "
                     "stock configuration, or none in the Repair dialog.")
                     .arg(machine, folder)
               : BackupTexts::tr(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. No backups in %2. Choose what goes back with --backup "
                     "FILE, --product NAME or --no-config.")
                     .arg(machine, folder);
}

QString nothingToRestoreBesides(const QString& machine, const QString& folder,
                                const QStringList& named, Audience audience) {
    const QString list = named.join(QStringLiteral(", "));
    return audience == Audience::window
               ? BackupTexts::tr(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. Backups in %2: %3. Choose another backup, a product's "
                     "stock configuration, or none in the Repair dialog.")
                     .arg(machine, folder, list)
               : BackupTexts::tr(
                     "Nothing was erased: there is no backup of the machine %1 to put back "
                     "after the repair. Backups in %2: %3. Choose what goes back with --backup "
                     "FILE, --product NAME or --no-config.")
                     .arg(machine, folder, list);
}

QString namedBackup(const QString& fileName, const QString& machine, const QString& time) {
    return QStringLiteral("%1 (%2, %3)").arg(fileName, machine, time);
}

QString repairNeedsChoice() {
    return BackupTexts::tr(
        "This machine has no backup of its settings. Choose what goes back after the erase.");
}

}  // namespace Texts
