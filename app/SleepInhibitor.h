#pragma once

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>

/// Keeps the computer from suspending while a job writes to the machine: a
/// systemd-logind inhibitor lock ("sleep:idle", mode "block") taken over D-Bus.
///
/// `setHeld(true)` asks logind for the lock without waiting for the answer; the
/// lock is the file descriptor logind hands back, kept until `setHeld(false)` or
/// destruction closes it. Without a bus, or when logind refuses, there is no lock
/// and nothing is reported. Lives on the GUI thread; its replies arrive there.
class SleepInhibitor : public QObject {
    Q_OBJECT

  public:
    /// Asks logind on `bus` (the system bus, in the application).
    explicit SleepInhibitor(const QDBusConnection& bus = QDBusConnection::systemBus(),
                            QObject* parent = nullptr);

    /// True while logind's lock is held.
    bool isHeld() const { return lock_.isValid(); }

  public slots:
    /// Asks for the lock (true) or releases it (false); repeating a value does nothing.
    void setHeld(bool held);

  private:
    void request();

    QDBusConnection bus_;
    bool wanted_ = false;
    // Counts requests, so an answer that arrives after a release, or after a
    // newer request, is dropped (and its descriptor closed with it).
    quint64 requests_ = 0;
    QDBusUnixFileDescriptor lock_;
};
