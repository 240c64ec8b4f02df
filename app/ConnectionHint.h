#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "app/Outcome.h"

/// When the window offers its Connection Check ("Plotter not found?"): once the
/// status line has read "Waiting for device…" for `patienceMs` on end, until it
/// reads anything else; and after a job ended because its port could not be used,
/// until the next job starts.
///
/// GUI thread only. Fed by `UpdateController`, which owns one.
class ConnectionHint : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool offered READ offered NOTIFY offeredChanged)

  public:
    static constexpr int kPatienceMs = 10000;

    /// Starts from the status line `status`.
    ConnectionHint(const QString& status, int patienceMs, QObject* parent = nullptr);

    bool offered() const { return waitedLong_ || portRefused_; }

    /// The status line as published, on every assignment.
    void followStatus(const QString& status);
    /// A job starts, or ends with `outcome`.
    void jobStarted();
    void jobEnded(const Outcome& outcome);

  signals:
    /// Only when `offered` changes.
    void offeredChanged(bool offered);

  private:
    void change(bool& flag, bool value);

    QTimer patience_;
    bool waitedLong_ = false;
    bool portRefused_ = false;
};
