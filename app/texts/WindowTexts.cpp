#include "app/texts/WindowTexts.h"

namespace Texts {

QString programName() {
    return QStringLiteral("Teskal Firmware Updater");
}

QString programVersion(const QString& program, const QString& version, const QString& buildDate,
                       const QString& firmware) {
    return QStringLiteral("%1 %2, built %3, bundled firmware %4")
        .arg(program, version, buildDate, firmware);
}

QString simulatedWindowTitle() {
    return QStringLiteral("Teskal Firmware Updater \u2014 simulated plotter");
}

QString alreadyRunning() {
    return QStringLiteral("Teskal Firmware Updater is already running.");
}

QString aboutItem() {
    return QStringLiteral("About Teskal Firmware Updater");
}

QString quitItem() {
    return QStringLiteral("Quit");
}

QString fileMenu() {
    return QStringLiteral("File");
}

QString openFirmwareItem() {
    return QStringLiteral("Open Firmware File\u2026");
}

QString useBundledItem() {
    return QStringLiteral("Use Bundled Firmware");
}

QString saveLogItem() {
    return QStringLiteral("Save Log\u2026");
}

QString optionsMenu() {
    return QStringLiteral("Options");
}

QString detailedLoggingItem() {
    return QStringLiteral("Detailed Logging");
}

QString writeBootPartitionsItem() {
    return QStringLiteral("Write Boot Partitions");
}

QString eraseAllFlashItem() {
    return QStringLiteral("Erase All Flash");
}

QString backUpBeforeUploadItem() {
    return QStringLiteral("Back Up Machine Config Before Upload");
}

QString configMenu() {
    return QStringLiteral("Config");
}

QString updateConfigItem() {
    return QStringLiteral("Update Config");
}

QString noProductsItem() {
    return QStringLiteral("No products configured");
}

QString selectFromDiskItem() {
    return QStringLiteral("Select from Disk...");
}

QString saveMachineConfigItem() {
    return QStringLiteral("Save Machine Config\u2026");
}

QString compareWithMachineItem() {
    return QStringLiteral("Compare With Machine\u2026");
}

QString chooseFileItem() {
    return QStringLiteral("Choose File\u2026");
}

QString restoreMachineConfigItem() {
    return QStringLiteral("Restore Machine Config\u2026");
}

QString repairMenuItem() {
    return QStringLiteral("Repair Machine\u2026");
}

QString helpMenu() {
    return QStringLiteral("Help");
}

QString connectionCheckItem() {
    return QStringLiteral("Connection Check\u2026");
}

QString simulatedPlotterMenu() {
    return QStringLiteral("Simulated Plotter");
}

QString startsAs(const QString& startup) {
    return QStringLiteral("Starts: %1").arg(startup);
}

QString selectFirmware() {
    return QStringLiteral("Select a firmware binary (.bin)");
}

QString selectConfiguration() {
    return QStringLiteral("Select a configuration file (.yaml)");
}

QString saveLogTitle() {
    return QStringLiteral("Save Log");
}

QString textFiles() {
    return QStringLiteral("Text files (*.txt)");
}

QString saveMachineConfigTitle() {
    return QStringLiteral("Save Machine Config");
}

QString yamlFiles() {
    return QStringLiteral("YAML files (*.yaml *.yml)");
}

QString chooseFileOf(const QString& extension) {
    return QStringLiteral("Choose a %1 file.").arg(extension);
}

QString chooseFileOfEither(const QString& extensions, const QString& last) {
    return QStringLiteral("Choose a %1 or %2 file.").arg(extensions, last);
}

QString updateFirmwareButton() {
    return QStringLiteral("Update Firmware");
}

QString copyLogTooltip() {
    return QStringLiteral("Copy log to clipboard");
}

QString copyItem() {
    return QStringLiteral("Copy");
}

QString closeButton() {
    return QStringLiteral("Close");
}

QString restorePreviousButton() {
    return QStringLiteral("Restore Previous Configuration");
}

QString repairButton() {
    return QStringLiteral("Repair\u2026");
}

QString eraseQuestion() {
    return QStringLiteral(
        "Erase All Flash also erases the machine's settings (config.yaml). Save them now and "
        "put them back after the update?");
}

QString eraseAnywayQuestion() {
    return QStringLiteral("Erase all flash anyway? The settings will be lost.");
}

QString retryQuestion() {
    return QStringLiteral("Try reading them again?");
}

QString saveAndRestoreButton() {
    return QStringLiteral("Save and Restore");
}

QString eraseWithoutSavingButton() {
    return QStringLiteral("Erase Without Saving");
}

QString retryButton() {
    return QStringLiteral("Retry");
}

QString cancelButton() {
    return QStringLiteral("Cancel");
}

QString quitDuringJobQuestion() {
    return QStringLiteral(
        "An update is running. Quitting now can leave the machine unable to start. Quit "
        "anyway?");
}

QString keepRunningButton() {
    return QStringLiteral("Keep Running");
}

QString quitAnywayButton() {
    return QStringLiteral("Quit Anyway");
}

QString restoreTitle() {
    return QStringLiteral("Restore Machine Config");
}

QString compareWithMachineButton() {
    return QStringLiteral("Compare With Machine");
}

QString restoreButton() {
    return QStringLiteral("Restore");
}

QString dateColumn() {
    return QStringLiteral("Date");
}

QString reasonColumn() {
    return QStringLiteral("Reason");
}

QString firmwareColumn() {
    return QStringLiteral("Firmware");
}

QString sizeColumn() {
    return QStringLiteral("Size");
}

QString machineColumn() {
    return QStringLiteral("Machine");
}

QString repairTitle() {
    return QStringLiteral("Repair Machine");
}

QString repairConfirmButton() {
    return QStringLiteral("Repair");
}

QString putBackLabel() {
    return QStringLiteral("Put back:");
}

QString newestBackupItem(const QString& time) {
    return QStringLiteral("Newest backup of this machine (%1)").arg(time);
}

QString currentSettingsItem() {
    return QStringLiteral("Current settings of this machine, saved first");
}

QString chooseWhatGoesBack() {
    return QStringLiteral("Choose what goes back\u2026");
}

QString backupItem(const QString& time, const QString& machine) {
    return QStringLiteral("Backup of %1 (%2)").arg(time, machine);
}

QString stockConfigItem(const QString& product) {
    return QStringLiteral("Stock configuration: %1").arg(product);
}

QString noConfigurationItem() {
    return QStringLiteral("No configuration");
}

QString askingFirmware() {
    return QStringLiteral("Asking the machine's firmware whether it answers\u2026");
}

QString compareTitle(const QString& label) {
    return QStringLiteral("Compare With Machine \u2014 %1").arg(label);
}

QString uploadThisConfiguration() {
    return QStringLiteral("Upload This Configuration");
}

QString byKeyTab() {
    return QStringLiteral("By Key");
}

QString byLineTab() {
    return QStringLiteral("By Line");
}

QString noKeyDiffers() {
    return QStringLiteral("No key differs.");
}

QString sameLineByLine() {
    return QStringLiteral("The files are the same line by line.");
}

QString notComparableByKey() {
    return QStringLiteral(
        "The two configurations could not be compared by key; \"By Line\" shows how their "
        "texts differ.");
}

QString matchesByKey(const QString& label) {
    return QStringLiteral(
               "The machine's config matches %1 by key: an upload would change no setting.")
        .arg(label);
}

QString settingsDiffer(qsizetype count, const QString& label) {
    return count == 1
               ? QStringLiteral(
                     "1 setting differs between the machine's config and %1. Each line shows the "
                     "machine's value \u2192 the new one; + marks a key only in %1, - a key only "
                     "on the machine.")
                     .arg(label)
               : QStringLiteral(
                     "%1 settings differ between the machine's config and %2. Each line shows "
                     "the machine's value \u2192 the new one; + marks a key only in %2, - a key "
                     "only on the machine.")
                     .arg(QString::number(count), label);
}

QString aboutHeading() {
    return QStringLiteral("Corvane\nTeskal Firmware Updater");
}

QString firmwareVersionLabel(const QString& version, const QString& buildDate) {
    return QStringLiteral("Firmware v%1 (build %2)").arg(version, buildDate);
}

QString programVersionLabel(const QString& version) {
    return QStringLiteral("Program version %1").arg(version);
}

QString supportedProducts() {
    return QStringLiteral("Supported products:");
}

QString licenses() {
    return QStringLiteral("Licenses:");
}

QString firmwareLicense() {
    return QStringLiteral("Firmware: GPL v3 (based on FluidNC)");
}

QString stubLicense() {
    return QStringLiteral("Flash stub: Apache License 2.0");
}

QString source() {
    return QStringLiteral("Source:");
}

QString copyright() {
    return QStringLiteral("\u00a9 2026 Corvane. All rights reserved.");
}

}  // namespace Texts
