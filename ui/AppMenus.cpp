#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "app/Texts.h"
#include "app/UpdateController.h"
#include "ui/AppDelegate.h"
#include "ui/LogPanel.h"
#include "ui/UpdaterView.h"

namespace {

// The main window's menu bar is the only one on Linux, so its key equivalents must
// also work while the About window is the active window.
void setKey(QAction* action, const QKeySequence& key) {
    action->setShortcut(key);
    action->setShortcutContext(Qt::ApplicationShortcut);
}

}  // namespace

void AppDelegate::setupMenus() {
    auto* bar = new QMenuBar(window_.get());
    window_->setMenuBar(bar);
    addApplicationMenu();
    addFileMenu();
    addOptionsMenu();
    addConfigMenu();
}

QMenu* AppDelegate::addApplicationMenu() {
    // macOS moves the two items into its application menu by their roles; elsewhere
    // this menu stands in for it.
    QMenu* menu = window_->menuBar()->addMenu(QStringLiteral("Teskal Firmware Updater"));
    QAction* about = menu->addAction(QStringLiteral("About Teskal Firmware Updater"), this,
                                     &AppDelegate::showAbout);
    about->setMenuRole(QAction::AboutRole);
    menu->addSeparator();
    QAction* quit = menu->addAction(QStringLiteral("Quit"), quitGuard_, &QuitGuard::requestQuit);
    quit->setMenuRole(QAction::QuitRole);
    setKey(quit, QKeySequence(Qt::CTRL | Qt::Key_Q));
    return menu;
}

QMenu* AppDelegate::addFileMenu() {
    QMenu* menu = window_->menuBar()->addMenu(QStringLiteral("File"));
    QAction* open = menu->addAction(QStringLiteral("Open Firmware File\u2026"), this,
                                    &AppDelegate::openFirmwareFile);
    setKey(open, QKeySequence(Qt::CTRL | Qt::Key_O));
    menu->addAction(QStringLiteral("Use Bundled Firmware"), this, &AppDelegate::useBundledFirmware);
    menu->addSeparator();
    QAction* save = menu->addAction(QStringLiteral("Save Log\u2026"), this, &AppDelegate::saveLog);
    setKey(save, QKeySequence(Qt::CTRL | Qt::Key_S));
    qobject_cast<UpdaterView*>(window_->centralWidget())->logPanel()->addAction(save);
    return menu;
}

QMenu* AppDelegate::addOptionsMenu() {
    QMenu* menu = window_->menuBar()->addMenu(QStringLiteral("Options"));
    addToggle(menu, QStringLiteral("Detailed Logging"), updateController_->detailedLogging(),
              &AppDelegate::toggleDetailedLogging);
    menu->addSeparator();
    addToggle(menu, QStringLiteral("Write Boot Partitions"),
              updateController_->writeBootPartitionsEnabled(),
              &AppDelegate::toggleWriteBootPartitions);
    addToggle(menu, QStringLiteral("Erase All Flash"), updateController_->eraseAllFlashEnabled(),
              &AppDelegate::toggleEraseAllFlash);
    menu->addSeparator();
    addToggle(menu, QStringLiteral("Back Up Machine Config Before Upload"),
              updateController_->backupBeforeUploadEnabled(),
              &AppDelegate::toggleBackupBeforeUpload);
    return menu;
}

QAction* AppDelegate::addToggle(QMenu* menu, const QString& title, bool checked,
                                void (AppDelegate::*toggle)(QAction*)) {
    QAction* item = menu->addAction(title);
    item->setCheckable(true);
    item->setChecked(checked);
    connect(item, &QAction::triggered, this, [this, item, toggle] { (this->*toggle)(item); });
    return item;
}

QMenu* AppDelegate::addConfigMenu() {
    QMenu* menu = window_->menuBar()->addMenu(QStringLiteral("Config"));
    if (options_.products.isEmpty()) {
        menu->addAction(QStringLiteral("No products configured"))->setEnabled(false);
    } else {
        addProductItems(menu->addMenu(QStringLiteral("Update Config")),
                        &AppDelegate::uploadConfigAction);
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("Select from Disk..."), this,
                    &AppDelegate::uploadConfigFromDisk);
    menu->addSeparator();
    menu->addAction(QStringLiteral("Save Machine Config\u2026"), this,
                    &AppDelegate::saveMachineConfig);
    QMenu* compare = menu->addMenu(QStringLiteral("Compare With Machine\u2026"));
    addProductItems(compare, &AppDelegate::compareWithProduct);
    if (!options_.products.isEmpty()) {
        compare->addSeparator();
    }
    compare->addAction(QStringLiteral("Choose File\u2026"), this, &AppDelegate::compareWithFile);
    menu->addAction(QStringLiteral("Restore Machine Config\u2026"), this,
                    &AppDelegate::restoreMachineConfig);
    menu->addSeparator();
    menu->addAction(Texts::repairMenuItem(), this, &AppDelegate::showRepair);
    return menu;
}

// One item per product, in table order, each carrying its row's index.
void AppDelegate::addProductItems(QMenu* menu, void (AppDelegate::*action)(QAction*)) {
    for (qsizetype index = 0; index < options_.products.size(); ++index) {
        QAction* item = menu->addAction(options_.products[index].name);
        item->setData(static_cast<int>(index));
        connect(item, &QAction::triggered, this, [this, item, action] { (this->*action)(item); });
    }
}
