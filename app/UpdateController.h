#pragma once

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QUrl>
#include <atomic>
#include <functional>
#include <optional>

#include "app/ConfigChoice.h"
#include "app/ConfigDiff.h"
#include "app/DeviceMonitor.h"
#include "app/FirmwareCheck.h"
#include "app/FlasherBridge.h"
#include "app/JobOutcome.h"
#include "app/JobSink.h"
#include "app/ResourceBundle.h"
#include "app/UpdateState.h"
#include "app/UserText.h"
#include "esp_flasher.h"

class ConfigUploadJob;

/// The application's one controller: owns the device monitor, publishes what the
/// main window shows, and runs its jobs (`FirmwareUpdateJob`, `ConfigUploadJob`,
/// `SaveMachineConfigJob`, `CompareMachineConfigJob`) on a private background
/// worker, one at a time, turning what they report into its published state.
///
/// Threading: create it and call every public function on the GUI thread, except
/// `log`, which may be called from any thread. Published properties are written
/// on the GUI thread only; each NOTIFY signal fires on every assignment, also
/// when the value did not change. Jobs reach the library only from the worker.
/// Destroying the controller waits for a running job to end.
class UpdateController : public QObject {
    Q_OBJECT
    Q_PROPERTY(UpdateState state READ state NOTIFY stateChanged)
    Q_PROPERTY(float progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString statusMessage READ statusMessage NOTIFY statusMessageChanged)
    Q_PROPERTY(QStringList logMessages READ logMessages NOTIFY logMessagesChanged)
    Q_PROPERTY(QUrl customFirmwareURL READ customFirmwareURL WRITE setCustomFirmwareURL NOTIFY
                   customFirmwareURLChanged)
    Q_PROPERTY(QString firmwareLabel READ firmwareLabel NOTIFY customFirmwareURLChanged)
    Q_PROPERTY(bool detailedLogging READ detailedLogging WRITE setDetailedLogging)
    Q_PROPERTY(bool writeBootPartitionsEnabled READ writeBootPartitionsEnabled WRITE
                   setWriteBootPartitionsEnabled)
    Q_PROPERTY(bool eraseAllFlashEnabled READ eraseAllFlashEnabled WRITE setEraseAllFlashEnabled)
    Q_PROPERTY(bool backupBeforeUploadEnabled READ backupBeforeUploadEnabled WRITE
                   setBackupBeforeUploadEnabled)
    Q_PROPERTY(bool jobRunning READ jobRunning NOTIFY jobRunningChanged)

  public:
    /// Whether firmware images that carry the development marker may be written.
    /// Only a program whose every device is simulated accepts them.
    using DevelopmentImages = ::DevelopmentImages;

    /// Uses the resources beside the executable and the library's device
    /// detection, refuses development images; starts polling for the device.
    explicit UpdateController(QObject* parent = nullptr);
    /// Uses `resources` and `detector` in their place (tests, the simulated-plotter
    /// demo); starts polling for the device.
    UpdateController(ResourceBundle resources, DeviceMonitor::Detector detector,
                     DevelopmentImages developmentImages = DevelopmentImages::refuse,
                     QObject* parent = nullptr);
    ~UpdateController() override;

    UpdateState state() const { return state_; }
    /// Latest progress fraction reported by a job, as reported.
    float progress() const { return progress_; }
    QString statusMessage() const { return statusMessage_; }
    /// The log, oldest line first; emptied when a job starts.
    QStringList logMessages() const { return logMessages_; }

    /// The firmware file chosen by the user; empty means the shipped image.
    QUrl customFirmwareURL() const;
    /// Empty clears the choice.
    void setCustomFirmwareURL(const QUrl& location);
    /// The chosen file's name, or "Firmware version 2.10.6".
    QString firmwareLabel() const;

    /// When set, every log line of the flasher library is added to the log.
    bool detailedLogging() const { return detailedLogging_; }
    void setDetailedLogging(bool enabled) { detailedLogging_ = enabled; }
    /// When set, a firmware update always writes all four regions.
    bool writeBootPartitionsEnabled() const { return writeBootPartitions_; }
    void setWriteBootPartitionsEnabled(bool enabled) { writeBootPartitions_ = enabled; }
    /// When set, the firmware update is a full flash that erases the whole chip first.
    bool eraseAllFlashEnabled() const { return eraseAllFlash_; }
    void setEraseAllFlashEnabled(bool enabled) { eraseAllFlash_ = enabled; }
    /// When set, every configuration upload first saves the machine's config.yaml
    /// in `MachineConfigBackup::folder()` and does not start when that fails. Read
    /// when the upload is started.
    bool backupBeforeUploadEnabled() const { return backupBeforeUpload_; }
    void setBackupBeforeUploadEnabled(bool enabled) { backupBeforeUpload_ = enabled; }

    /// Owned by the controller for its whole life.
    DeviceMonitor* deviceMonitor() const { return monitor_; }

    /// True from the moment a job is accepted (before its state leaves `ready`)
    /// until its last posted step has arrived on the GUI thread.
    bool jobRunning() const { return jobRunning_; }

    /// Takes the firmware file chosen in the file dialog after checking it as the
    /// job will: a file that cannot be firmware leaves the choice as it was and
    /// logs "ERROR: NAME cannot be used: REASON"; an accepted one is recorded and
    /// logged with "Custom firmware: " and its name, then its version, project
    /// and build date. None (the dialog confirmed without a location) clears the
    /// choice and logs "Custom firmware: unknown".
    void chooseCustomFirmware(const std::optional<QString>& path);

    /// See `UserText::errorMessage`.
    static QString errorMessage(esp_error_t code) { return UserText::errorMessage(code); }
    /// See `UserText::extractMetaVersion`.
    static std::optional<QString> extractMetaVersion(const QByteArray& bytes) {
        return UserText::extractMetaVersion(bytes);
    }
    /// See `UserText::cleanFirmwareVersion`.
    static QString cleanFirmwareVersion(const QString& reply) {
        return UserText::cleanFirmwareVersion(reply);
    }

  public slots:
    /// The start operations refuse, with one "ERROR: " log line and no other change,
    /// when no device is connected or a job is still running.
    ///
    /// Starts a firmware update on the monitor's port.
    void updateFirmware();
    /// Starts an upload of a product's configuration from the resources.
    void uploadConfig(const QString& configFile, const QString& productName);
    /// Reads a configuration file from disk and starts its upload; a file that is
    /// not a valid machine configuration (see `machineConfigProblem`) is refused
    /// with one "ERROR: " log line and no other change.
    void uploadConfigFromFile(const QString& path);
    /// Downloads the machine's config.yaml and saves it at `destination` (see
    /// `SaveMachineConfigJob`). While it runs the state is `probing` and the status
    /// line shows the bytes received; it ends `ready` with the status "Machine
    /// config saved", or as an error.
    void saveMachineConfig(const QString& destination);
    /// Reads the chosen configuration (refused like an upload of it when it cannot
    /// be read or is not a valid machine configuration), then downloads the
    /// machine's config.yaml and compares the two (see `CompareMachineConfigJob`),
    /// with the states of `saveMachineConfig`; on success the status is "Machine
    /// config compared" and `machineConfigCompared` is emitted.
    void compareWithMachine(const ConfigChoice& choice);
    /// Appends a line to the log, asynchronously on the GUI thread, in call order.
    void log(const QString& line);

  signals:
    void stateChanged(const UpdateState& state);
    void progressChanged(float progress);
    void statusMessageChanged(const QString& statusMessage);
    void logMessagesChanged(const QStringList& logMessages);
    void customFirmwareURLChanged(const QUrl& location);
    void jobRunningChanged(bool running);
    /// A comparison started by `compareWithMachine` has ended; from the machine's
    /// configuration to the `chosen` one.
    void machineConfigCompared(const ConfigComparison& comparison, const ConfigChoice& chosen);

  private:
    /// Queues `step` for the GUI thread; dropped when the controller is gone by then.
    static void postStep(const QPointer<UpdateController>& self,
                         std::function<void(UpdateController&)> step);
    void followConnection(bool connected);
    std::optional<QString> portForNewJob();
    void submit(std::function<void(UpdateController&)> job);

    void performFlash(const QString& port);
    /// Backs up the machine's configuration first when `backUp` is set.
    void performConfigUpload(const QString& port, const ConfigUploadJob& job, bool backUp);
    /// The chosen configuration as it is to be compared; none, with one "ERROR: "
    /// log line, when it cannot be.
    std::optional<ConfigText> readChoice(const ConfigChoice& choice);
    /// A sink that posts what a job reports: `running` when it starts, `complete`
    /// when it succeeds.
    JobSink jobSink(FlasherBridge::ProgressHandler progress, const UpdateState& running,
                    const UpdateState& complete);
    void finish(const JobOutcome& outcome);
    FlasherBridge::ProgressHandler flashProgressHandler();
    FlasherBridge::ProgressHandler configProgressHandler();
    /// Where a download reports: its byte count goes to the status line only.
    JobSink downloadSink();
    /// Ends a save or a comparison: an error, or `ready` with `status` and then `then`.
    void finishDownload(const std::optional<QString>& failure, const QString& status,
                        std::function<void(UpdateController&)> then = {});
    FlasherBridge::LogHandler libraryLogHandler();

    void logError(const QString& message);
    void setState(const UpdateState& state);
    void assignState(const UpdateState& state);
    void assignProgress(float progress);
    void assignStatus(const QString& message);
    void appendLog(const QString& line);
    void clearLog();
    void assignJobRunning(bool running);

    const ResourceBundle resources_;
    const DevelopmentImages developmentImages_;
    DeviceMonitor* monitor_;
    UpdateState state_ = UpdateState::idle();
    float progress_ = 0.0f;
    QString statusMessage_;
    QStringList logMessages_;
    mutable QMutex customFirmwareMutex_;
    QUrl customFirmwareURL_;
    std::atomic<bool> detailedLogging_ = false;
    std::atomic<bool> writeBootPartitions_ = false;
    std::atomic<bool> eraseAllFlash_ = false;
    bool backupBeforeUpload_ = false;
    bool jobRunning_ = false;
    // Last member: destroyed first, so a running job finishes while the rest of
    // the controller still exists.
    QThreadPool worker_;
};
