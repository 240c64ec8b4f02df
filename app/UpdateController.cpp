#include "app/UpdateController.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>
#include <QPointer>

#include "app/BuildConfig.h"
#include "app/CompareMachineConfigJob.h"
#include "app/ConfigUploadJob.h"
#include "app/FirmwareUpdateJob.h"
#include "app/MachineConfigBackup.h"
#include "app/SaveMachineConfigJob.h"

UpdateController::UpdateController(QObject* parent)
    : UpdateController(ResourceBundle::located(), DeviceMonitor::Detector(esp_detect_device),
                       DevelopmentImages::refuse, parent) {}

UpdateController::UpdateController(ResourceBundle resources, DeviceMonitor::Detector detector,
                                   DevelopmentImages developmentImages, QObject* parent)
    : QObject(parent),
      resources_(std::move(resources)),
      developmentImages_(developmentImages),
      monitor_(new DeviceMonitor(std::move(detector), this)),
      statusMessage_(QStringLiteral("Waiting for device…")) {
    worker_.setMaxThreadCount(1);
    monitor_->startPolling();
    connect(monitor_, &DeviceMonitor::isConnectedChanged, this, &UpdateController::followConnection,
            Qt::QueuedConnection);
}

UpdateController::~UpdateController() {
    worker_.waitForDone();
}

QUrl UpdateController::customFirmwareURL() const {
    const QMutexLocker lock(&customFirmwareMutex_);
    return customFirmwareURL_;
}

void UpdateController::setCustomFirmwareURL(const QUrl& location) {
    {
        const QMutexLocker lock(&customFirmwareMutex_);
        customFirmwareURL_ = location;
    }
    emit customFirmwareURLChanged(location);
}

QString UpdateController::firmwareLabel() const {
    const QUrl location = customFirmwareURL();
    if (location.isEmpty()) {
        return QStringLiteral("Firmware version ") + BuildConfig::firmwareVersion();
    }
    return location.fileName();
}

void UpdateController::updateFirmware() {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    clearLog();
    submit([port = *port](UpdateController& controller) { controller.performFlash(port); });
}

void UpdateController::uploadConfig(const QString& configFile, const QString& productName) {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    clearLog();
    submit([port = *port, product = ProductConfig{productName, configFile},
            backUp = backupBeforeUpload_](UpdateController& controller) {
        controller.performConfigUpload(port, ConfigUploadJob(port, controller.resources_, product),
                                       backUp);
    });
}

void UpdateController::uploadConfigFromFile(const QString& path) {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    const ConfigFile config = readConfigFile(path);
    if (!config.bytes) {
        log(QStringLiteral("ERROR: ") + config.refusal);
        return;
    }
    clearLog();
    log(config.announcement);
    submit([port = *port, configData = *config.bytes,
            backUp = backupBeforeUpload_](UpdateController& controller) {
        controller.performConfigUpload(port, ConfigUploadJob(port, configData), backUp);
    });
}

void UpdateController::saveMachineConfig(const QString& destination) {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    clearLog();
    submit([port = *port, destination](UpdateController& controller) {
        controller.setState(UpdateState::probing());
        const SaveMachineConfigJob job(port, destination);
        controller.finishDownload(job.run(controller.downloadSink()),
                                  QStringLiteral("Machine config saved"));
    });
}

void UpdateController::compareWithMachine(const ConfigChoice& choice) {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    const auto chosen = readChoice(choice);
    if (!chosen) {
        return;
    }
    clearLog();
    submit([port = *port, chosen = *chosen, choice](UpdateController& controller) {
        controller.setState(UpdateState::probing());
        CompareMachineConfigJob job(port, chosen);
        const auto failure = job.run(controller.downloadSink());
        controller.finishDownload(failure, QStringLiteral("Machine config compared"),
                                  [comparison = job.comparison(), choice](UpdateController& self) {
                                      emit self.machineConfigCompared(comparison, choice);
                                  });
    });
}

std::optional<ConfigText> UpdateController::readChoice(const ConfigChoice& choice) {
    ChosenConfig chosen = readChosenConfig(resources_, choice);
    if (!chosen.text) {
        log(QStringLiteral("ERROR: ") + chosen.refusal);
    }
    return std::move(chosen.text);
}

void UpdateController::chooseCustomFirmware(const std::optional<QString>& path) {
    if (!path) {
        setCustomFirmwareURL(QUrl());
        log(QStringLiteral("Custom firmware: unknown"));
        return;
    }
    const QString fileName = QFileInfo(*path).fileName();
    const QString refused =
        QStringLiteral("ERROR: ") + fileName + QStringLiteral(" cannot be used: ");
    QString failure;
    const auto firmware = readWholeFile(*path, &failure);
    if (!firmware) {
        log(refused + QStringLiteral("it could not be read (") + failure + ')');
        return;
    }
    const image::ImageReport report = inspectFirmware(*firmware);
    if (const auto refusal = firmwareRefusal(report, resources_, developmentImages_)) {
        log(refused + *refusal);
        return;
    }
    setCustomFirmwareURL(QUrl::fromLocalFile(*path));
    log(QStringLiteral("Custom firmware: ") + fileName);
    log(describeFirmware(*report.app));
}

std::optional<QString> UpdateController::portForNewJob() {
    const auto port = monitor_->port();
    if (!port) {
        log(QStringLiteral("ERROR: No device connected"));
        return std::nullopt;
    }
    // The bridge's handler slots serve one library call at a time.
    if (jobRunning_) {
        log(QStringLiteral("ERROR: Another operation is already running"));
        return std::nullopt;
    }
    return port;
}

void UpdateController::submit(std::function<void(UpdateController&)> job) {
    assignJobRunning(true);
    QPointer<UpdateController> self(this);
    worker_.start([self, job = std::move(job)] {
        if (self.isNull()) {
            return;
        }
        job(*self);
        // Posted behind every step the job posted, so a new job cannot start (and
        // empty the log) before this job's last lines and state have arrived.
        QMetaObject::invokeMethod(
            self, [self] { self->assignJobRunning(false); }, Qt::QueuedConnection);
    });
}

void UpdateController::performFlash(const QString& port) {
    FirmwareUpdateJob::Options options;
    const QUrl custom = customFirmwareURL();
    if (!custom.isEmpty()) {
        options.customFirmware = custom.toLocalFile();
    }
    options.writeBootPartitions = writeBootPartitions_;
    options.eraseAll = eraseAllFlash_;
    options.developmentImages = developmentImages_;
    const FirmwareUpdateJob job(port, resources_, options);
    finish(job.run(jobSink(flashProgressHandler(), UpdateState::flashing(0.0f),
                           UpdateState::flashComplete())));
}

void UpdateController::performConfigUpload(const QString& port, const ConfigUploadJob& job,
                                           bool backUp) {
    if (backUp) {
        setState(UpdateState::probing());
        if (const auto failure =
                MachineConfigBackup::run(port, QDateTime::currentDateTime(), downloadSink())) {
            logError(*failure);
            return;
        }
    }
    finish(job.run(jobSink(configProgressHandler(), UpdateState::uploadingConfig(0.0f),
                           UpdateState::configComplete())));
}

JobSink UpdateController::jobSink(FlasherBridge::ProgressHandler progress,
                                  const UpdateState& running, const UpdateState& complete) {
    JobSink sink;
    sink.progress = std::move(progress);
    sink.log = [this](const QString& line) { log(line); };
    sink.libraryLog = libraryLogHandler();
    sink.started = [this, running](qint64) { setState(running); };
    sink.succeeded = [this, complete] { setState(complete); };
    return sink;
}

void UpdateController::finish(const JobOutcome& outcome) {
    if (!outcome.ok()) {
        logError(outcome.message);
    }
}

FlasherBridge::ProgressHandler UpdateController::flashProgressHandler() {
    return [self = QPointer(this)](float fraction, const QString& message) {
        postStep(self, [fraction, message](UpdateController& controller) {
            controller.assignProgress(fraction);
            controller.assignState(UpdateState::flashing(fraction));
            if (!message.isEmpty()) {
                controller.assignStatus(message);
            }
        });
    };
}

FlasherBridge::ProgressHandler UpdateController::configProgressHandler() {
    return [self = QPointer(this)](float fraction, const QString& message) {
        postStep(self, [fraction, message](UpdateController& controller) {
            controller.assignProgress(fraction);
            controller.assignState(UpdateState::uploadingConfig(fraction));
            if (message.isEmpty()) {
                return;
            }
            if (message != controller.statusMessage_) {
                controller.appendLog(message);
            }
            controller.assignStatus(message);
        });
    };
}

JobSink UpdateController::downloadSink() {
    JobSink sink;
    // XModem names no size in advance, so the bar stays indeterminate and the count
    // of bytes, which changes with every block, is shown but not logged.
    sink.progress = [self = QPointer(this)](float fraction, const QString& message) {
        postStep(self, [fraction, message](UpdateController& controller) {
            controller.assignProgress(fraction);
            if (!message.isEmpty()) {
                controller.assignStatus(message);
            }
        });
    };
    sink.log = [this](const QString& line) { log(line); };
    return sink;
}

void UpdateController::finishDownload(const std::optional<QString>& failure, const QString& status,
                                      std::function<void(UpdateController&)> then) {
    if (failure) {
        logError(*failure);
        return;
    }
    postStep(this, [status, then = std::move(then)](UpdateController& controller) {
        controller.assignState(UpdateState::ready());
        controller.assignStatus(status);
        if (then) {
            then(controller);
        }
    });
}

FlasherBridge::LogHandler UpdateController::libraryLogHandler() {
    return [self = QPointer(this)](const QString& line) {
        postStep(self, [line](UpdateController& controller) {
            if (controller.detailedLogging_) {
                controller.appendLog(line);
            }
        });
    };
}

void UpdateController::postStep(const QPointer<UpdateController>& self,
                                std::function<void(UpdateController&)> step) {
    if (self.isNull()) {
        return;
    }
    QMetaObject::invokeMethod(
        self, [self, step = std::move(step)] { step(*self); }, Qt::QueuedConnection);
}

void UpdateController::followConnection(bool connected) {
    if (state_.isBusy()) {
        return;
    }
    if (connected) {
        assignState(UpdateState::ready());
        assignStatus(QStringLiteral("Device connected"));
    } else {
        assignState(UpdateState::idle());
        assignStatus(QStringLiteral("Waiting for device…"));
    }
}

void UpdateController::log(const QString& line) {
    QMetaObject::invokeMethod(
        this, [this, line] { appendLog(line); }, Qt::QueuedConnection);
}

void UpdateController::logError(const QString& message) {
    QMetaObject::invokeMethod(
        this,
        [this, message] {
            appendLog(QStringLiteral("ERROR: ") + message);
            assignState(UpdateState::error(message));
            assignStatus(message);
        },
        Qt::QueuedConnection);
}

void UpdateController::setState(const UpdateState& state) {
    QMetaObject::invokeMethod(
        this, [this, state] { assignState(state); }, Qt::QueuedConnection);
}

void UpdateController::assignState(const UpdateState& state) {
    state_ = state;
    emit stateChanged(state_);
}

void UpdateController::assignProgress(float progress) {
    progress_ = progress;
    emit progressChanged(progress_);
}

void UpdateController::assignStatus(const QString& message) {
    statusMessage_ = message;
    emit statusMessageChanged(statusMessage_);
}

void UpdateController::appendLog(const QString& line) {
    logMessages_.append(line);
    emit logMessagesChanged(logMessages_);
}

void UpdateController::assignJobRunning(bool running) {
    jobRunning_ = running;
    emit jobRunningChanged(jobRunning_);
}

void UpdateController::clearLog() {
    logMessages_.clear();
    emit logMessagesChanged(logMessages_);
}
