#pragma once

#include <QList>
#include <QObject>
#include <memory>

#include "app/BuildConfig.h"
#include "ui/FileChooser.h"
#include "ui/QuitGuard.h"
#include "ui/SaveChooser.h"

class AboutWindow;
class EscapeCloser;
class QAction;
class QMainWindow;
class QMenu;
class SleepInhibitor;
class UpdateController;

/// The application shell: owns the one update controller, opens the main window
/// with its menus, shows the About window and turns menu commands into calls on
/// the controller. While a job runs it keeps the computer from sleeping, and
/// closing the window or quitting asks first (see `QuitGuard`). Create it after
/// the QApplication; GUI thread only.
class AppDelegate : public QObject {
    Q_OBJECT

  public:
    /// What the shell is given besides its controller.
    struct Options {
        /// The products of the "Update Config" menu and the About window.
        QList<ProductConfig> products = BuildConfig::products();
        /// Asks for firmware and configuration files.
        FileChooser chooseFile = chooseFileWithDialog;
        /// Asks where to save the log.
        SaveChooser chooseSaveFile = chooseSaveFileWithDialog;
        /// Ends the program when the user quits anyway during a job.
        std::function<void()> exitNow = exitAtOnce;
    };

    /// Owns a controller on the resources beside the executable and the real
    /// device detection.
    AppDelegate();
    AppDelegate(std::unique_ptr<UpdateController> controller, Options options);
    ~AppDelegate() override;

    /// Builds and shows the main window, then the menus. Call once.
    void applicationDidFinishLaunching();

    /// The main window; null until launch has finished.
    QMainWindow* window() const { return m_window.get(); }
    UpdateController& updateController() const { return *m_updateController; }
    /// The About window; null until it was first shown.
    AboutWindow* aboutWindow() const { return m_aboutWindow.get(); }

  public slots:
    void showAbout();
    void openFirmwareFile();
    void useBundledFirmware();
    /// Asks where to save the log and writes it there with its header; a file that
    /// cannot be written adds an "ERROR: Could not save log: " line to the log.
    void saveLog();
    void toggleDetailedLogging(QAction* item);
    void toggleWriteBootPartitions(QAction* item);
    void toggleEraseAllFlash(QAction* item);
    /// Uploads the configuration of the product whose index is the item's data;
    /// an index outside the product list does nothing.
    void uploadConfigAction(QAction* item);
    void uploadConfigFromDisk();

  private:
    void setupMenus();
    QMenu* addApplicationMenu();
    QMenu* addFileMenu();
    QMenu* addOptionsMenu();
    QMenu* addConfigMenu();
    QAction* addToggle(QMenu* menu, const QString& title, bool checked,
                       void (AppDelegate::*toggle)(QAction*));

    Options m_options;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<UpdateController> m_updateController;
    std::unique_ptr<AboutWindow> m_aboutWindow;
    EscapeCloser* m_escapeCloser = nullptr;
    QuitGuard* m_quitGuard = nullptr;
    SleepInhibitor* m_sleepInhibitor;
};
