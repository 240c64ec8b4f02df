#include "app/DesktopNotifier.h"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

DesktopNotifier::DesktopNotifier(const QDBusConnection& bus) : bus_(bus) {}

void DesktopNotifier::notify(const QString& title, const QString& body) const {
    if (!bus_.isConnected()) {
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    // app_name, replaces_id, app_icon, summary, body, actions, hints, expire_timeout
    call << QStringLiteral("Teskal Firmware Updater") << 0u
         << QStringLiteral("teskal-firmware-updater") << title << body << QStringList()
         << QVariantMap() << -1;
    bus_.send(call);
}
