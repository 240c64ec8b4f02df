#include "app/SleepInhibitor.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDebug>

namespace {

constexpr int kReplyTimeoutMs = 5000;

}  // namespace

SleepInhibitor::SleepInhibitor(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), bus_(bus) {}

void SleepInhibitor::setHeld(bool held) {
    if (held == wanted_) {
        return;
    }
    wanted_ = held;
    ++requests_;
    if (held) {
        request();
    } else {
        lock_ = QDBusUnixFileDescriptor();
    }
}

void SleepInhibitor::request() {
    if (!bus_.isConnected()) {
        return;
    }
    QDBusMessage inhibit = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    inhibit << QStringLiteral("sleep:idle") << QStringLiteral("Teskal Firmware Updater")
            << QStringLiteral("Writing firmware or a configuration to the plotter")
            << QStringLiteral("block");
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(inhibit, kReplyTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, request = requests_](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *finished;
                if (reply.isError()) {
                    qDebug() << "No sleep inhibitor lock:" << reply.error().message();
                    return;
                }
                if (wanted_ && request == requests_) {
                    lock_ = reply.value();
                }
            });
}
