#include "app/UpdateController.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>

#include "app/BuildConfig.h"
#include "app/MachineConfigCheck.h"
#include "app/OutcomeTable.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CompareWithMachine.h"
#include "app/operations/EraseKeepingSettings.h"
#include "app/operations/RestoreConfig.h"
#include "app/operations/RestoreMachine.h"
#include "app/operations/SaveLog.h"
#include "app/operations/SaveMachineConfig.h"
#include "app/operations/TakeSnapshot.h"
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
      connectionHint_(new ConnectionHint(statusMessage(), ConnectionHint::kPatienceMs, this)),
      firmwareChoice_(new FirmwareChoice(resources_, developmentImages_, this)) {
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
    connect(firmwareChoice_, &FirmwareChoice::chosenChanged, this,
            [this] { emit customFirmwareURLChanged(customFirmwareURL()); });
}

UpdateController::~UpdateController() = default;

QUrl UpdateController::customFirmwareURL() const {
    const QMutexLocker lock(&customFirmwareMutex_);
    return customFirmwareURL_;
}

void UpdateController::setCustomFirmwareURL(const QUrl& location) {
    firmwareChoice_->choose(std::nullopt);
    {
        const QMutexLocker lock(&customFirmwareMutex_);
        customFirmwareURL_ = location;
    }
    emit customFirmwareURLChanged(location);
}

QString UpdateController::firmwareLabel() const {
    const QUrl location = customFirmwareURL();
    if (!location.isEmpty()) {
        return location.fileName();
    }
    const auto& release = firmwareChoice_->chosen();
    return release ? Texts::releaseFirmwareLabel(*release)
                   : Texts::firmwareLabel(BuildConfig::firmwareVersion());
}

void UpdateController::chooseRelease(const QString& version) {
    setCustomFirmwareURL(QUrl());
    firmwareChoice_->choose(version);
    log(Texts::releaseChosen(version));
}

void UpdateController::chooseCustomFirmware(const std::optional<QString>& path) {
    if (!path) {
        setCustomFirmwareURL(QUrl());
        log(Texts::customChosenWithoutName());
        return;
    }
    const Outcome checked = checkFirmwareFile(*path, resources_, developmentImages_).outcome;
    if (checked.isFailure()) {
        post(LogEntry::error(checked.message));
        return;
    }
    setCustomFirmwareURL(QUrl::fromLocalFile(*path));
    log(Texts::customChosen(QFileInfo(*path).fileName()));
    log(checked.message);
}

QString UpdateController::errorMessage(esp_error_t code) {
    return OutcomeTable::libraryMessage(code);
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
        return performFlash(*port);
    }
    using Answer = SettingsQuestions::BeforeErase;
    switch (questions_.beforeErase ? questions_.beforeErase() : Answer::saveAndRestore) {
        case Answer::saveAndRestore:
            return performKeepingSettings(*port, Log::fresh);
        case Answer::eraseWithoutSaving:
            return performFlash(*port);
        case Answer::cancel:
            return;
    }
}

void UpdateController::performFlash(const QString& port, Log log, bool allowOlder) {
    start(
        SnapshotFirst::around(
            snapshotBeforeWriting_, port, resources_,
            std::make_shared<FlashFirmware>(port, resources_, flashOptions(allowOlder)),
            snapshotOptions(BackupReason::beforeUpdate)),
        {}, [this](const Outcome& outcome) { askAfter(outcome, false); }, log);
}

SnapshotFirst::Options UpdateController::snapshotOptions(BackupReason reason) const {
    return {reason, QString(), false, developmentImages_};
}

void UpdateController::performConfigUpload(const QString& port, const QString& configFile,
                                           const QString& productName) {
    UploadConfig::Options options;
    options.backUpFirst = backupBeforeUpload_;
    start(std::make_shared<UploadConfig>(
        port, resources_, ConfigChoice::ofProduct({productName, configFile}), options));
}

void UpdateController::performConfigUploadData(const QString& port, const QString& path,
                                               const QByteArray& configData) {
    UploadConfig::Options options;
    options.backUpFirst = backupBeforeUpload_;
    start(std::make_shared<UploadConfig>(port, resources_, ConfigChoice::ofData(path, configData),
                                         options));
}

void UpdateController::performKeepingSettings(const QString& port, Log log, bool allowOlder) {
    EraseKeepingSettings::Options options;
    options.flash = flashOptions(allowOlder);
    start(
        SnapshotFirst::around(snapshotBeforeWriting_, port, resources_,
                              std::make_shared<EraseKeepingSettings>(port, resources_, options),
                              snapshotOptions(BackupReason::beforeUpdate)),
        {}, [this](const Outcome& outcome) { askAfter(outcome, true); }, log);
}

void UpdateController::askAfter(const Outcome& outcome, bool keepingSettings) {
    const auto rewrite = questions_.askAfter(outcome, keepingSettings);
    if (const auto port = rewrite ? portForNewJob() : std::nullopt) {
        rewrite->keepingSettings
            ? performKeepingSettings(*port, Log::continued, rewrite->allowOlder)
            : performFlash(*port, Log::continued, rewrite->allowOlder);
    }
}

FlashFirmware::Options UpdateController::flashOptions(bool allowOlder) const {
    FlashFirmware::Options options;
    const QUrl custom = customFirmwareURL();
    if (!custom.isEmpty()) {
        options.customFirmware = custom.toLocalFile();
    } else {
        options.release = firmwareChoice_->release(allowOlder);
    }
    options.writeBootPartitions = writeBootPartitions_;
    options.eraseAll = eraseAllFlash_;
    options.developmentImages = developmentImages_;
    return options;
}

void UpdateController::uploadConfig(const QString& configFile, const QString& productName) {
    if (const auto port = portForNewJob()) {
        performConfigUpload(*port, configFile, productName);
    }
}

void UpdateController::uploadConfigFromFile(const QString& path) {
    const auto port = portForNewJob();
    if (!port) {
        return;
    }
    auto checked = checkConfigFile(path);
    if (const auto* refused = std::get_if<Outcome>(&checked)) {
        return post(LogEntry::error(refused->message));
    }
    performConfigUploadData(*port, path, std::get<QByteArray>(checked));
}

void UpdateController::uploadChoice(const ConfigChoice& choice) {
    choice.product ? uploadConfig(choice.product->configFile, choice.product->name)
                   : uploadConfigFromFile(choice.path);
}

void UpdateController::saveMachineConfig(const QString& destination) {
    if (const auto port = portForNewJob()) {
        start(std::make_shared<SaveMachineConfig>(*port, destination),
              [this](const Outcome&) { settle(Texts::configSaved()); });
    }
}

void UpdateController::compareWithMachine(const ConfigChoice& choice) {
    if (const auto port = portForNewJob()) {
        start(std::make_shared<CompareWithMachine>(*port, resources_, choice),
              [this, choice](const Outcome& outcome) {
                  settle(Texts::configCompared());
                  emit machineConfigCompared(std::get<ConfigComparison>(outcome.cause), choice);
              });
    }
}

void UpdateController::saveLog(const QString& path) {
    const Outcome saved =
        SaveLog(path, logMessages(), monitor_->port(), QDateTime::currentDateTime()).run({});
    if (saved.isFailure()) {
        post(LogEntry::error(saved.message));
    }
}

void UpdateController::restorePreviousConfiguration() {
    const StartupCause* startup = result() ? result()->startup() : nullptr;
    if (startup != nullptr && startup->previous) {
        restoreBackup(*startup->previous);
    }
}

void UpdateController::restoreBackup(const Backup& backup) {
    if (const auto port = portForNewJob()) {
        UploadConfig::Options options;
        options.backUpFirst = backupBeforeUpload_;
        start(std::make_shared<RestoreConfig>(*port, resources_, backup.path, options));
    }
}

void UpdateController::repairMachine(const Repair::PutBack& putBack, bool snapshotFirst) {
    if (const auto port = portForNewJob()) {
        Repair::Options options;
        options.flash = flashOptions();
        options.putBack = putBack;
        start(SnapshotFirst::around(snapshotFirst, *port, resources_,
                                    std::make_shared<Repair>(*port, resources_, options),
                                    snapshotOptions(BackupReason::beforeRepair)));
    }
}

void UpdateController::backUpWholeMachine() {
    if (const auto port = portForNewJob()) {
        start(std::make_shared<TakeSnapshot>(*port, resources_, TakeSnapshot::Options{}),
              [this](const Outcome&) { settle(Texts::snapshotTaken()); });
    }
}

void UpdateController::restoreWholeMachine(const QString& path, bool otherMachineAllowed) {
    if (const auto port = portForNewJob()) {
        RestoreMachine::Options options;
        options.snapshot = path;
        options.otherMachineAllowed = otherMachineAllowed;
        options.developmentImages = developmentImages_;
        start(std::make_shared<RestoreMachine>(*port, resources_, options));
    }
}

void UpdateController::undoUpdate() {
    const StartupCause* startup = result() ? result()->startup() : nullptr;
    if (startup != nullptr && startup->snapshot) {
        restoreWholeMachine(*startup->snapshot, true);
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
    const Then next = outcome.isFailure() ? std::move(otherwise_) : Then();
    if (!outcome.isFailure() && then_) {
        then_(outcome);
    }
    then_ = {};
    otherwise_ = {};
    tell(outcome);
    assignResult(outcome);
    connectionHint_->jobEnded(outcome);
    emit jobRunningChanged(false);
    // Asked from the event loop, once the runner is free for the job it may start.
    if (next) {
        QMetaObject::invokeMethod(
            this, [next, outcome] { next(outcome); }, Qt::QueuedConnection);
    }
}
