#include "ui/AppDelegate.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QUrl>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/LogExport.h"
#include "app/ResultSummary.h"
#include "app/SleepInhibitor.h"
#include "app/Texts.h"
#include "app/UpdateController.h"
#include "app/VersionText.h"
#include "app/operations/QueryVersion.h"
#include "app/operations/SaveMachineConfig.h"
#include "ui/AboutWindow.h"
#include "ui/CompareWindow.h"
#include "ui/ConnectionCheckWindow.h"
#include "ui/EraseQuestions.h"
#include "ui/FirmwareVersionWindow.h"
#include "ui/RepairDialog.h"
#include "ui/RestoreWindow.h"
#include "ui/UpdaterView.h"

namespace {

void centreOnScreen(QWidget* window) {
    const QScreen* screen = window->screen();
    if (screen == nullptr) {
        return;
    }
    QRect frame = window->frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    window->move(frame.topLeft());
}

void bringToFront(QWidget* window) {
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace

AppDelegate::AppDelegate() : AppDelegate(std::make_unique<UpdateController>(), Options()) {}

AppDelegate::AppDelegate(std::unique_ptr<UpdateController> controller, Options options)
    : options_(std::move(options)),
      updateController_(std::move(controller)),
      sleepInhibitor_(new SleepInhibitor(QDBusConnection::systemBus(), this)) {
    connect(&firmwareProbe_, &OperationRunner::finished, this, [this](const Outcome& outcome) {
        if (repairDialog_) {
            repairDialog_->showFirmwareAnswers(outcome.kind == Outcome::Kind::succeeded);
        }
    });
    connect(updateController_.get(), &UpdateController::jobRunningChanged, sleepInhibitor_,
            &SleepInhibitor::setHeld);
    connect(updateController_.get(), &UpdateController::machineConfigCompared, this,
            &AppDelegate::showComparison);
    connect(updateController_.get(), &UpdateController::resultChanged, this,
            &AppDelegate::notifyUnseen);
}

AppDelegate::~AppDelegate() {
    // The windows go before the controller they observe; the dialog before the
    // main window, its parent.
    repairDialog_.reset();
    firmwareVersionWindow_.reset();
    window_.reset();
    aboutWindow_.reset();
    compareWindow_.reset();
    connectionCheckWindow_.reset();
    restoreWindow_.reset();
}

void AppDelegate::applicationDidFinishLaunching() {
    QApplication::setQuitOnLastWindowClosed(true);
    window_ = std::make_unique<QMainWindow>(
        nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint |
                     Qt::WindowMaximizeButtonHint);
    window_->setWindowTitle(Texts::programName());
    auto* view = new UpdaterView(*updateController_);
    connect(view, &UpdaterView::connectionCheckRequested, this, &AppDelegate::showConnectionCheck);
    connect(view, &UpdaterView::repairRequested, this, &AppDelegate::showRepair);
    connect(view, &UpdaterView::firmwareVersionsRequested, this,
            &AppDelegate::showFirmwareVersions);
    window_->setCentralWidget(view);
    updateController_->setSettingsQuestions(settingsQuestionsAsked(window_.get()));
    quitGuard_ = new QuitGuard(
        window_.get(), [controller = updateController_.get()] { return controller->jobRunning(); },
        askToQuitDuringJob, options_.exitNow, this);
    setupMenus();
    // Without a catalogue named or configured this lists the bundled version alone
    // and opens no connection.
    updateController_->firmwareChoice()->refresh();
    window_->adjustSize();
    centreOnScreen(window_.get());
    bringToFront(window_.get());
}

// The banner says it in the window; an owner who is looking elsewhere hears it
// from the desktop.
void AppDelegate::notifyUnseen(const std::optional<Outcome>& result) {
    if (!result || !window_ || window_->isActiveWindow()) {
        return;
    }
    if (const auto summary = summarize(*result, Texts::Audience::window)) {
        options_.notify(
            summary->headline,
            (summary->details + QStringList(summary->nextStep)).join(QLatin1Char('\n')).trimmed());
    }
}

void AppDelegate::showAbout() {
    if (aboutWindow_) {
        bringToFront(aboutWindow_.get());
        return;
    }
    const QPixmap icon = QApplication::windowIcon().pixmap(QSize(64, 64));
    aboutWindow_ = std::make_unique<AboutWindow>(options_.products, BuildConfig::buildDate(), icon);
    centreOnScreen(aboutWindow_.get());
    escapeCloser_ = new EscapeCloser(aboutWindow_.get(), this);
    qApp->installEventFilter(escapeCloser_);
    bringToFront(aboutWindow_.get());
}

void AppDelegate::openFirmwareFile() {
    const auto path =
        options_.chooseFile(window_.get(), {Texts::selectFirmware(), {QStringLiteral("bin")}});
    if (path) {
        updateController_->chooseCustomFirmware(path);
    }
}

void AppDelegate::useBundledFirmware() {
    updateController_->setCustomFirmwareURL(QUrl());
    updateController_->log(Texts::usingShipped());
}

void AppDelegate::chooseFirmwareCatalogue() {
    FirmwareChoice* choice = updateController_->firmwareChoice();
    const auto text =
        options_.chooseCatalogue(window_.get(), choice->catalogue().value_or(QString()));
    if (text) {
        updateController_->log(Texts::catalogueChosen(*text));
        choice->setCatalogue(*text);
    }
}

void AppDelegate::showFirmwareVersions() {
    FirmwareChoice* choice = updateController_->firmwareChoice();
    QSet<QString> ranHere;
    if (const auto port = updateController_->deviceMonitor()->port()) {
        const QString machine = DeviceQueries::machineIdentity(*port);
        for (const Backup& backup : BackupIndex().list([](const QString&) {})) {
            if (backup.machine == machine && backup.firmwareVersion) {
                ranHere << VersionText::shown(*backup.firmwareVersion);
            }
        }
    }
    firmwareVersionWindow_ = std::make_unique<FirmwareVersionWindow>(ranHere, choice->chosen());
    FirmwareVersionWindow* window = firmwareVersionWindow_.get();
    window->showListing(choice->listing(), choice->hasCatalogue());
    connect(choice, &FirmwareChoice::listed, window, [window, choice](const Outcome& listing) {
        window->showListing(listing, choice->hasCatalogue());
    });
    connect(window, &FirmwareVersionWindow::versionChosen, this,
            [this](const std::optional<QString>& version) {
                version ? updateController_->chooseRelease(*version) : useBundledFirmware();
            });
    if (choice->hasCatalogue() && !choice->isReading()) {
        window->showReading();
        choice->refresh();
    }
    centreOnScreen(window);
    bringToFront(window);
}

void AppDelegate::saveLog() {
    const QDateTime now = QDateTime::currentDateTime();
    const auto path = options_.chooseSaveFile(
        window_.get(),
        {Texts::saveLogTitle(), LogExport::defaultFileName(now), Texts::textFiles()});
    if (path) {
        updateController_->saveLog(*path);
    }
}

void AppDelegate::toggleDetailedLogging(QAction* item) {
    const bool enabled = !updateController_->detailedLogging();
    updateController_->setDetailedLogging(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleWriteBootPartitions(QAction* item) {
    const bool enabled = !updateController_->writeBootPartitionsEnabled();
    updateController_->setWriteBootPartitionsEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleEraseAllFlash(QAction* item) {
    const bool enabled = !updateController_->eraseAllFlashEnabled();
    updateController_->setEraseAllFlashEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleSnapshotBeforeWriting(QAction* item) {
    const bool enabled = !updateController_->snapshotBeforeWritingEnabled();
    updateController_->setSnapshotBeforeWritingEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleBackupBeforeUpload(QAction* item) {
    const bool enabled = !updateController_->backupBeforeUploadEnabled();
    updateController_->setBackupBeforeUploadEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::uploadConfigAction(QAction* item) {
    if (const auto product = productOf(item)) {
        updateController_->uploadChoice(ConfigChoice::ofProduct(*product));
    }
}

void AppDelegate::uploadConfigFromDisk() {
    if (const auto path = chooseConfigFile()) {
        updateController_->uploadChoice(ConfigChoice::ofFile(*path));
    }
}

void AppDelegate::saveMachineConfig() {
    const auto path = options_.chooseSaveFile(
        window_.get(),
        {Texts::saveMachineConfigTitle(),
         SaveMachineConfig::defaultFileName(QDateTime::currentDateTime()), Texts::yamlFiles()});
    if (path) {
        updateController_->saveMachineConfig(*path);
    }
}

void AppDelegate::compareWithProduct(QAction* item) {
    if (const auto product = productOf(item)) {
        updateController_->compareWithMachine(ConfigChoice::ofProduct(*product));
    }
}

void AppDelegate::compareWithFile() {
    if (const auto path = chooseConfigFile()) {
        updateController_->compareWithMachine(ConfigChoice::ofFile(*path));
    }
}

void AppDelegate::restoreMachineConfig() {
    const BackupIndex index;
    QList<Backup> backups =
        index.list(BackupIndex::Family::configurations,
                   [this](const QString& line) { updateController_->log(line); });
    const auto port = updateController_->deviceMonitor()->port();
    restoreWindow_ = std::make_unique<RestoreWindow>(
        std::move(backups), port ? DeviceQueries::machineIdentity(*port) : QString(),
        index.folder());
    connect(restoreWindow_.get(), &RestoreWindow::compareRequested, this,
            [this](const Backup& backup) {
                updateController_->compareWithMachine(ConfigChoice::ofFile(backup.path));
            });
    connect(restoreWindow_.get(), &RestoreWindow::restoreRequested, updateController_.get(),
            &UpdateController::restoreBackup);
    centreOnScreen(restoreWindow_.get());
    bringToFront(restoreWindow_.get());
}

void AppDelegate::restoreWholeMachine() {
    const BackupIndex index;
    QList<Backup> snapshots =
        index.list(BackupIndex::Family::snapshots,
                   [this](const QString& line) { updateController_->log(line); });
    const auto port = updateController_->deviceMonitor()->port();
    const QString machine = port ? DeviceQueries::machineIdentity(*port) : QString();
    restoreWindow_ = std::make_unique<RestoreWindow>(std::move(snapshots), machine, index.folder(),
                                                     nullptr, RestoreWindow::Contents::snapshots);
    connect(restoreWindow_.get(), &RestoreWindow::restoreRequested, this,
            [this, machine](const Backup& snapshot) { restoreSnapshot(snapshot, machine); });
    centreOnScreen(restoreWindow_.get());
    bringToFront(restoreWindow_.get());
}

// It carries the other machine's settings and network credentials.
void AppDelegate::restoreSnapshot(const Backup& snapshot, const QString& machine) {
    const bool other = !machine.isEmpty() && snapshot.machine != machine;
    if (other && !options_.confirmOtherMachine(window_.get(), snapshot.machine, machine)) {
        return;
    }
    updateController_->restoreWholeMachine(snapshot.path, other);
}

void AppDelegate::showComparison(const ConfigComparison& comparison, const ConfigChoice& chosen) {
    compareWindow_ = std::make_unique<CompareWindow>(comparison, chosen.label());
    connect(compareWindow_.get(), &CompareWindow::uploadRequested, this,
            [this, chosen] { updateController_->uploadChoice(chosen); });
    centreOnScreen(compareWindow_.get());
    bringToFront(compareWindow_.get());
}

void AppDelegate::showConnectionCheck() {
    if (!connectionCheckWindow_ || !connectionCheckWindow_->isVisible()) {
        connectionCheckWindow_ =
            std::make_unique<ConnectionCheckWindow>(options_.survey, PermissionRule::installed());
        ConnectionHint* hint = updateController_->connectionHint();
        connect(hint, &ConnectionHint::keepsRestartingChanged, connectionCheckWindow_.get(),
                &ConnectionCheckWindow::showRestarting);
        connectionCheckWindow_->showRestarting(hint->keepsRestarting());
        connectionCheckWindow_->adjustSize();
        centreOnScreen(connectionCheckWindow_.get());
    }
    bringToFront(connectionCheckWindow_.get());
}

void AppDelegate::showRepair() {
    const BackupIndex index;
    QList<Backup> backups =
        index.list([this](const QString& line) { updateController_->log(line); });
    const auto port = updateController_->deviceMonitor()->port();
    const QUrl custom = updateController_->customFirmwareURL();
    repairDialog_ = std::make_unique<RepairDialog>(
        backups, port ? DeviceQueries::machineIdentity(*port) : QString(), options_.products,
        custom.isEmpty() ? Texts::shippedFirmware(BuildConfig::firmwareVersion())
                         : custom.fileName(),
        window_.get());
    connect(repairDialog_.get(), &RepairDialog::repairRequested, this,
            [this](const Repair::PutBack& putBack) {
                updateController_->repairMachine(putBack, repairDialog_->snapshotFirst());
            });
    repairDialog_->open();
    // While a job runs it holds the port, and the repair cannot start anyway. A probe
    // still running from an earlier dialog answers this one.
    if (!port || updateController_->jobRunning()) {
        repairDialog_->showFirmwareAnswers(false);
    } else {
        firmwareProbe_.start(std::make_shared<QueryVersion>(*port));
    }
}

std::optional<ProductConfig> AppDelegate::productOf(const QAction* item) const {
    bool isNumber = false;
    const int index = item->data().toInt(&isNumber);
    if (!isNumber || index < 0 || index >= options_.products.size()) {
        return std::nullopt;
    }
    return options_.products[index];
}

std::optional<QString> AppDelegate::chooseConfigFile() {
    return options_.chooseFile(window_.get(), {Texts::selectConfiguration(),
                                               {QStringLiteral("yaml"), QStringLiteral("yml")}});
}
