#pragma once

#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "app/Checklist.h"
#include "app/PermissionRule.h"
#include "app/operations/CheckConnection.h"

class QLabel;
class QPushButton;
class QVBoxLayout;

/// The Connection Check: runs `CheckConnection` once a second while it is shown and
/// lists each check as a line with a mark, a problem's fix below it. A permission
/// problem offers "Install Permission Rule…", which runs the rule's one fixed
/// command (without pkexec the button is disabled and its tooltip says what to run
/// by hand). Once the plotter can be used it shows the "Ready" line, emits
/// `plotterReady` and closes itself a moment later. Its colours follow the
/// palette, light or dark. GUI thread only.
class ConnectionCheckWindow : public QWidget {
    Q_OBJECT

  public:
    /// Starts `program` with `arguments` apart from this program; false when it
    /// could not be started.
    using Launcher = std::function<bool(const QString& program, const QStringList& arguments)>;
    static bool launchDetached(const QString& program, const QStringList& arguments);

    static constexpr int kCheckIntervalMs = 1000;
    static constexpr int kCloseDelayMs = 1500;

    /// Checks the devices `survey` lists; `launch` starts the rule's installer.
    ConnectionCheckWindow(UsbSurvey survey, PermissionRule rule, Launcher launch = launchDetached,
                          QWidget* parent = nullptr);

    /// Runs the checks once and shows what they found.
    void refresh();
    /// Whether the plotter's port keeps coming and going (see `ConnectionHint`):
    /// then "The plotter keeps restarting." and its fix head the list, and no port
    /// counts as ready.
    void showRestarting(bool restarting);

    /// What the last checks found.
    const Checklist& checklist() const { return checklist_; }
    QPushButton* installRuleButton() const { return installRule_; }

  signals:
    /// The plotter on `port` can be used; the window closes itself soon after.
    void plotterReady(const QString& port);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void buildLayout();
    void recolour();
    void showRows();
    void fitHeight();
    void installRule();

    CheckConnection checks_;
    bool restarting_ = false;
    PermissionRule rule_;
    Launcher launch_;
    Checklist checklist_;
    QTimer timer_;
    QLabel* intro_;
    QWidget* rows_;
    QLabel* notice_;
    QPushButton* installRule_;
    QPushButton* close_;
};
