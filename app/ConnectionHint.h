#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include "app/Outcome.h"
#include "app/PortFlapping.h"

/// When the window offers its Connection Check ("Plotter not found?"): once the
/// status line has read "Waiting for device…" for `patienceMs` on end, until it
/// reads anything else; after a job ended because its port could not be used,
/// until the next job starts; and while the plotter's port keeps coming and going
/// (see `PortFlapping`).
///
/// GUI thread only. Fed by `UpdateController`, which owns one.
class ConnectionHint : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool offered READ offered NOTIFY offeredChanged)

  public:
    static constexpr int kPatienceMs = 10000;

    /// Starts from the status line `status`.
    ConnectionHint(const QString& status, int patienceMs, QObject* parent = nullptr);

    bool offered() const { return waitedLong_ || portRefused_ || restarting_; }
    /// The plotter's port vanished and came back more than twice in the last 10 s.
    bool keepsRestarting() const { return restarting_; }

    /// The status line as published, on every assignment.
    void followStatus(const QString& status);
    /// A job starts, or ends with `outcome`.
    void jobStarted();
    void jobEnded(const Outcome& outcome);
    /// Whether the plotter's port is there, at every look of the device monitor.
    void followPresence(bool present);

  signals:
    /// Only when `offered` changes.
    void offeredChanged(bool offered);
    /// Only when `keepsRestarting` changes.
    void keepsRestartingChanged(bool restarting);

  private:
    void change(bool& flag, bool value);

    QTimer patience_;
    bool waitedLong_ = false;
    bool portRefused_ = false;
    bool restarting_ = false;
    QElapsedTimer clock_;
    PortFlapping flapping_;
};
