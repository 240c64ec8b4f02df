#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QtGlobal>
#include <cstdint>
#include <optional>

#include "app/Backup.h"
#include "app/Outcome.h"
#include "esp_flasher.h"

/// Every owner-facing text of the window and the command line, in one place.
/// Arguments are inserted where the text names them. Pure functions; any thread.
namespace Texts {

/// Who reads a text that names what to do: the window's owner (its menus) or
/// teskal-flash's (its commands and options).
enum class Audience { window, commandLine };

/// "PROGRAM VERSION, built DATE, bundled firmware FIRMWARE".
QString programVersion(const QString& program, const QString& version, const QString& buildDate,
                       const QString& firmware);

// The connection and the start of a job.
QString deviceConnected();               ///< "Device connected"
QString waitingForDevice();              ///< "Waiting for device…"
QString noDeviceConnected();             ///< "No device connected"
QString anotherOperation();              ///< "Another operation is already running"
QString errorMessage(esp_error_t code);  ///< the message of a library result code

// The firmware job.
QString updatingShipped(const QString& version);  ///< "Updating firmware vVERSION…"
QString updatingCustom(const QString& fileName);  ///< "Updating firmware (custom: NAME)…"
QString customUnreadable(const QString& reason);  ///< "Failed to load custom firmware: REASON"
QString shippedMissing();                         ///< "Bundled firmware not found"
QString checkingDevice();                         ///< "Checking device status…"
QString deviceNotResponding();
QString deviceRunning(const QString& version);
QString stubMissing();        ///< "Flash stub not found in bundle"
QString bootImagesMissing();  ///< "Missing bootloader resources for full flash"
QString firmwareComplete();   ///< "Firmware update complete."
/// The NOTE after an erase; the window's names Config > Update Config.
QString flashErasedNote(Audience audience = Audience::window);
QString firmwareLabel(const QString& version);  ///< "Firmware version VERSION"
QString usingShipped();                         ///< "Using bundled firmware"

// Checking a firmware image before it is written.
QString customChosen(const QString& fileName);  ///< "Custom firmware: NAME"
QString customChosenWithoutName();              ///< "Custom firmware: unknown"
QString cannotBeUsed(const QString& fileName, const QString& reason);
QString couldNotBeRead(const QString& reason);     ///< "it could not be read (REASON)"
QString imageRefused(const QString& reason);       ///< "Firmware image refused: REASON"
QString shippedImageRefused(const QString& name);  ///< "Bundled NAME.bin refused: …"
QString developmentImage();                        ///< "a development image, not firmware"
QString imageDescription(const QString& version, const QString& project, const QString& built);

// Configurations.
QString configMissing(const QString& configFile);  ///< "Config file not found in bundle: FILE"
QString preparingProduct(const QString& product, const QString& suffix);
QString preparingFile(const QString& fileName, const QString& suffix);
QString fileUnreadable(const QString& fileName);  ///< "Could not read file: NAME"
QString notAConfiguration(const QString& fileName, const QString& problem);
QString developmentConfigs();  ///< the development set's configurations on a real port
QString uploadingFile();       ///< "Uploading config file..."
QString uploadComplete();      ///< "Upload successful; restarting machine."
/// " vVERSION" for a configuration's meta version, or nothing without one.
QString versionSuffix(const QByteArray& configData);

// The machine's own configuration.
QString configSavedTo(const QString& path, qint64 bytes);
QString configNotSaved(const QString& path, const QString& reason);
QString configNotRead(const DownloadCause& cause);
QString backupFailed(const QString& reason);
QString configSaved();     ///< "Machine config saved"
QString configCompared();  ///< "Machine config compared"
QString configMatches(const QString& label);
QString configDiffers(const QString& label, qsizetype keys);
QString equalByKey();  ///< "Equal by key"
QString different();   ///< "Different"

// Questions to the machine.
QString partitionTablePresent();
QString partitionTableAbsent();
QString plottersConnected(qsizetype count);

// How the machine started after a write.
QString checkingStartup();  ///< the status while the machine is listened to
/// The outcome's message for `cause`: "Firmware 2.10.6 installed and running.",
/// "Firmware written, but the machine does not start: it restarts in a loop.", …
QString startupMessage(const StartupCause& cause);
/// What to do next about `outcome`, in `audience`'s words; empty when there is
/// nothing to add to its message.
QString nextStep(const Outcome& outcome, Audience audience);

// The inspection report of a file, line by line.
QString reportSize(qint64 bytes);                     ///< "  size: N bytes"
QString reportSha256(const QString& hex);             ///< "  SHA-256: HEX"
QString reportChip(const QString& name, int chipId);  ///< "  chip: NAME (chip id N)"
QString reportVersion(const QString& version);
QString reportProject(const QString& project);
QString reportBuilt(const QString& built);
QString reportPartition(bool fits, qint64 partitionBytes);
QString reportPartitionUnknown();
QString reportMeta(const QString& version);  ///< "  meta: VERSION" ("none" for none)
QString reportResult(bool passes);           ///< "  result: passes" or "refused"
QString unknownChip();                       ///< "unknown"

// Files on this computer.
QString logNotSaved(const QString& reason);  ///< "Could not save log: REASON"
QString neitherImageNorConfig(const QString& fileName);
QString allFilesPass();
QString filesRefused(qsizetype refused, qsizetype total);
QString simulatorNotStarted(const QString& reason);

// A port that cannot be used. `rule` says where the permission rule comes from, in
// the window "Connection Check", on the command line "teskal-flash doctor".
QString ruleInWindow();       ///< "Connection Check"
QString ruleOnCommandLine();  ///< "teskal-flash doctor"
/// What is wrong, one sentence: "Permission denied on PATH (group G).", "PATH does
/// not exist.", "PATH is not a serial port.", "PATH is in use by NAME (pid N)." ...
QString portProblem(const PortCause& cause);
/// What fixes it, one or two sentences.
QString portFix(const PortCause& cause, const QString& rule);
/// The problem and its fix, as an outcome's message.
QString portUnusable(const PortCause& cause, const QString& rule);

// The connection check's lines.
QString plotterSeen(const QString& serial);  ///< "Plotter seen on USB (303a:1001, serial S)."
QString noPlotterSeen();                     ///< "No plotter seen on USB."
QString noPlotterFix();                      ///< switch it on, another port, a data cable
QString portMade(const QString& path, const QString& driver);
QString noDriver();  ///< no port made: the kernel's cdc_acm driver is missing
QString noDriverFix();
QString noNode();  ///< the driver is there, the node is not (yet)
QString noNodeFix();
QString mayOpen(const QString& path);  ///< "You may open PATH."
QString notHeld(const QString& path);  ///< "No other program is using PATH."
QString otherPlotter(const QString& serial, const QString& path);
QString otherDevice(uint16_t vendorId, uint16_t productId, const QString& product,
                    const QString& driver, const QString& path);
QString portReady(const QString& path);  ///< "Ready: the plotter on PATH can be used."
QString noPlotterReady();                ///< "No plotter is ready to use."
QString doctorPointer();                 ///< "Run teskal-flash doctor to see why."
QString ruleBelow();                     ///< "button below", the window's rule
QString ruleHelperCommand(const QString& program, const QString& helper);
QString ruleByHand(const QString& ruleFile);
QString ruleShipped();  ///< the rule's name, when no installed copy is found

// The Connection Check window.
QString plotterNotFound();                          ///< "Plotter not found?"
QString connectionCheck();                          ///< "Connection Check"
QString connectionCheckIntro();                     ///< checked every second, closes when ready
QString installRule();                              ///< "Install Permission Rule…"
QString installRuleByHand(const QString& command);  ///< the button's tooltip without pkexec
QString ruleInstallerNotStarted();

// Several plotters at once, one process each.
QString endedWithoutResult();  ///< "ended without a result"
/// "ended abnormally after its result", and ": WHY" when something was said.
QString endedAbnormally(const QString& why);

// The backups of the machine's configuration.
QString backupFolderUnusable(const QString& folder);
QString backupNotWritten(const QString& path, const QString& reason);
QString backupNotKept(const QString& reason);  ///< "No backup was kept: REASON"
QString backupRecordSkipped(const QString& path, const QString& why);
QString notABackupRecord();
QString backupCopyMissing(const QString& fileName);
QString backupCopyChanged(const QString& fileName);
/// "yyyy-MM-dd HH:mm:ss" in local time.
QString backupTime(const QDateTime& time);
/// How the window names a reason: "Saved", "Compared", "Before upload", "Before erase".
QString backupReason(BackupReason reason);
/// "TIME  REASON  VERSION  N bytes  MACHINE  PATH", the reason in the sidecar's word.
QString backupLine(const Backup& backup);
QString noBackups(const QString& folder);                   ///< "No backups in FOLDER"
QString backupsIn(qsizetype count, const QString& folder);  ///< "N backups in FOLDER"
QString noBackupOfMachine(const QString& machine, const QString& folder);
QString backupNotFound(const QString& name, const QString& folder);
/// The Restore Machine Config window's summary, with backups and without.
QString backupsToRestore(const QString& folder);
QString noBackupsToRestore(const QString& folder);
QString thisMachine(const QString& machine);  ///< "MACHINE (this machine)"
QString byteCount(qint64 bytes);              ///< "N bytes"
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
/// The result banner's button for it.
QString restorePreviousButton();  ///< "Restore Previous Configuration"
/// The window's questions: before the erase, after a silent firmware (with
/// `firmwareSilentNothingSaved` before it), after a failed read (with its reason).
QString eraseQuestion();
QString eraseAnywayQuestion();
QString retryQuestion();
/// "Settings restored from the backup of TIME."
QString settingsRestored(const QDateTime& time);

// Repairing a machine that does not start.
QString repairButton();    ///< "Repair…", the banner's offer and the menu item's word
QString repairMenuItem();  ///< "Repair Machine…"
QString shippedFirmware(const QString& version);  ///< "firmware VERSION"
QString settingsOf(const QDateTime& time);        ///< "your settings from 24 Nov 2026 14:02"
QString stockConfigOf(const QString& product);    ///< "the stock configuration of PRODUCT"
/// One sentence: "Erase the machine, install FIRMWARE, then put back WHAT." (without
/// `what`: "Erase the machine and install FIRMWARE, without a configuration.").
QString repairPlan(const QString& firmware, const std::optional<QString>& what);
/// The note after the erase: "Flash was erased; once the machine runs, WHAT will be put back."
QString puttingBack(const QString& what);
/// The success: "Machine repaired: it runs FIRMWARE with WHAT." (or "…, without a
/// configuration.").
QString repaired(const QString& firmware, const std::optional<QString>& what);
/// Nothing erased because nothing is known to put back: the backups that exist and
/// how to choose, in the audience's words.
QString nothingToRestore(const QString& machine, const QList<Backup>& backups,
                         const QString& folder, Audience audience);
/// The dialog's line when the machine has no backup to put back.
QString repairNeedsChoice();
/// A port that comes and goes: "The plotter keeps restarting." and its fix, "If its
/// controller board has a BOOT button, hold it while you plug the plotter in, then
/// press Repair." (teskal-flash: "then run teskal-flash repair").
QString keepsRestarting();
QString holdBootButton(Audience audience);

}  // namespace Texts
