#pragma once

#include <QStringList>
#include <QWidget>
#include <optional>

#include "app/LogEntry.h"
#include "app/Outcome.h"
#include "app/UpdateState.h"
#include "ui/ElidedLabel.h"

class LogPanel;
class QAction;
class QLabel;
class QProgressBar;
class QPushButton;
class ResultBanner;
class StatusDot;
class UpdateController;

/// The main window's content, 480 x 420 and larger: connection and status (with the link
/// "Plotter not found?" below it while the controller's connection hint offers the
/// Connection Check), the firmware that will be written, progress, the "Update
/// Firmware" button and the log.
///
/// It keeps nothing of its own: the `show...` functions redraw one part from a
/// value, and the constructor connects them to the controller's and its device
/// monitor's published properties. Its colours follow the palette, light or dark.
/// For a screen reader the status line is a label that announces each change,
/// and the progress bar is named after the stage it measures. A click on "Update Firmware" while
/// the controller runs a job does nothing. The controller must outlive the view. GUI thread only.
class UpdaterView : public QWidget {
    Q_OBJECT

  public:
    explicit UpdaterView(UpdateController& controller, QWidget* parent = nullptr);

    /// 480 x 420, or what its content needs (a tall result banner beside the
    /// log's eight lines): the window opens at this size and is never smaller.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Progress bar by state; the button's enabled rule uses it too.
    void showState(const UpdateState& state);
    /// Status dot, port path "(path)" when there is one, the button's enabled rule.
    void showConnection(bool isConnected, const std::optional<QString>& portPath);
    /// One line; a message too long for it is elided, whole in the tooltip.
    void showStatusMessage(const QString& message);
    /// The link "Plotter not found?" under the status row, or nothing (no space).
    void showConnectionHint(bool offered);
    void showFirmwareLabel(const QString& label);
    /// The link "Firmware 2.11.0 is available" under the firmware line, for a
    /// newer stable version of the catalogue than the bundled one; none hides it.
    void showNewerFirmware(const std::optional<QString>& version);
    /// How the last job ended, in the result banner; none hides it. When the machine
    /// rejected a configuration and had another before (`StartupCause::previous`)
    /// the banner offers "Restore Previous Configuration"; after a machine that a
    /// repair helps (`Repair::helps`), "Repair…".
    void showResult(const std::optional<Outcome>& result);
    /// The log; see `LogView::setEntries` for scrolling.
    void showLog(const LogEntries& entries);

    StatusDot* statusDot() const { return dot_; }
    ElidedLabel* statusLabel() const { return status_; }
    QLabel* portLabel() const { return port_; }
    QLabel* notFoundLink() const { return notFound_; }
    QLabel* firmwareLabel() const { return firmware_; }
    QLabel* newerFirmwareLink() const { return newer_; }
    QProgressBar* progressBar() const { return progress_; }
    QPushButton* updateButton() const { return button_; }
    LogPanel* logPanel() const { return log_; }
    ResultBanner* resultBanner() const { return banner_; }
    /// The banner's "Restore Previous Configuration"; it calls the controller's
    /// `restorePreviousConfiguration`.
    QAction* restorePreviousAction() const { return restorePrevious_; }
    /// The banner's "Repair…"; it emits `repairRequested`.
    QAction* repairAction() const { return repair_; }
    /// The banner's "Undo Update"; it calls the controller's `undoUpdate`.
    QAction* undoUpdateAction() const { return undoUpdate_; }

  signals:
    /// The link "Plotter not found?" was followed.
    void connectionCheckRequested();
    /// The banner's "Repair…" was pressed.
    void repairRequested();
    /// The link "Firmware … is available" was followed.
    void firmwareVersionsRequested();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void buildLayout();
    void recolour();
    void connectTo(UpdateController& controller);
    void updateButtonEnabled();

    StatusDot* dot_;
    ElidedLabel* status_;
    QLabel* port_;
    QLabel* notFound_;
    QLabel* firmware_;
    QLabel* newer_;
    std::optional<QString> newerVersion_;
    QProgressBar* progress_;
    QPushButton* button_;
    ResultBanner* banner_;
    QAction* restorePrevious_;
    QAction* undoUpdate_;
    QAction* repair_;
    LogPanel* log_;
    bool isConnected_ = false;
    UpdateState state_;
};
