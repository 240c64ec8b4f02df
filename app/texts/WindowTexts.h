#pragma once

#include <QString>
#include <QtGlobal>

/// The window's own labels: the program's name and version, menus, buttons,
/// tooltips, window titles, file dialogs, questions and the About window. Pure
/// functions; any thread.
namespace Texts {

// The program.
QString programName();  ///< "Teskal Firmware Updater"
/// "PROGRAM VERSION, built DATE, bundled firmware FIRMWARE".
QString programVersion(const QString& program, const QString& version, const QString& buildDate,
                       const QString& firmware);
QString simulatedWindowTitle();  ///< "Teskal Firmware Updater — simulated plotter"
QString alreadyRunning();        ///< "Teskal Firmware Updater is already running."

// Menus and their items, each with its mnemonic marked by "&".
QString applicationMenu();  ///< "&Teskal Firmware Updater"
QString aboutTitle();       ///< "About Teskal Firmware Updater", the About window's title
QString aboutItem();        ///< "&About Teskal Firmware Updater"
QString quitItem();
QString fileMenu();
QString openFirmwareItem();
QString useBundledItem();
QString saveLogItem();
QString optionsMenu();
QString detailedLoggingItem();
QString writeBootPartitionsItem();
QString eraseAllFlashItem();
QString backUpBeforeUploadItem();
QString configMenu();
QString updateConfigItem();
QString noProductsItem();
QString selectFromDiskItem();  ///< "Select from Disk..." (three full stops)
QString saveMachineConfigItem();
QString compareWithMachineItem();
QString chooseFileItem();
QString restoreMachineConfigItem();
QString repairMenuItem();  ///< "Repair Machine…"
QString helpMenu();
QString connectionCheckItem();  ///< "Connection Check…"
QString simulatedPlotterMenu();
/// "Starts: STARTUP"; the caller marks the mnemonic within STARTUP.
QString startsAs(const QString& startup);

// File dialogs.
QString selectFirmware();       ///< "Select a firmware binary (.bin)"
QString selectConfiguration();  ///< "Select a configuration file (.yaml)"
QString saveLogTitle();
QString textFiles();  ///< "Text files (*.txt)"
QString saveMachineConfigTitle();
QString yamlFiles();                             ///< "YAML files (*.yaml *.yml)"
QString chooseFileOf(const QString& extension);  ///< "Choose a .bin file."
QString chooseFileOfEither(const QString& extensions, const QString& last);

// The main window. Buttons, dialog buttons and context menu items carry their
// mnemonic marked by "&".
QString updateFirmwareButton();
QString copyLogTooltip();
QString copyItem();               ///< "&Copy"
QString closeButton();            ///< "&Close"
QString closeTooltip();           ///< "Close", the result banner's close button's tooltip
QString restorePreviousButton();  ///< "Restore Previous Configuration", the banner's offer
QString repairButton();           ///< "Repair…", the banner's offer

// Questions.
QString eraseQuestion();
QString eraseAnywayQuestion();
QString retryQuestion();
QString saveAndRestoreButton();
QString eraseWithoutSavingButton();
QString retryButton();
QString cancelButton();
QString quitDuringJobQuestion();
QString keepRunningButton();
QString quitAnywayButton();

// The Restore Machine Config window.
QString restoreTitle();
QString compareWithMachineButton();
QString restoreButton();
QString dateColumn();
QString reasonColumn();
QString firmwareColumn();
QString sizeColumn();
QString machineColumn();

// The Repair Machine dialog.
QString repairTitle();
QString repairConfirmButton();  ///< "Repair"
QString putBackLabel();         ///< "Put back:"
QString newestBackupItem(const QString& time);
QString currentSettingsItem();  ///< "Current settings of this machine, saved first"
QString chooseWhatGoesBack();
QString backupItem(const QString& time, const QString& machine);
QString stockConfigItem(const QString& product);
QString noConfigurationItem();
/// While it is not yet known whether the machine's firmware answers.
QString askingFirmware();

// The compare window.
QString compareTitle(const QString& label);  ///< "Compare With Machine — LABEL"
QString uploadThisConfiguration();
QString byKeyTab();
QString byLineTab();
QString noKeyDiffers();
QString sameLineByLine();
QString notComparableByKey();
QString matchesByKey(const QString& label);
QString settingsDiffer(qsizetype count, const QString& label);

// The About window.
QString aboutHeading();  ///< "Corvane" and the program's name on two lines
QString firmwareVersionLabel(const QString& version, const QString& buildDate);
QString programVersionLabel(const QString& version);  ///< "Program version VERSION"
QString supportedProducts();                          ///< "Supported products:"
QString licenses();                                   ///< "Licenses:"
QString firmwareLicense();
QString stubLicense();
QString source();  ///< "Source:"
QString copyright();

}  // namespace Texts
