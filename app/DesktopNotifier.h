#pragma once

#include <QDBusConnection>
#include <QString>

/// Posts a desktop notification through org.freedesktop.Notifications, for the
/// end of a job the owner is not watching. Sends and does not wait: where the
/// bus or the service is missing, nothing happens. GUI thread.
class DesktopNotifier {
  public:
    /// Talks to the service on `bus` (the session bus, in the application).
    explicit DesktopNotifier(const QDBusConnection& bus = QDBusConnection::sessionBus());

    /// A notification with `title` and `body`, from the updater.
    void notify(const QString& title, const QString& body) const;

  private:
    QDBusConnection bus_;
};
