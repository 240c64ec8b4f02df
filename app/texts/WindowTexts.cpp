#include "app/texts/WindowTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class WindowTexts {
    Q_DECLARE_TR_FUNCTIONS(WindowTexts)
};

}  // namespace

QString programName() {
    return QStringLiteral("Teskal Firmware Updater");
}

QString programVersion(const QString& program, const QString& version, const QString& buildDate,
                       const QString& firmware) {
    return WindowTexts::tr("%1 %2, built %3, bundled firmware %4")
        .arg(program, version, buildDate, firmware);
}

QString simulatedWindowTitle() {
    return WindowTexts::tr("Teskal Firmware Updater \u2014 simulated plotter");
}

QString alreadyRunning() {
    return WindowTexts::tr("Teskal Firmware Updater is already running.");
}

QString applicationMenu() {
    return WindowTexts::tr("&Teskal Firmware Updater");
}

QString aboutTitle() {
    return WindowTexts::tr("About Teskal Firmware Updater");
}

QString aboutItem() {
    return WindowTexts::tr("&About Teskal Firmware Updater");
}

QString quitItem() {
    return WindowTexts::tr("&Quit");
}

QString fileMenu() {
    return WindowTexts::tr("&File");
}

QString openFirmwareItem() {
    return WindowTexts::tr("&Open Firmware File\u2026");
}

QString useBundledItem() {
    return WindowTexts::tr("&Use Bundled Firmware");
}

QString saveLogItem() {
    return WindowTexts::tr("&Save Log\u2026");
}

QString optionsMenu() {
    return WindowTexts::tr("&Options");
}

QString detailedLoggingItem() {
    return WindowTexts::tr("&Detailed Logging");
}

QString writeBootPartitionsItem() {
    return WindowTexts::tr("&Write Boot Partitions");
}

QString eraseAllFlashItem() {
    return WindowTexts::tr("&Erase All Flash");
}

QString backUpBeforeUploadItem() {
    return WindowTexts::tr("&Back Up Machine Config Before Upload");
}

QString configMenu() {
    return WindowTexts::tr("&Config");
}

QString updateConfigItem() {
    return WindowTexts::tr("&Update Config");
}

QString noProductsItem() {
    return WindowTexts::tr("No products configured");
}

QString selectFromDiskItem() {
    return WindowTexts::tr("Select from &Disk...");
}

QString saveMachineConfigItem() {
    return WindowTexts::tr("&Save Machine Config\u2026");
}

QString compareWithMachineItem() {
    return WindowTexts::tr("&Compare With Machine\u2026");
}

QString chooseFileItem() {
    return WindowTexts::tr("Choose &File\u2026");
}

QString restoreMachineConfigItem() {
    return WindowTexts::tr("&Restore Machine Config\u2026");
}

QString repairMenuItem() {
    return WindowTexts::tr("Re&pair Machine\u2026");
}

QString helpMenu() {
    return WindowTexts::tr("&Help");
}

QString connectionCheckItem() {
    return WindowTexts::tr("&Connection Check\u2026");
}

QString simulatedPlotterMenu() {
    return WindowTexts::tr("&Simulated Plotter");
}

QString startsAs(const QString& startup) {
    return WindowTexts::tr("Starts: %1").arg(startup);
}

QString selectFirmware() {
    return WindowTexts::tr("Select a firmware binary (.bin)");
}

QString selectConfiguration() {
    return WindowTexts::tr("Select a configuration file (.yaml)");
}

QString saveLogTitle() {
    return WindowTexts::tr("Save Log");
}

QString textFiles() {
    return WindowTexts::tr("Text files (*.txt)");
}

QString saveMachineConfigTitle() {
    return WindowTexts::tr("Save Machine Config");
}

QString yamlFiles() {
    return WindowTexts::tr("YAML files (*.yaml *.yml)");
}

QString chooseFileOf(const QString& extension) {
    return WindowTexts::tr("Choose a %1 file.").arg(extension);
}

QString chooseFileOfEither(const QString& extensions, const QString& last) {
    return WindowTexts::tr("Choose a %1 or %2 file.").arg(extensions, last);
}

QString updateFirmwareButton() {
    return WindowTexts::tr("Update Firmware");
}

QString copyLogTooltip() {
    return WindowTexts::tr("Copy log to clipboard");
}

QString copyItem() {
    return WindowTexts::tr("&Copy");
}

QString closeButton() {
    return WindowTexts::tr("&Close");
}

QString closeTooltip() {
    return WindowTexts::tr("Close");
}

QString restorePreviousButton() {
    return WindowTexts::tr("Restore Previous Configuration");
}

QString repairButton() {
    return WindowTexts::tr("Repair\u2026");
}

QString eraseQuestion() {
    return WindowTexts::tr(
        "Erase All Flash also erases the machine's settings (config.yaml). Save them now and "
        "put them back after the update?");
}

QString eraseAnywayQuestion() {
    return WindowTexts::tr("Erase all flash anyway? The settings will be lost.");
}

QString retryQuestion() {
    return WindowTexts::tr("Try reading them again?");
}

QString saveAndRestoreButton() {
    return WindowTexts::tr("&Save and Restore");
}

QString eraseWithoutSavingButton() {
    return WindowTexts::tr("&Erase Without Saving");
}

QString retryButton() {
    return WindowTexts::tr("&Retry");
}

QString cancelButton() {
    return WindowTexts::tr("&Cancel");
}

QString quitDuringJobQuestion() {
    return WindowTexts::tr(
        "An update is running. Quitting now can leave the machine unable to start. Quit "
        "anyway?");
}

QString keepRunningButton() {
    return WindowTexts::tr("&Keep Running");
}

QString quitAnywayButton() {
    return WindowTexts::tr("&Quit Anyway");
}

QString restoreTitle() {
    return WindowTexts::tr("Restore Machine Config");
}

QString compareWithMachineButton() {
    return WindowTexts::tr("Co&mpare With Machine");
}

QString restoreButton() {
    return WindowTexts::tr("&Restore");
}

QString dateColumn() {
    return WindowTexts::tr("Date");
}

QString reasonColumn() {
    return WindowTexts::tr("Reason");
}

QString firmwareColumn() {
    return WindowTexts::tr("Firmware");
}

QString sizeColumn() {
    return WindowTexts::tr("Size");
}

QString machineColumn() {
    return WindowTexts::tr("Machine");
}

QString repairTitle() {
    return WindowTexts::tr("Repair Machine");
}

QString repairConfirmButton() {
    return WindowTexts::tr("&Repair");
}

QString putBackLabel() {
    return WindowTexts::tr("Put back:");
}

QString newestBackupItem(const QString& time) {
    return WindowTexts::tr("Newest backup of this machine (%1)").arg(time);
}

QString currentSettingsItem() {
    return WindowTexts::tr("Current settings of this machine, saved first");
}

QString chooseWhatGoesBack() {
    return WindowTexts::tr("Choose what goes back\u2026");
}

QString backupItem(const QString& time, const QString& machine) {
    return WindowTexts::tr("Backup of %1 (%2)").arg(time, machine);
}

QString stockConfigItem(const QString& product) {
    return WindowTexts::tr("Stock configuration: %1").arg(product);
}

QString noConfigurationItem() {
    return WindowTexts::tr("No configuration");
}

QString askingFirmware() {
    return WindowTexts::tr("Asking the machine's firmware whether it answers\u2026");
}

QString compareTitle(const QString& label) {
    return WindowTexts::tr("Compare With Machine \u2014 %1").arg(label);
}

QString uploadThisConfiguration() {
    return WindowTexts::tr("&Upload This Configuration");
}

QString byKeyTab() {
    return WindowTexts::tr("By Key");
}

QString byLineTab() {
    return WindowTexts::tr("By Line");
}

QString noKeyDiffers() {
    return WindowTexts::tr("No key differs.");
}

QString sameLineByLine() {
    return WindowTexts::tr("The files are the same line by line.");
}

QString notComparableByKey() {
    return WindowTexts::tr(
        "The two configurations could not be compared by key; \"By Line\" shows how their "
        "texts differ.");
}

QString matchesByKey(const QString& label) {
    return WindowTexts::tr(
               "The machine's config matches %1 by key: an upload would change no setting.")
        .arg(label);
}

QString settingsDiffer(qsizetype count, const QString& label) {
    return count == 1
               ? WindowTexts::tr(
                     "1 setting differs between the machine's config and %1. Each line shows the "
                     "machine's value \u2192 the new one; + marks a key only in %1, - a key only "
                     "on the machine.")
                     .arg(label)
               : WindowTexts::tr(
                     "%1 settings differ between the machine's config and %2. Each line shows "
                     "the machine's value \u2192 the new one; + marks a key only in %2, - a key "
                     "only on the machine.")
                     .arg(QString::number(count), label);
}

QString aboutHeading() {
    return QStringLiteral("Corvane\nTeskal Firmware Updater");
}

QString firmwareVersionLabel(const QString& version, const QString& buildDate) {
    return WindowTexts::tr("Firmware v%1 (build %2)").arg(version, buildDate);
}

QString programVersionLabel(const QString& version) {
    return WindowTexts::tr("Program version %1").arg(version);
}

QString supportedProducts() {
    return WindowTexts::tr("Supported products:");
}

QString licenses() {
    return WindowTexts::tr("Licenses:");
}

QString firmwareLicense() {
    return WindowTexts::tr("Firmware: GPL v3 (based on FluidNC)");
}

QString stubLicense() {
    return WindowTexts::tr("Flash stub: Apache License 2.0");
}

QString source() {
    return WindowTexts::tr("Source:");
}

QString copyright() {
    return WindowTexts::tr("\u00a9 2026 Corvane. All rights reserved.");
}

}  // namespace Texts
