#include "app/UpdateController.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>

#include "app/BuildConfig.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CheckFirmwareFile.h"
#include "app/operations/CompareWithMachine.h"
#include "app/operations/RestoreConfig.h"
#include "app/operations/SaveLog.h"
#include "app/operations/SaveMachineConfig.h"
#include "app/operations/UploadConfig.h"

UpdateController::UpdateController(QObject* parent)
    : UpdateController(ResourceBundle::located(), DeviceMonitor::Detector(esp_detect_device),
                       DevelopmentImages::refuse, parent) {}

UpdateController::UpdateController(ResourceBundle resources, DeviceMonitor::Detector detector,
                                   DevelopmentImages developmentImages, QObject* parent)
    : PublishedState(parent),
      resources_(std::move(resources)),
      developmentImages_(developmentImages),
      monitor_(new DeviceMonitor(std::move(detector), this)),
      connectionHint_(new ConnectionHint(statusMessage(), ConnectionHint::kPatienceMs, this)) {
    monitor_->startPolling();
    connect(this, &UpdateController::statusMessageChanged, connectionHint_,
            &ConnectionHint::followStatus);
    connect(monitor_, &DeviceMonitor::isConnectedChanged, this, &UpdateController::followConnection,
            Qt::QueuedConnection);
    // A job's own restarts take the port away for a moment; only an idle port that
    // comes and goes tells a machine restarting by itself.
    connect(monitor_, &DeviceMonitor::isConnectedChanged, connectionHint_, [this](bool present) {
        if (!runner_.isRunning()) {
            connectionHint_->followPresence(present);
        }
    });
    connect(connectionHint_, &ConnectionHint::keepsRestartingChanged, this,
            [this](bool restarting) {
                if (restarting && !runner_.isRunning()) {
                    post(LogEntry::error(Texts::keepsRestarting() + QLatin1Char(' ') +
                                         Texts::holdBootButton(Texts::Audience::window)));
                }
            });
    connect(&runner_, &OperationRunner::phaseEntered, this, &UpdateController::enterPhase);
    connect(&runner_, &OperationRunner::progressed, this, &UpdateController::showProgress);
    connect(&runner_, &OperationRunner::logged, this, &UpdateController::appendLog);
    connect(&runner_, &OperationRunner::libraryLogged, this, &UpdateController::showLibraryLine);
    connect(&runner_, &OperationRunner::finished, this, &UpdateController::finish);
}

UpdateController::~UpdateController() = default;

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
    return location.isEmpty() ? Texts::firmwareLabel(BuildConfig::firmwareVersion())
                              : location.fileName();
}

void UpdateController::chooseCustomFirmware(const std::optional<QString>& path) {
    if (!path) {
        setCustomFirmwareURL(QUrl());
        log(Texts::customChosenWithoutName());
        return;
    }
    CheckFirmwareFile check(*path, resources_, developmentImages_);
    const Outcome checked = check.run({});
    if (checked.isFailure()) {
        post(LogEntry::error(checked.message));
        return;
    }
    setCustomFirmwareURL(QUrl::fromLocalFile(*path));
    log(Texts::customChosen(QFileInfo(*path).fileName()));
    log(checked.message);
}

QString UpdateController::errorMessage(esp_error_t code) {
    return Texts::errorMessage(code);
}

std::optional<QString> UpdateController::extractMetaVersion(const QByteArray& bytes) {
    return VersionText::metaVersion(bytes);
}

void UpdateController::updateFirmware() {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    if (!eraseAllFlash_) {
        return startFlash(*port, Log::fresh);
    }
    using Answer = SettingsQuestions::BeforeErase;
    switch (questions_.beforeErase ? questions_.beforeErase() : Answer::saveAndRestore) {
        case Answer::saveAndRestore:
            return startKeepingSettings(*port, Log::fresh);
        case Answer::eraseWithoutSaving:
            return startFlash(*port, Log::fresh);
        case Answer::cancel:
            return;
    }
}

void UpdateController::startFlash(const QString& port, Log log) {
    start(std::make_shared<FlashFirmware>(port, resources_, flashOptions()), {}, {}, log);
}

void UpdateController::startKeepingSettings(const QString& port, Log log) {
    EraseKeepingSettings::Options options;
    options.flash = flashOptions();
    auto keeping = std::make_shared<EraseKeepingSettings>(port, resources_, options);
    start(
        keeping, {},
        [this, keeping](const Outcome& outcome) { askAfterStop(keeping->stop(), outcome.message); },
        log);
}

void UpdateController::askAfterStop(EraseKeepingSettings::Stop stop, const QString& reason) {
    using Stop = EraseKeepingSettings::Stop;
    using Answer = SettingsQuestions::AfterFailedRead;
    Answer answer = Answer::cancel;
    if (stop == Stop::firmwareSilent) {
        const bool anyway = questions_.eraseAnyway && questions_.eraseAnyway();
        answer = anyway ? Answer::eraseWithoutSaving : Answer::cancel;
    } else if (stop == Stop::notSaved && questions_.afterFailedRead) {
        answer = questions_.afterFailedRead(reason);
    }
    if (answer == Answer::cancel) {
        return;
    }
    if (const auto port = portForNewJob()) {
        answer == Answer::retry ? startKeepingSettings(*port, Log::continued)
                                : startFlash(*port, Log::continued);
    }
}

FlashFirmware::Options UpdateController::flashOptions() const {
    FlashFirmware::Options options;
    const QUrl custom = customFirmwareURL();
    if (!custom.isEmpty()) {
        options.customFirmware = custom.toLocalFile();
    }
    options.writeBootPartitions = writeBootPartitions_;
    options.eraseAll = eraseAllFlash_;
    options.developmentImages = developmentImages_;
    return options;
}

void UpdateController::uploadConfig(const QString& configFile, const QString& productName) {
    uploadChoice(ConfigChoice::ofProduct({productName, configFile}));
}

void UpdateController::uploadConfigFromFile(const QString& path) {
    uploadChoice(ConfigChoice::ofFile(path));
}

void UpdateController::uploadChoice(const ConfigChoice& choice) {
    if (const auto port = portForNewJob()) {
        UploadConfig::Options options;
        options.backUpFirst = backupBeforeUpload_;
        auto upload = std::make_shared<UploadConfig>(*port, resources_, choice, options);
        start(upload);
        if (jobRunning()) {
            upload_ = upload;
        }
    }
}

void UpdateController::saveMachineConfig(const QString& destination) {
    if (const auto port = portForNewJob()) {
        start(std::make_shared<SaveMachineConfig>(*port, destination),
              [this](const Outcome&) { settle(Texts::configSaved()); });
    }
}

void UpdateController::compareWithMachine(const ConfigChoice& choice) {
    if (const auto port = portForNewJob()) {
        auto compare = std::make_shared<CompareWithMachine>(*port, resources_, choice);
        start(compare, [this, compare](const Outcome&) {
            settle(Texts::configCompared());
            emit machineConfigCompared(compare->comparison(), compare->choice());
        });
    }
}

void UpdateController::saveLog(const QString& path) {
    SaveLog save(path, logMessages(), monitor_->port(), QDateTime::currentDateTime());
    const Outcome saved = save.run({});
    if (saved.isFailure()) {
        post(LogEntry::error(saved.message));
    }
}

void UpdateController::restorePreviousConfiguration() {
    if (previous_) {
        restoreBackup(*previous_);
    }
}

void UpdateController::restoreBackup(const Backup& backup) {
    if (const auto port = portForNewJob()) {
        UploadConfig::Options options;
        options.backUpFirst = backupBeforeUpload_;
        start(std::make_shared<RestoreConfig>(*port, resources_, backup.path, options));
    }
}

void UpdateController::repairMachine(const Repair::PutBack& putBack) {
    if (const auto port = portForNewJob()) {
        Repair::Options options;
        options.flash = flashOptions();
        options.putBack = putBack;
        start(std::make_shared<Repair>(*port, resources_, options));
    }
}

std::optional<QString> UpdateController::portForNewJob() {
    const auto port = monitor_->port();
    if (!port) {
        post(LogEntry::error(Texts::noDeviceConnected()));
        return std::nullopt;
    }
    // The flasher bridge's handler slots serve one library call at a time.
    if (runner_.isRunning()) {
        post(LogEntry::error(Texts::anotherOperation()));
        return std::nullopt;
    }
    return port;
}

void UpdateController::start(std::shared_ptr<Operation> operation, Then then, Then otherwise,
                             Log log) {
    upload_.reset();
    if (const auto refused = operation->refusal()) {
        post(LogEntry::error(refused->message));
        return;
    }
    if (log == Log::fresh) {
        clearLog();
    }
    assignResult(std::nullopt);
    then_ = std::move(then);
    otherwise_ = std::move(otherwise);
    runner_.start(std::move(operation));
    connectionHint_->jobStarted();
    emit jobRunningChanged(true);
}

void UpdateController::showLibraryLine(const QString& line) {
    if (detailedLogging_) {
        appendLog(LogEntry::info(line));
    }
}

void UpdateController::finish(const Outcome& outcome) {
    Then next;
    if (outcome.isVerdict()) {
        showVerdict(outcome);
    } else if (outcome.isFailure()) {
        showFailure(outcome);
        next = std::move(otherwise_);
    } else if (then_) {
        then_(outcome);
    }
    then_ = {};
    otherwise_ = {};
    // Known before the result is published, so that its banner can offer it.
    previous_ = upload_ ? upload_->previousConfiguration() : std::nullopt;
    upload_.reset();
    assignResult(outcome);
    connectionHint_->jobEnded(outcome);
    emit jobRunningChanged(false);
    // Asked from the event loop, once the runner is free for the job it may start.
    if (next) {
        QMetaObject::invokeMethod(
            this, [next, outcome] { next(outcome); }, Qt::QueuedConnection);
    }
}
