#include "app/SleepInhibitor.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDebug>

namespace {

constexpr int kReplyTimeoutMs = 5000;

}  // namespace

SleepInhibitor::SleepInhibitor(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus) {}

void SleepInhibitor::setHeld(bool held) {
    if (held == m_wanted) {
        return;
    }
    m_wanted = held;
    ++m_requests;
    if (held) {
        request();
    } else {
        m_lock = QDBusUnixFileDescriptor();
    }
}

void SleepInhibitor::request() {
    if (!m_bus.isConnected()) {
        return;
    }
    QDBusMessage inhibit = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    inhibit << QStringLiteral("sleep:idle") << QStringLiteral("Teskal Firmware Updater")
            << QStringLiteral("Writing firmware or a configuration to the plotter")
            << QStringLiteral("block");
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(inhibit, kReplyTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, request = m_requests](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *finished;
                if (reply.isError()) {
                    qDebug() << "No sleep inhibitor lock:" << reply.error().message();
                    return;
                }
                if (m_wanted && request == m_requests) {
                    m_lock = reply.value();
                }
            });
}
