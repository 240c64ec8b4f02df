#pragma once

#include <QMutex>
#include <QObject>
#include <QString>
#include <QUrl>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>

#include "app/Backup.h"
#include "app/ConfigChoice.h"
#include "app/ConfigDiff.h"
#include "app/ConnectionHint.h"
#include "app/DeviceMonitor.h"
#include "app/FirmwareCheck.h"
#include "app/FirmwareChoice.h"
#include "app/PublishedState.h"
#include "app/ResourceBundle.h"
#include "app/SettingsQuestions.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/OperationRunner.h"
#include "app/operations/Repair.h"
#include "app/operations/SnapshotFirst.h"

/// The application's one controller: owns the device monitor, publishes what the
/// main window shows (see `PublishedState`), holds the menus' options, and starts
/// the owner's operations (see app/operations) on its runner, one at a time. What
/// it learns of a job comes in the job's `Outcome` alone.
///
/// Threading: create it and call every public function on the GUI thread, except
/// `log`, which may be called from any thread. Destroying the controller waits for
/// a running operation to end.
class UpdateController : public PublishedState {
    Q_OBJECT
    Q_PROPERTY(QUrl customFirmwareURL READ customFirmwareURL WRITE setCustomFirmwareURL NOTIFY
                   customFirmwareURLChanged)
    Q_PROPERTY(QString firmwareLabel READ firmwareLabel NOTIFY customFirmwareURLChanged)
    Q_PROPERTY(bool detailedLogging READ detailedLogging WRITE setDetailedLogging)
    Q_PROPERTY(bool writeBootPartitionsEnabled READ writeBootPartitionsEnabled WRITE
                   setWriteBootPartitionsEnabled)
    Q_PROPERTY(bool eraseAllFlashEnabled READ eraseAllFlashEnabled WRITE setEraseAllFlashEnabled)
    Q_PROPERTY(bool backupBeforeUploadEnabled READ backupBeforeUploadEnabled WRITE
                   setBackupBeforeUploadEnabled)
    Q_PROPERTY(bool snapshotBeforeWritingEnabled READ snapshotBeforeWritingEnabled WRITE
                   setSnapshotBeforeWritingEnabled)
    Q_PROPERTY(bool jobRunning READ jobRunning NOTIFY jobRunningChanged)

  public:
    using DevelopmentImages = ::DevelopmentImages;

    /// Uses the resources beside the executable and the library's device
    /// detection, refuses development images; starts polling for the device.
    explicit UpdateController(QObject* parent = nullptr);
    /// Uses `resources` and `detector` in their place (tests, the simulated-plotter
    /// program); starts polling for the device.
    UpdateController(ResourceBundle resources, DeviceMonitor::Detector detector,
                     DevelopmentImages developmentImages = DevelopmentImages::refuse,
                     QObject* parent = nullptr);
    ~UpdateController() override;

    /// The firmware file chosen by the owner; empty means the shipped image.
    QUrl customFirmwareURL() const;
    /// Empty clears the choice.
    void setCustomFirmwareURL(const QUrl& location);
    /// The chosen file's name, the chosen catalogue release ("Firmware version
    /// 2.11.0 from the catalogue"), or "Firmware version 2.10.6".
    QString firmwareLabel() const;

    /// The firmware catalogue and the release chosen from it; owned by the controller.
    FirmwareChoice* firmwareChoice() const { return firmwareChoice_; }
    /// Makes the catalogue's release `version` the image, in place of a chosen file
    /// or the bundled firmware, and logs it; a file chosen or "Use Bundled
    /// Firmware" (`setCustomFirmwareURL`) drops it. A release older than the
    /// firmware the machine runs is refused by the job, which then asks
    /// `SettingsQuestions::installOlder` and, agreed, runs again allowing it.
    void chooseRelease(const QString& version);

    /// The options of the menus; read when an operation starts.
    bool detailedLogging() const { return detailedLogging_; }
    void setDetailedLogging(bool enabled) { detailedLogging_ = enabled; }
    bool writeBootPartitionsEnabled() const { return writeBootPartitions_; }
    void setWriteBootPartitionsEnabled(bool enabled) { writeBootPartitions_ = enabled; }
    bool eraseAllFlashEnabled() const { return eraseAllFlash_; }
    void setEraseAllFlashEnabled(bool enabled) { eraseAllFlash_ = enabled; }
    /// Every configuration upload first saves the machine's config.yaml.
    bool backupBeforeUploadEnabled() const { return backupBeforeUpload_; }
    void setBackupBeforeUploadEnabled(bool enabled) { backupBeforeUpload_ = enabled; }
    /// Every firmware write first takes a snapshot of the whole flash (see
    /// `SnapshotFirst`), so that it can be undone.
    bool snapshotBeforeWritingEnabled() const { return snapshotBeforeWriting_; }
    void setSnapshotBeforeWritingEnabled(bool enabled) { snapshotBeforeWriting_ = enabled; }

    /// Owned by the controller for its whole life.
    DeviceMonitor* deviceMonitor() const { return monitor_; }
    /// When to offer the Connection Check; owned by the controller.
    ConnectionHint* connectionHint() const { return connectionHint_; }

    /// The questions "Update Firmware" asks when Erase All Flash is set; the window
    /// installs its dialogs.
    void setSettingsQuestions(SettingsQuestions questions) { questions_ = std::move(questions); }

    /// True from the moment an operation is accepted (before its state leaves
    /// `ready`) until its outcome has arrived on the GUI thread.
    bool jobRunning() const { return runner_.isRunning(); }

    /// Takes the firmware file chosen in the file dialog after checking it as the
    /// job will (`checkFirmwareFile`): a refused file leaves the choice as it was
    /// and logs the refusal as an error; an accepted one is recorded and logged with
    /// "Custom firmware: " and its name, then its description. None (the dialog
    /// confirmed without a location) clears the choice and logs "Custom firmware:
    /// unknown".
    void chooseCustomFirmware(const std::optional<QString>& path);

    /// The message of a library result code.
    static QString errorMessage(esp_error_t code);
    /// See `VersionText::metaVersion`.
    static std::optional<QString> extractMetaVersion(const QByteArray& bytes);

  public slots:
    /// The start operations refuse, with one error line in the log and no other
    /// change, when no device is connected, an operation is still running, or the
    /// operation refuses its input.
    ///
    /// With Erase All Flash set it first asks `SettingsQuestions::beforeErase`:
    /// saving and restoring runs `EraseKeepingSettings`, and when that stops before
    /// the erase the follow-up question is asked once its outcome is shown (erase
    /// anyway, or retry the read), the next job continuing the log; erasing
    /// without saving runs the flashing job as it is; cancelling starts nothing.
    void updateFirmware();
    /// A product's configuration from the resources.
    void uploadConfig(const QString& configFile, const QString& productName);
    /// A configuration file from disk, read and checked first.
    void uploadConfigFromFile(const QString& path);
    /// Either of the two above.
    void uploadChoice(const ConfigChoice& choice);
    /// Reads the machine's config.yaml into `destination` (state `downloadingConfig`,
    /// the bytes received in the status line); ends `ready` with the status "Machine
    /// config saved", or as an error.
    void saveMachineConfig(const QString& destination);
    /// Reads the machine's config.yaml and compares `choice` with it; ends `ready`
    /// with the status "Machine config compared" and `machineConfigCompared`.
    void compareWithMachine(const ConfigChoice& choice);
    /// Saves the log for support at `path` (see `SaveLog`); a failure is logged.
    void saveLog(const QString& path);
    /// Puts `backup` back on the machine with the normal upload (see `RestoreConfig`).
    void restoreBackup(const Backup& backup);
    /// `restoreBackup` of the configuration the machine had before the last job, an
    /// upload whose configuration it rejects (`StartupCause::previous`), if any.
    void restorePreviousConfiguration();
    /// Repairs the machine (see `Repair`): Erase All Flash with the firmware "Update
    /// Firmware" would write, then `putBack`; ends with the result banner as every
    /// job does.
    void repairMachine(const Repair::PutBack& putBack, bool snapshotFirst = false);
    /// Reads the machine's whole flash into the backups folder (see `TakeSnapshot`);
    /// ends `ready` with the status "Whole machine backed up".
    void backUpWholeMachine();
    /// Writes the snapshot at `path` back (see `RestoreMachine`); one of another
    /// machine only when `otherMachineAllowed` (the window asks first).
    void restoreWholeMachine(const QString& path, bool otherMachineAllowed);
    /// Puts back the snapshot taken before the last write, when that write left a
    /// machine that does not start (`StartupCause::snapshot`).
    void undoUpdate();

  signals:
    void customFirmwareURLChanged(const QUrl& location);
    void jobRunningChanged(bool running);
    /// A comparison started by `compareWithMachine` has ended; from the machine's
    /// configuration to the `chosen` one.
    void machineConfigCompared(const ConfigComparison& comparison, const ConfigChoice& chosen);

  private:
    /// What follows an outcome that is no failure, or one that is.
    using Then = std::function<void(const Outcome& outcome)>;

    /// Whether a job empties the log when it starts.
    enum class Log { fresh, continued };

    // The controller's own steps: each builds its operation and runs it.
    void performFlash(const QString& port, Log log = Log::fresh, bool allowOlder = false);
    void performConfigUpload(const QString& port, const QString& configFile,
                             const QString& productName);
    void performConfigUploadData(const QString& port, const QString& path,
                                 const QByteArray& configData);
    void performKeepingSettings(const QString& port, Log log, bool allowOlder = false);
    SnapshotFirst::Options snapshotOptions(BackupReason reason) const;

    std::optional<QString> portForNewJob();
    void start(std::shared_ptr<Operation> operation, Then then = {}, Then otherwise = {},
               Log log = Log::fresh);
    void askAfter(const Outcome& outcome, bool keepingSettings);
    FlashFirmware::Options flashOptions(bool allowOlder = false) const;
    void showLibraryLine(const QString& line);
    void finish(const Outcome& outcome);

    const ResourceBundle resources_;
    const DevelopmentImages developmentImages_;
    DeviceMonitor* monitor_;
    ConnectionHint* connectionHint_;
    FirmwareChoice* firmwareChoice_;
    mutable QMutex customFirmwareMutex_;
    QUrl customFirmwareURL_;
    std::atomic<bool> detailedLogging_ = false;
    std::atomic<bool> writeBootPartitions_ = false;
    std::atomic<bool> eraseAllFlash_ = false;
    bool backupBeforeUpload_ = false;
    bool snapshotBeforeWriting_ = false;
    SettingsQuestions questions_;
    Then then_;
    /// What follows an outcome that is a failure, once it is shown.
    Then otherwise_;
    // Last member: destroyed first, so a running operation ends while the rest of
    // the controller still exists.
    OperationRunner runner_;
};
