#include "ui/AppDelegate.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QUrl>

#include "app/LogExport.h"
#include "app/SaveMachineConfigJob.h"
#include "app/SleepInhibitor.h"
#include "app/UpdateController.h"
#include "ui/AboutWindow.h"
#include "ui/CompareWindow.h"
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
    : m_options(std::move(options)),
      m_updateController(std::move(controller)),
      m_sleepInhibitor(new SleepInhibitor(QDBusConnection::systemBus(), this)) {
    connect(m_updateController.get(), &UpdateController::jobRunningChanged, m_sleepInhibitor,
            &SleepInhibitor::setHeld);
    connect(m_updateController.get(), &UpdateController::machineConfigCompared, this,
            &AppDelegate::showComparison);
}

AppDelegate::~AppDelegate() {
    // The windows go before the controller they observe.
    m_window.reset();
    m_aboutWindow.reset();
    m_compareWindow.reset();
}

void AppDelegate::applicationDidFinishLaunching() {
    QApplication::setQuitOnLastWindowClosed(true);
    m_window = std::make_unique<QMainWindow>(
        nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
    m_window->setWindowTitle(QStringLiteral("Teskal Firmware Updater"));
    m_window->setCentralWidget(new UpdaterView(*m_updateController));
    m_window->layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_quitGuard = new QuitGuard(
        m_window.get(),
        [controller = m_updateController.get()] { return controller->jobRunning(); },
        askToQuitDuringJob, m_options.exitNow, this);
    setupMenus();
    m_window->adjustSize();
    centreOnScreen(m_window.get());
    bringToFront(m_window.get());
}

void AppDelegate::showAbout() {
    if (m_aboutWindow) {
        bringToFront(m_aboutWindow.get());
        return;
    }
    const QPixmap icon = QApplication::windowIcon().pixmap(QSize(64, 64));
    m_aboutWindow =
        std::make_unique<AboutWindow>(m_options.products, BuildConfig::buildDate(), icon);
    centreOnScreen(m_aboutWindow.get());
    m_escapeCloser = new EscapeCloser(m_aboutWindow.get(), this);
    qApp->installEventFilter(m_escapeCloser);
    bringToFront(m_aboutWindow.get());
}

void AppDelegate::openFirmwareFile() {
    const auto path = m_options.chooseFile(
        m_window.get(),
        {QStringLiteral("Select a firmware binary (.bin)"), {QStringLiteral("bin")}});
    if (path) {
        m_updateController->chooseCustomFirmware(path);
    }
}

void AppDelegate::useBundledFirmware() {
    m_updateController->setCustomFirmwareURL(QUrl());
    m_updateController->log(QStringLiteral("Using bundled firmware"));
}

void AppDelegate::saveLog() {
    const QDateTime now = QDateTime::currentDateTime();
    const auto path = m_options.chooseSaveFile(
        m_window.get(), {QStringLiteral("Save Log"), LogExport::defaultFileName(now),
                         QStringLiteral("Text files (*.txt)")});
    if (!path) {
        return;
    }
    const QString text = LogExport::document(m_updateController->logMessages(),
                                             m_updateController->deviceMonitor()->port(), now);
    if (const auto failure = LogExport::save(*path, text)) {
        m_updateController->log(QStringLiteral("ERROR: Could not save log: ") + *failure);
    }
}

void AppDelegate::toggleDetailedLogging(QAction* item) {
    const bool enabled = !m_updateController->detailedLogging();
    m_updateController->setDetailedLogging(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleWriteBootPartitions(QAction* item) {
    const bool enabled = !m_updateController->writeBootPartitionsEnabled();
    m_updateController->setWriteBootPartitionsEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleEraseAllFlash(QAction* item) {
    const bool enabled = !m_updateController->eraseAllFlashEnabled();
    m_updateController->setEraseAllFlashEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::toggleBackupBeforeUpload(QAction* item) {
    const bool enabled = !m_updateController->backupBeforeUploadEnabled();
    m_updateController->setBackupBeforeUploadEnabled(enabled);
    item->setChecked(enabled);
}

void AppDelegate::uploadConfigAction(QAction* item) {
    if (const auto product = productOf(item)) {
        uploadChoice(ConfigChoice::ofProduct(*product));
    }
}

void AppDelegate::uploadConfigFromDisk() {
    if (const auto path = chooseConfigFile()) {
        uploadChoice(ConfigChoice::ofFile(*path));
    }
}

void AppDelegate::saveMachineConfig() {
    const auto path = m_options.chooseSaveFile(
        m_window.get(), {QStringLiteral("Save Machine Config"),
                         SaveMachineConfigJob::defaultFileName(QDateTime::currentDateTime()),
                         QStringLiteral("YAML files (*.yaml *.yml)")});
    if (path) {
        m_updateController->saveMachineConfig(*path);
    }
}

void AppDelegate::compareWithProduct(QAction* item) {
    if (const auto product = productOf(item)) {
        m_updateController->compareWithMachine(ConfigChoice::ofProduct(*product));
    }
}

void AppDelegate::compareWithFile() {
    if (const auto path = chooseConfigFile()) {
        m_updateController->compareWithMachine(ConfigChoice::ofFile(*path));
    }
}

void AppDelegate::showComparison(const ConfigComparison& comparison, const ConfigChoice& chosen) {
    m_compareWindow = std::make_unique<CompareWindow>(comparison, chosen.label());
    connect(m_compareWindow.get(), &CompareWindow::uploadRequested, this,
            [this, chosen] { uploadChoice(chosen); });
    centreOnScreen(m_compareWindow.get());
    bringToFront(m_compareWindow.get());
}

std::optional<ProductConfig> AppDelegate::productOf(const QAction* item) const {
    bool isNumber = false;
    const int index = item->data().toInt(&isNumber);
    if (!isNumber || index < 0 || index >= m_options.products.size()) {
        return std::nullopt;
    }
    return m_options.products[index];
}

std::optional<QString> AppDelegate::chooseConfigFile() {
    return m_options.chooseFile(m_window.get(),
                                {QStringLiteral("Select a configuration file (.yaml)"),
                                 {QStringLiteral("yaml"), QStringLiteral("yml")}});
}

void AppDelegate::uploadChoice(const ConfigChoice& choice) {
    if (choice.product) {
        m_updateController->uploadConfig(choice.product->configFile, choice.product->name);
    } else {
        m_updateController->uploadConfigFromFile(choice.path);
    }
}
