#include "app/Texts.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include "app/BackupIndex.h"
#include "app/VersionText.h"
#include "image/FirmwareCheck.h"

namespace Texts {

QString programVersion(const QString& program, const QString& version, const QString& buildDate,
                       const QString& firmware) {
    return QStringLiteral("%1 %2, built %3, bundled firmware %4")
        .arg(program, version, buildDate, firmware);
}

QString deviceConnected() {
    return QStringLiteral("Device connected");
}

QString waitingForDevice() {
    return QStringLiteral("Waiting for device…");
}

QString noDeviceConnected() {
    return QStringLiteral("No device connected");
}

QString anotherOperation() {
    return QStringLiteral("Another operation is already running");
}

QString errorMessage(esp_error_t code) {
    switch (code) {
        case 1:
            return QStringLiteral("No device found. Is it connected?");
        case 2:
            return QStringLiteral("Could not open serial port. Is another app using it?");
        case 3:
            return QStringLiteral("Failed to sync with device. Try unplugging and reconnecting.");
        case 4:
            return QStringLiteral("Unexpected chip detected. Verify hardware.");
        case 5:
            return QStringLiteral("Failed to upload communication stub.");
        case 6:
            return QStringLiteral("Flash write failed. Try again.");
        case 7:
            return QStringLiteral("Verification failed. Flash may be corrupted — try again.");
        case 8:
            return QStringLiteral("Config upload failed.");
        case 9:
            return QStringLiteral("Operation timed out. Try unplugging and reconnecting.");
        case 10:
            return QStringLiteral("Device disconnected during operation.");
        default:
            return QStringLiteral("Unknown error (code %1)").arg(code);
    }
}

QString updatingShipped(const QString& version) {
    return QStringLiteral("Updating firmware v%1…").arg(version);
}

QString updatingCustom(const QString& fileName) {
    return QStringLiteral("Updating firmware (custom: %1)…").arg(fileName);
}

QString customUnreadable(const QString& reason) {
    return QStringLiteral("Failed to load custom firmware: ") + reason;
}

QString shippedMissing() {
    return QStringLiteral("Bundled firmware not found");
}

QString checkingDevice() {
    return QStringLiteral("Checking device status…");
}

QString deviceNotResponding() {
    return QStringLiteral("Device not responding — writing boot partitions + firmware.");
}

QString deviceRunning(const QString& version) {
    return QStringLiteral("Device running firmware %1 — updating firmware only.").arg(version);
}

QString stubMissing() {
    return QStringLiteral("Flash stub not found in bundle");
}

QString bootImagesMissing() {
    return QStringLiteral("Missing bootloader resources for full flash");
}

QString firmwareComplete() {
    return QStringLiteral("Firmware update complete.");
}

QString flashErasedNote(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "NOTE: Flash was erased. Use Config > Update Config to upload the "
                     "configuration for your machine.")
               : QStringLiteral(
                     "NOTE: Flash was erased. Run teskal-flash upload-config to upload the "
                     "configuration for your machine.");
}

QString firmwareLabel(const QString& version) {
    return QStringLiteral("Firmware version ") + version;
}

QString usingShipped() {
    return QStringLiteral("Using bundled firmware");
}

QString customChosen(const QString& fileName) {
    return QStringLiteral("Custom firmware: ") + fileName;
}

QString customChosenWithoutName() {
    return customChosen(QStringLiteral("unknown"));
}

QString cannotBeUsed(const QString& fileName, const QString& reason) {
    return QStringLiteral("%1 cannot be used: %2").arg(fileName, reason);
}

QString couldNotBeRead(const QString& reason) {
    return QStringLiteral("it could not be read (%1)").arg(reason);
}

QString imageRefused(const QString& reason) {
    return QStringLiteral("Firmware image refused: ") + reason;
}

QString shippedImageRefused(const QString& name) {
    return QStringLiteral("Bundled %1.bin refused: ").arg(name) + developmentImage();
}

QString developmentImage() {
    return QStringLiteral("a development image, not firmware");
}

QString imageDescription(const QString& version, const QString& project, const QString& built) {
    return QStringLiteral("Firmware image: version %1, project %2, built %3")
        .arg(version, project, built);
}

QString configMissing(const QString& configFile) {
    return QStringLiteral("Config file not found in bundle: ") + configFile;
}

QString preparingProduct(const QString& product, const QString& suffix) {
    return QStringLiteral("Preparing %1 config").arg(product) + suffix;
}

QString preparingFile(const QString& fileName, const QString& suffix) {
    return QStringLiteral("Preparing ") + fileName + suffix;
}

QString fileUnreadable(const QString& fileName) {
    return QStringLiteral("Could not read file: ") + fileName;
}

QString notAConfiguration(const QString& fileName, const QString& problem) {
    return QStringLiteral("%1 is not a valid machine configuration: %2").arg(fileName, problem);
}

QString developmentConfigs() {
    return QStringLiteral("The development set's configurations are only for simulated plotters");
}

QString uploadingFile() {
    return QStringLiteral("Uploading config file...");
}

QString uploadComplete() {
    return QStringLiteral("Upload successful; restarting machine.");
}

QString versionSuffix(const QByteArray& configData) {
    const auto version = VersionText::metaVersion(configData);
    return version ? QStringLiteral(" v") + *version : QString();
}

QString configSavedTo(const QString& path, qint64 bytes) {
    return QStringLiteral("Machine config saved to %1 (%2 bytes)").arg(path).arg(bytes);
}

QString configNotSaved(const QString& path, const QString& reason) {
    return QStringLiteral("Could not save the machine config to %1: %2").arg(path, reason);
}

namespace {

QString downloadFailure(const DownloadCause& cause) {
    switch (cause.failure) {
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
            return QStringLiteral("XModem download: block %1 failed 25 times").arg(cause.block);
        case ESP_DOWNLOAD_ANSWER_NOT_SENT:
            return QStringLiteral("XModem download: could not answer the device");
        case ESP_DOWNLOAD_OUT_OF_MEMORY:
            return QStringLiteral("XModem download: out of memory");
        default:
            return QStringLiteral("XModem download: failed (%1)").arg(cause.failure);
    }
}

}  // namespace

QString configNotRead(const DownloadCause& cause) {
    return QStringLiteral("Could not read config.yaml from the machine: ") + downloadFailure(cause);
}

QString backupFailed(const QString& reason) {
    return QStringLiteral("Could not back up the machine config; the upload did not start: ") +
           reason;
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
    return QStringLiteral("Machine config differs from %1 in %2 %3")
        .arg(label)
        .arg(keys)
        .arg(keys == 1 ? QStringLiteral("key") : QStringLiteral("keys"));
}

QString equalByKey() {
    return QStringLiteral("Equal by key");
}

QString different() {
    return QStringLiteral("Different");
}

QString partitionTablePresent() {
    return QStringLiteral("Partition table: present");
}

QString partitionTableAbsent() {
    return QStringLiteral("Partition table: absent");
}

QString plottersConnected(qsizetype count) {
    return count == 1 ? QStringLiteral("1 plotter connected")
                      : QStringLiteral("%1 plotters connected").arg(count);
}

QString checkingStartup() {
    return QStringLiteral("Checking that the machine starts…");
}

namespace {

// A plotter owner's words for why the machine does not start.
QString notStartingBecause(int verdict) {
    switch (verdict) {
        case ESP_STARTUP_BOOT_LOOP:
            return QStringLiteral("it restarts in a loop.");
        case ESP_STARTUP_PANIC:
            return QStringLiteral("it crashed at start-up.");
        case ESP_STARTUP_NO_APP:
            return QStringLiteral("it finds no firmware to start.");
        default:
            return QStringLiteral("its power supply is too weak.");
    }
}

QString firmwareStartup(const StartupCause& cause) {
    const QString version = cause.version.value_or(cause.expected.value_or(QString()));
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
            return version.isEmpty()
                       ? QStringLiteral("Firmware installed and running.")
                       : QStringLiteral("Firmware %1 installed and running.").arg(version);
        case ESP_STARTUP_WRONG_VERSION:
            return QStringLiteral(
                       "Firmware written and verified, but the machine reports version %1, not %2.")
                .arg(cause.version.value_or(QString()), cause.expected.value_or(QString()));
        case ESP_STARTUP_NO_ANSWER:
            return QStringLiteral(
                "Firmware written and verified, but the machine did not answer to confirm that it "
                "runs.");
        case ESP_STARTUP_CONFIG_ERROR:
            return QStringLiteral("The machine rejected its configuration:");
        default:
            return QStringLiteral("Firmware written, but the machine does not start: ") +
                   notStartingBecause(cause.verdict);
    }
}

QString configurationStartup(const StartupCause& cause) {
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
        case ESP_STARTUP_WRONG_VERSION:
            return QStringLiteral("Configuration uploaded; the machine restarted with it.");
        case ESP_STARTUP_NO_ANSWER:
            return QStringLiteral(
                "Configuration uploaded, but the machine did not answer after its restart.");
        case ESP_STARTUP_CONFIG_ERROR:
            return QStringLiteral("The machine rejected its configuration:");
        default:
            return QStringLiteral("Configuration uploaded, but the machine does not start: ") +
                   notStartingBecause(cause.verdict);
    }
}

QString startupNextStep(const StartupCause& cause, Audience audience) {
    const bool window = audience == Audience::window;
    switch (cause.verdict) {
        case ESP_STARTUP_RUNNING:
            return QString();
        case ESP_STARTUP_BROWNOUT:
            return QStringLiteral(
                "Plug in the machine's own power supply (USB power is not enough), then try "
                "again.");
        case ESP_STARTUP_CONFIG_ERROR:
            return window ? QStringLiteral(
                                "Correct the configuration and upload it again, or upload a "
                                "product's configuration from Config > Update Config.")
                          : QStringLiteral(
                                "Correct the configuration and run teskal-flash upload-config "
                                "again, or upload a product's with --product NAME.");
        case ESP_STARTUP_WRONG_VERSION:
            return window ? QStringLiteral("Run the update again.")
                          : QStringLiteral("Run teskal-flash flash again.");
        case ESP_STARTUP_NO_ANSWER:
            return window ? QStringLiteral(
                                "Check that the machine is switched on and connected; if it still "
                                "does not answer, run the update again.")
                          : QStringLiteral(
                                "Check that the machine is switched on and connected, then run "
                                "teskal-flash version.");
        default:
            return window ? QStringLiteral(
                                "Press Repair… to erase the machine, install the firmware again "
                                "and put back your settings. If it keeps happening, save the log "
                                "(File > Save Log…) for support.")
                          : QStringLiteral(
                                "Run teskal-flash repair to erase the machine, install the "
                                "firmware again and put back your settings. If it keeps "
                                "happening, keep this output for support.");
    }
}

QString failureNextStep(esp_error_t code) {
    switch (code) {
        case 2:
            return QStringLiteral(
                "Close any other program that uses the port, unplug and reconnect the machine, "
                "and try again.");
        case 3:
        case 9:
        case 10:
            return QStringLiteral("Unplug the machine, plug it in again, and try again.");
        case 4:
            return QStringLiteral(
                "This controller cannot take this firmware; contact support before trying again.");
        case 5:
        case 6:
        case 7:
        case 8:
            return QStringLiteral("Try again; if it fails again, use another USB cable or port.");
        default:
            return QString();
    }
}

}  // namespace

QString startupMessage(const StartupCause& cause) {
    return cause.written == StartupCause::Written::firmware ? firmwareStartup(cause)
                                                            : configurationStartup(cause);
}

QString nextStep(const Outcome& outcome, Audience audience) {
    if (const auto* startup = outcome.startup()) {
        return startupNextStep(*startup, audience);
    }
    return outcome.kind == Outcome::Kind::failed ? failureNextStep(outcome.code) : QString();
}

namespace {

QString thousands(qint64 value) {
    return QString::fromStdString(image::withThousands(static_cast<uint64_t>(value)));
}

}  // namespace

QString reportSize(qint64 bytes) {
    return QStringLiteral("  size: %1 bytes").arg(thousands(bytes));
}

QString reportSha256(const QString& hex) {
    return QStringLiteral("  SHA-256: ") + hex;
}

QString reportChip(const QString& name, int chipId) {
    return QStringLiteral("  chip: %1 (chip id %2)").arg(name).arg(chipId);
}

QString reportVersion(const QString& version) {
    return QStringLiteral("  version: ") + version;
}

QString reportProject(const QString& project) {
    return QStringLiteral("  project: ") + project;
}

QString reportBuilt(const QString& built) {
    return QStringLiteral("  built: ") + built;
}

QString reportPartition(bool fits, qint64 partitionBytes) {
    return QStringLiteral("  partition: %1 (the application partition holds %2 bytes)")
        .arg(fits ? QStringLiteral("fits") : QStringLiteral("too large"),
             thousands(partitionBytes));
}

QString reportPartitionUnknown() {
    return QStringLiteral("  partition: unknown (no partition table in the resources)");
}

QString reportMeta(const QString& version) {
    return QStringLiteral("  meta: ") + version;
}

QString reportResult(bool passes) {
    return passes ? QStringLiteral("  result: passes") : QStringLiteral("  result: refused");
}

QString unknownChip() {
    return QStringLiteral("unknown");
}

QString logNotSaved(const QString& reason) {
    return QStringLiteral("Could not save log: ") + reason;
}

QString neitherImageNorConfig(const QString& fileName) {
    return fileName + QStringLiteral(
                          " is neither a firmware image (.bin) nor a machine configuration "
                          "(.yaml, .yml)");
}

QString allFilesPass() {
    return QStringLiteral("All files pass");
}

QString filesRefused(qsizetype refused, qsizetype total) {
    return QStringLiteral("%1 of %2 files refused").arg(refused).arg(total);
}

QString simulatorNotStarted(const QString& reason) {
    return QStringLiteral("Could not start the simulated plotter: ") + reason;
}

QString ruleInWindow() {
    return QStringLiteral("Connection Check");
}

QString ruleOnCommandLine() {
    return QStringLiteral("teskal-flash doctor");
}

namespace {

// Joining the group helps only when the node's mode lets its group read and write,
// and never for root's group.
bool groupWouldHelp(const PortCause& cause) {
    return !cause.group.isEmpty() && cause.group != QLatin1String("root") &&
           (cause.mode & 0060) == 0060;
}

QString permissionProblem(const PortCause& cause) {
    if (groupWouldHelp(cause)) {
        return QStringLiteral("Permission denied on %1 (group %2).").arg(cause.path, cause.group);
    }
    if (!cause.owner.isEmpty()) {
        return QStringLiteral("Permission denied on %1 (owner %2, mode %3).")
            .arg(cause.path, cause.owner)
            .arg(cause.mode, 4, 8, QLatin1Char('0'));
    }
    return QStringLiteral("Permission denied on %1.").arg(cause.path);
}

QString permissionFix(const PortCause& cause, const QString& rule) {
    if (!groupWouldHelp(cause)) {
        return QStringLiteral("Install the permission rule (%1).").arg(rule);
    }
    if (cause.userInGroup && !cause.groupInEffect) {
        return QStringLiteral(
                   "You are in the group %1, but this session began before you joined it: log "
                   "out and in again.")
            .arg(cause.group);
    }
    return QStringLiteral(
               "Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, "
               "then log out and in again.")
        .arg(rule, cause.group);
}

}  // namespace

QString portProblem(const PortCause& cause) {
    switch (cause.problem) {
        case ESP_PORT_MISSING:
            return QStringLiteral("%1 does not exist.").arg(cause.path);
        case ESP_PORT_NOT_SERIAL:
            return QStringLiteral("%1 is not a serial port.").arg(cause.path);
        case ESP_PORT_PERMISSION:
            return permissionProblem(cause);
        case ESP_PORT_HELD:
            return cause.holderPid > 0
                       ? QStringLiteral("%1 is in use by %2 (pid %3).")
                             .arg(cause.path, cause.holderName)
                             .arg(cause.holderPid)
                       : QStringLiteral("%1 is in use by another program.").arg(cause.path);
        case ESP_PORT_UNPLUGGED:
            return QStringLiteral("%1 does not answer: its device has gone.").arg(cause.path);
        default:
            return QStringLiteral("%1 can be used.").arg(cause.path);
    }
}

QString portFix(const PortCause& cause, const QString& rule) {
    switch (cause.problem) {
        case ESP_PORT_MISSING:
            return QStringLiteral("Plug the plotter in, or name another port.");
        case ESP_PORT_NOT_SERIAL:
            return QStringLiteral("Name the plotter's port, for example /dev/ttyACM0.");
        case ESP_PORT_PERMISSION:
            return permissionFix(cause, rule);
        case ESP_PORT_HELD:
            return cause.holderPid > 0 ? QStringLiteral("Close that program and try again.")
                                       : QStringLiteral("Close it and try again.");
        case ESP_PORT_UNPLUGGED:
            return QStringLiteral("Unplug the plotter, plug it in again and try again.");
        default:
            return QString();
    }
}

QString portUnusable(const PortCause& cause, const QString& rule) {
    const QString fix = portFix(cause, rule);
    return fix.isEmpty() ? portProblem(cause) : portProblem(cause) + QLatin1Char(' ') + fix;
}

QString plotterSeen(const QString& serial) {
    return serial.isEmpty()
               ? QStringLiteral("Plotter seen on USB (303a:1001).")
               : QStringLiteral("Plotter seen on USB (303a:1001, serial %1).").arg(serial);
}

QString noPlotterSeen() {
    return QStringLiteral("No plotter seen on USB.");
}

QString noPlotterFix() {
    return QStringLiteral(
        "Switch it on, try another USB port, and use a cable that carries data: some cables "
        "only charge.");
}

QString portMade(const QString& path, const QString& driver) {
    return QStringLiteral("Serial port %1 made for it by %2.").arg(path, driver);
}

QString noDriver() {
    return QStringLiteral("No serial port made for it: the kernel's cdc_acm driver is missing.");
}

QString noDriverFix() {
    return QStringLiteral(
        "Install your system's extra kernel modules, or load the driver: sudo modprobe cdc_acm");
}

QString noNode() {
    return QStringLiteral("No serial port made for it yet.");
}

QString noNodeFix() {
    return QStringLiteral(
        "Wait a moment; if it stays so, unplug the plotter and plug it in again.");
}

QString mayOpen(const QString& path) {
    return QStringLiteral("You may open %1.").arg(path);
}

QString notHeld(const QString& path) {
    return QStringLiteral("No other program is using %1.").arg(path);
}

QString otherPlotter(const QString& serial, const QString& path) {
    const QString where = path.isEmpty() ? QStringLiteral("without a port") : path;
    return serial.isEmpty() ? QStringLiteral("Another plotter: %1.").arg(where)
                            : QStringLiteral("Another plotter (serial %1): %2.").arg(serial, where);
}

QString otherDevice(uint16_t vendorId, uint16_t productId, const QString& product,
                    const QString& driver, const QString& path) {
    QString device = QStringLiteral("%1:%2")
                         .arg(vendorId, 4, 16, QLatin1Char('0'))
                         .arg(productId, 4, 16, QLatin1Char('0'));
    if (!product.isEmpty()) {
        device += QLatin1Char(' ') + product;
    }
    if (!driver.isEmpty()) {
        device += QStringLiteral(" (%1)").arg(driver);
    }
    return QStringLiteral("Not a plotter: %1 on %2.").arg(device, path);
}

QString portReady(const QString& path) {
    return QStringLiteral("Ready: the plotter on %1 can be used.").arg(path);
}

QString noPlotterReady() {
    return QStringLiteral("No plotter is ready to use.");
}

QString doctorPointer() {
    return QStringLiteral("Run teskal-flash doctor to see why.");
}

QString ruleBelow() {
    return QStringLiteral("button below");
}

QString ruleHelperCommand(const QString& program, const QString& helper) {
    return program + QLatin1Char(' ') + helper;
}

QString ruleByHand(const QString& ruleFile) {
    return QStringLiteral(
               "sudo cp %1 /etc/udev/rules.d/ && sudo udevadm control --reload && sudo udevadm "
               "trigger")
        .arg(ruleFile);
}

QString ruleShipped() {
    return QStringLiteral("60-teskal-firmware-updater.rules in /etc/udev/rules.d");
}

QString plotterNotFound() {
    return QStringLiteral("Plotter not found?");
}

QString connectionCheck() {
    return QStringLiteral("Connection Check");
}

QString connectionCheckIntro() {
    return QStringLiteral(
        "Checked again every second. This window closes once the plotter can be used.");
}

QString installRule() {
    return QStringLiteral("Install Permission Rule…");
}

QString installRuleByHand(const QString& command) {
    return QStringLiteral("pkexec or the rule's installer is missing. Run by hand: ") + command;
}

QString ruleInstallerNotStarted() {
    return QStringLiteral("The permission rule's installer could not be started.");
}

QString endedWithoutResult() {
    return QStringLiteral("ended without a result");
}

QString endedAbnormally(const QString& why) {
    return QStringLiteral("ended abnormally after its result") +
           (why.isEmpty() ? QString() : QStringLiteral(": ") + why);
}

QString backupFolderUnusable(const QString& folder) {
    return QStringLiteral("Could not prepare the backups folder %1 as a folder only you can read")
        .arg(folder);
}

QString backupNotWritten(const QString& path, const QString& reason) {
    return QStringLiteral("Could not write the backup %1: %2").arg(path, reason);
}

QString backupNotKept(const QString& reason) {
    return QStringLiteral("No backup was kept: ") + reason;
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

QString backupTime(const QDateTime& time) {
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
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
    }
    return QString();
}

QString backupLine(const Backup& backup) {
    return QStringLiteral("%1  %2  %3  %4 bytes  %5  %6")
        .arg(backupTime(backup.time), BackupIndex::reasonName(backup.reason),
             backup.firmwareVersion.value_or(QStringLiteral("-")))
        .arg(backup.size)
        .arg(backup.machine, backup.path);
}

QString noBackups(const QString& folder) {
    return QStringLiteral("No backups in ") + folder;
}

QString backupsIn(qsizetype count, const QString& folder) {
    return QStringLiteral("%1 %2 in %3")
        .arg(count)
        .arg(count == 1 ? QStringLiteral("backup") : QStringLiteral("backups"), folder);
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
    return QStringLiteral("Nothing was erased: ") + reason;
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

QString restorePreviousButton() {
    return QStringLiteral("Restore Previous Configuration");
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

QString settingsRestored(const QDateTime& time) {
    return QStringLiteral("Settings restored from the backup of %1.").arg(backupTime(time));
}

QString repairButton() {
    return QStringLiteral("Repair\u2026");
}

QString repairMenuItem() {
    return QStringLiteral("Repair Machine\u2026");
}

QString shippedFirmware(const QString& version) {
    return QStringLiteral("firmware ") + version;
}

QString settingsOf(const QDateTime& time) {
    return QStringLiteral("your settings from ") +
           QLocale::c().toString(time, QStringLiteral("d MMM yyyy HH:mm"));
}

QString stockConfigOf(const QString& product) {
    return QStringLiteral("the stock configuration of ") + product;
}

QString repairPlan(const QString& firmware, const std::optional<QString>& what) {
    return what ? QStringLiteral("Erase the machine, install %1, then put back %2.")
                      .arg(firmware, *what)
                : QStringLiteral("Erase the machine and install %1, without a configuration.")
                      .arg(firmware);
}

QString puttingBack(const QString& what) {
    return QStringLiteral("NOTE: Flash was erased; once the machine runs, %1 will be put back.")
        .arg(what);
}

QString repaired(const QString& firmware, const std::optional<QString>& what) {
    return what ? QStringLiteral("Machine repaired: it runs %1 with %2.").arg(firmware, *what)
                : QStringLiteral("Machine repaired: it runs %1, without a configuration.")
                      .arg(firmware);
}

QString nothingToRestore(const QString& machine, const QList<Backup>& backups,
                         const QString& folder, Audience audience) {
    QString text = QStringLiteral(
                       "Nothing was erased: there is no backup of the machine %1 to put back "
                       "after the repair. ")
                       .arg(machine);
    if (backups.isEmpty()) {
        text += noBackups(folder) + QStringLiteral(". ");
    } else {
        QStringList named;
        for (const Backup& backup : backups) {
            named << QStringLiteral("%1 (%2, %3)")
                         .arg(QFileInfo(backup.path).fileName(), backup.machine,
                              backupTime(backup.time));
        }
        text += QStringLiteral("Backups in %1: %2. ").arg(folder, named.join(QStringLiteral(", ")));
    }
    return text +
           (audience == Audience::window
                ? QStringLiteral("Choose another backup, a product's stock configuration, or none "
                                 "in the Repair dialog.")
                : QStringLiteral("Choose what goes back with --backup FILE, --product NAME or "
                                 "--no-config."));
}

QString repairNeedsChoice() {
    return QStringLiteral(
        "This machine has no backup of its settings. Choose what goes back after the erase.");
}

QString keepsRestarting() {
    return QStringLiteral("The plotter keeps restarting.");
}

QString holdBootButton(Audience audience) {
    return QStringLiteral(
               "If its controller board has a BOOT button, hold it while you plug the plotter "
               "in, then %1.")
        .arg(audience == Audience::window ? QStringLiteral("press Repair")
                                          : QStringLiteral("run teskal-flash repair"));
}

}  // namespace Texts
