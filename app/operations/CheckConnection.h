#pragma once

#include <QString>

#include "app/Checklist.h"
#include "app/operations/Operation.h"

/// Where the system describes its devices and makes their nodes; tests give a
/// fake tree.
struct DevicePlaces {
    QString sysfsRoot = QStringLiteral("/sys");
    QString devRoot = QStringLiteral("/dev");
};

/// Finds out why the plotter cannot be reached, step by step: whether it is seen on
/// USB, whether a serial port was made for it, whether this user may open it and
/// whether another program holds it; and which other USB serial devices are there.
/// The window's Connection Check and `teskal-flash doctor` present its checklist.
class CheckConnection : public Operation {
  public:
    using Places = DevicePlaces;

    /// `rule` says, in a permission problem's fix, where the permission rule comes
    /// from (for example "button below", or the command that installs it).
    explicit CheckConnection(QString rule, Places places = {});

    /// One pass of the checks. Reads sysfs, /proc and the account database; opens no
    /// port and sends nothing, so it may run on the GUI thread once a second.
    Checklist check() const;

    /// Succeeds with "Ready: the plotter on PATH can be used." when a plotter can be
    /// used, else ends `notReady` with "No plotter is ready to use."; the checklist is
    /// the outcome's cause either way. Logs nothing.
    Outcome run(const OperationSink& sink) override;

  private:
    QString rule_;
    Places places_;
};
