#pragma once

#include <QList>
#include <QObject>
#include <memory>

#include "app/BuildConfig.h"
#include "app/ConfigChoice.h"
#include "app/ConfigDiff.h"
#include "app/DesktopNotifier.h"
#include "app/Outcome.h"
#include "app/operations/CheckConnection.h"
#include "app/operations/OperationRunner.h"
#include "ui/CatalogueChooser.h"
#include "ui/FileChooser.h"
#include "ui/QuitGuard.h"
#include "ui/SaveChooser.h"
#include "ui/SnapshotQuestions.h"

class AboutWindow;
class CompareWindow;
class ConnectionCheckWindow;
class EscapeCloser;
class FirmwareVersionWindow;
class QAction;
class QMainWindow;
class QMenu;
class RepairDialog;
class RestoreWindow;
class SleepInhibitor;
class UpdateController;

/// The application shell: owns the one update controller, opens the main window
/// with its menus, shows the About window and turns menu commands into calls on
/// the controller, whose Erase All Flash questions it asks in dialogs (see
/// `EraseQuestions.h`). While a job runs it keeps the computer from sleeping, and
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
        /// Asks where the firmware catalogue is.
        CatalogueChooser chooseCatalogue = chooseCatalogueWithDialog;
        /// Asks where to save the log and the machine's configuration.
        SaveChooser chooseSaveFile = chooseSaveFileWithDialog;
        /// Ends the program when the user quits anyway during a job.
        std::function<void()> exitNow = exitAtOnce;
        /// Tells the owner how a job ended while the window was not active: a
        /// desktop notification with a title and a body.
        std::function<void(const QString& title, const QString& body)> notify =
            [](const QString& title, const QString& body) {
                DesktopNotifier().notify(title, body);
            };
        /// What the Connection Check sees attached over USB; the simulated-plotter
        /// program shows its plotter there.
        UsbSurvey survey = surveyOf();
        /// Asks whether a snapshot of the machine `owner` may go on `machine`.
        std::function<bool(QWidget* parent, const QString& owner, const QString& machine)>
            confirmOtherMachine = confirmOtherMachineAsked;
    };

    /// Owns a controller on the resources beside the executable and the real
    /// device detection.
    AppDelegate();
    AppDelegate(std::unique_ptr<UpdateController> controller, Options options);
    ~AppDelegate() override;

    /// Builds and shows the main window, then the menus. Call once.
    void applicationDidFinishLaunching();

    /// The main window; null until launch has finished.
    QMainWindow* window() const { return window_.get(); }
    UpdateController& updateController() const { return *updateController_; }
    /// The About window; null until it was first shown.
    AboutWindow* aboutWindow() const { return aboutWindow_.get(); }
    /// The window of the last comparison; null until one ended.
    CompareWindow* compareWindow() const { return compareWindow_.get(); }
    /// The Connection Check; null until it was first asked for.
    ConnectionCheckWindow* connectionCheckWindow() const { return connectionCheckWindow_.get(); }
    /// The last Restore Machine Config window; null until one was opened.
    RestoreWindow* restoreWindow() const { return restoreWindow_.get(); }
    /// The last Choose Firmware Version window; null until one was opened.
    FirmwareVersionWindow* firmwareVersionWindow() const { return firmwareVersionWindow_.get(); }
    /// The last Repair Machine dialog; null until one was opened.
    RepairDialog* repairDialog() const { return repairDialog_.get(); }

  public slots:
    void showAbout();
    void openFirmwareFile();
    void useBundledFirmware();
    /// Asks where the firmware catalogue is, then reads it.
    void chooseFirmwareCatalogue();
    /// Opens the Choose Firmware Version window, in place of an earlier one, with
    /// the catalogue as last read (and reads it again when it is not being read);
    /// versions are marked that this machine answered in its backups. Its choice
    /// becomes the image (`UpdateController::chooseRelease`), or the bundled one.
    void showFirmwareVersions();
    /// Asks where to save the log and has the controller write it there.
    void saveLog();
    void toggleDetailedLogging(QAction* item);
    void toggleWriteBootPartitions(QAction* item);
    void toggleEraseAllFlash(QAction* item);
    void toggleBackupBeforeUpload(QAction* item);
    void toggleSnapshotBeforeWriting(QAction* item);
    /// Uploads the configuration of the product whose index is the item's data;
    /// an index outside the product list does nothing.
    void uploadConfigAction(QAction* item);
    void uploadConfigFromDisk();
    /// Asks where to save the machine's config.yaml, proposing
    /// "machine-config-yyyyMMdd-HHmm.yaml", and starts saving it there.
    void saveMachineConfig();
    /// Compares the machine's configuration with the product's whose index is the
    /// item's data; an index outside the product list does nothing.
    void compareWithProduct(QAction* item);
    /// Asks for a configuration file and compares the machine's with it.
    void compareWithFile();
    /// Opens the Restore Machine Config window on the backups folder as it is now,
    /// in place of an earlier one; a record that cannot be read is logged.
    void restoreMachineConfig();
    /// Opens the Restore Whole Machine window on the snapshots as they are now, in
    /// place of an earlier one; its "Restore" asks first when the snapshot is of
    /// another machine, then starts the controller's `restoreWholeMachine`.
    void restoreWholeMachine();
    /// Shows `comparison` in a new compare window, in place of an earlier one; its
    /// "Upload This Configuration" uploads `chosen` as the Config menu would.
    void showComparison(const ConfigComparison& comparison, const ConfigChoice& chosen);
    /// Shows the Connection Check, a new one unless it is open already.
    void showConnectionCheck();
    /// Opens the Repair Machine dialog on the backups folder as it is now, in place
    /// of an earlier one, and asks the machine's firmware whether it answers, which
    /// decides what goes back (see `RepairDialog::showFirmwareAnswers`); its
    /// "Repair" starts the controller's repair.
    void showRepair();

  private:
    void notifyUnseen(const std::optional<Outcome>& result);
    void setupMenus();
    QMenu* addApplicationMenu();
    QMenu* addFileMenu();
    QMenu* addOptionsMenu();
    QMenu* addConfigMenu();
    QMenu* addHelpMenu();
    void restoreSnapshot(const Backup& snapshot, const QString& machine);
    void addProductItems(QMenu* menu, void (AppDelegate::*action)(QAction*));
    std::optional<ProductConfig> productOf(const QAction* item) const;
    std::optional<QString> chooseConfigFile();
    QAction* addToggle(QMenu* menu, const QString& title, bool checked,
                       void (AppDelegate::*toggle)(QAction*));

    Options options_;
    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<UpdateController> updateController_;
    std::unique_ptr<AboutWindow> aboutWindow_;
    std::unique_ptr<CompareWindow> compareWindow_;
    std::unique_ptr<ConnectionCheckWindow> connectionCheckWindow_;
    std::unique_ptr<RestoreWindow> restoreWindow_;
    std::unique_ptr<RepairDialog> repairDialog_;
    std::unique_ptr<FirmwareVersionWindow> firmwareVersionWindow_;
    EscapeCloser* escapeCloser_ = nullptr;
    QuitGuard* quitGuard_ = nullptr;
    SleepInhibitor* sleepInhibitor_;
    /// Asks the firmware whether it answers while the Repair dialog is open.
    OperationRunner firmwareProbe_;
};
