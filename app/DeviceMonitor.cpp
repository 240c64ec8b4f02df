#include "app/DeviceMonitor.h"

#include <QCoreApplication>
#include <QPointer>
#include <cstdlib>
#include <memory>

#include "esp_flasher.h"

DeviceMonitor::DeviceMonitor(QObject* parent)
    : DeviceMonitor(Detector(esp_detect_device), parent) {}

DeviceMonitor::DeviceMonitor(Detector detector, QObject* parent)
    : QObject(parent), m_detector(std::move(detector)) {
    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &DeviceMonitor::poll);
}

void DeviceMonitor::startPolling() {
    m_timer.start();
}

void DeviceMonitor::poll() {
    // The text is owned by the posted step, so it is released whether the step
    // runs or is discarded along with a monitor that is already gone.
    std::shared_ptr<char> found(m_detector(kVendorId, kProductId), std::free);
    QPointer<DeviceMonitor> self(this);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [self, found] {
            if (self.isNull()) {
                return;
            }
            self->publish(found ? std::optional<QString>(QString::fromUtf8(found.get()))
                                : std::nullopt);
        },
        Qt::QueuedConnection);
}

void DeviceMonitor::publish(std::optional<QString> path) {
    m_portPath = std::move(path);
    emit portPathChanged(portPath());
    m_isConnected = m_portPath.has_value();
    emit isConnectedChanged(m_isConnected);
}
