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
    addHelpMenu();
}

QMenu* AppDelegate::addApplicationMenu() {
    // macOS moves the two items into its application menu by their roles; elsewhere
    // this menu stands in for it.
    QMenu* menu = window_->menuBar()->addMenu(Texts::applicationMenu());
    QAction* about = menu->addAction(Texts::aboutItem(), this, &AppDelegate::showAbout);
    about->setMenuRole(QAction::AboutRole);
    menu->addSeparator();
    QAction* quit = menu->addAction(Texts::quitItem(), quitGuard_, &QuitGuard::requestQuit);
    quit->setMenuRole(QAction::QuitRole);
    setKey(quit, QKeySequence(Qt::CTRL | Qt::Key_Q));
    return menu;
}

QMenu* AppDelegate::addFileMenu() {
    QMenu* menu = window_->menuBar()->addMenu(Texts::fileMenu());
    QAction* open =
        menu->addAction(Texts::openFirmwareItem(), this, &AppDelegate::openFirmwareFile);
    setKey(open, QKeySequence(Qt::CTRL | Qt::Key_O));
    menu->addAction(Texts::useBundledItem(), this, &AppDelegate::useBundledFirmware);
    menu->addAction(Texts::chooseFirmwareVersionItem(), this, &AppDelegate::showFirmwareVersions);
    menu->addAction(Texts::firmwareCatalogueItem(), this, &AppDelegate::chooseFirmwareCatalogue);
    menu->addSeparator();
    QAction* save = menu->addAction(Texts::saveLogItem(), this, &AppDelegate::saveLog);
    setKey(save, QKeySequence(Qt::CTRL | Qt::Key_S));
    qobject_cast<UpdaterView*>(window_->centralWidget())->logPanel()->addAction(save);
    return menu;
}

QMenu* AppDelegate::addOptionsMenu() {
    QMenu* menu = window_->menuBar()->addMenu(Texts::optionsMenu());
    addToggle(menu, Texts::detailedLoggingItem(), updateController_->detailedLogging(),
              &AppDelegate::toggleDetailedLogging);
    menu->addSeparator();
    addToggle(menu, Texts::writeBootPartitionsItem(),
              updateController_->writeBootPartitionsEnabled(),
              &AppDelegate::toggleWriteBootPartitions);
    addToggle(menu, Texts::eraseAllFlashItem(), updateController_->eraseAllFlashEnabled(),
              &AppDelegate::toggleEraseAllFlash);
    addToggle(menu, Texts::snapshotBeforeWritingItem(),
              updateController_->snapshotBeforeWritingEnabled(),
              &AppDelegate::toggleSnapshotBeforeWriting);
    menu->addSeparator();
    addToggle(menu, Texts::backUpBeforeUploadItem(), updateController_->backupBeforeUploadEnabled(),
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
    QMenu* menu = window_->menuBar()->addMenu(Texts::configMenu());
    if (options_.products.isEmpty()) {
        menu->addAction(Texts::noProductsItem())->setEnabled(false);
    } else {
        addProductItems(menu->addMenu(Texts::updateConfigItem()), &AppDelegate::uploadConfigAction);
    }
    menu->addSeparator();
    menu->addAction(Texts::selectFromDiskItem(), this, &AppDelegate::uploadConfigFromDisk);
    menu->addSeparator();
    menu->addAction(Texts::saveMachineConfigItem(), this, &AppDelegate::saveMachineConfig);
    QMenu* compare = menu->addMenu(Texts::compareWithMachineItem());
    addProductItems(compare, &AppDelegate::compareWithProduct);
    if (!options_.products.isEmpty()) {
        compare->addSeparator();
    }
    compare->addAction(Texts::chooseFileItem(), this, &AppDelegate::compareWithFile);
    menu->addAction(Texts::restoreMachineConfigItem(), this, &AppDelegate::restoreMachineConfig);
    menu->addSeparator();
    menu->addAction(Texts::backUpWholeMachineItem(), updateController_.get(),
                    &UpdateController::backUpWholeMachine);
    menu->addAction(Texts::restoreWholeMachineItem(), this, &AppDelegate::restoreWholeMachine);
    menu->addSeparator();
    menu->addAction(Texts::repairMenuItem(), this, &AppDelegate::showRepair);
    return menu;
}

// Where a desktop owner looks when the plotter is not found, beside About. The
// application menu keeps the About item that carries its role for a macOS build.
QMenu* AppDelegate::addHelpMenu() {
    QMenu* menu = window_->menuBar()->addMenu(Texts::helpMenu());
    menu->addAction(Texts::connectionCheckItem(), this, &AppDelegate::showConnectionCheck);
    menu->addSeparator();
    menu->addAction(Texts::aboutItem(), this, &AppDelegate::showAbout)
        ->setMenuRole(QAction::NoRole);
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
