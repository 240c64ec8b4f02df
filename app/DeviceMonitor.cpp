#include "app/DeviceMonitor.h"

#include <QCoreApplication>
#include <QPointer>
#include <cstdlib>
#include <memory>

#include "esp_flasher.h"

DeviceMonitor::DeviceMonitor(QObject* parent)
    : DeviceMonitor(Detector(esp_detect_device), parent) {}

DeviceMonitor::DeviceMonitor(Detector detector, QObject* parent)
    : QObject(parent), detector_(std::move(detector)) {
    timer_.setInterval(kPollIntervalMs);
    connect(&timer_, &QTimer::timeout, this, &DeviceMonitor::poll);
}

void DeviceMonitor::startPolling() {
    timer_.start();
}

void DeviceMonitor::poll() {
    // The text is owned by the posted step, so it is released whether the step
    // runs or is discarded along with a monitor that is already gone.
    std::shared_ptr<char> found(detector_(ESP_PLOTTER_VENDOR_ID, ESP_PLOTTER_PRODUCT_ID),
                                std::free);
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
    portPath_ = std::move(path);
    emit portPathChanged(portPath());
    isConnected_ = portPath_.has_value();
    emit isConnectedChanged(isConnected_);
}
