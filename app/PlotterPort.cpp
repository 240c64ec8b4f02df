#include "app/PlotterPort.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>
#include <algorithm>
#include <vector>

#include "app/DeviceMonitor.h"
#include "esp_flasher.h"

namespace {

constexpr int kLookEveryMs = 100;

std::vector<esp_port_info> plotters() {
    std::vector<esp_port_info> ports(
        esp_list_devices(DeviceMonitor::kVendorId, DeviceMonitor::kProductId, nullptr, 0));
    // More may have come since the count; only the entries filled are kept.
    const size_t found = esp_list_devices(DeviceMonitor::kVendorId, DeviceMonitor::kProductId,
                                          ports.data(), ports.size());
    ports.resize(std::min(found, ports.size()));
    return ports;
}

}  // namespace

PlotterPort::PlotterPort(QString path, QString serialNumber)
    : path_(std::move(path)), serialNumber_(std::move(serialNumber)) {}

PlotterPort PlotterPort::at(const QString& path) {
    for (const esp_port_info& port : plotters()) {
        if (QString::fromUtf8(port.path) == path) {
            return PlotterPort(path, QString::fromUtf8(port.serial));
        }
    }
    return PlotterPort(path, QString());
}

std::optional<QString> PlotterPort::findAgain(int timeoutMs) const {
    const QDeadlineTimer deadline(timeoutMs);
    for (;;) {
        if (serialNumber_.isEmpty() && QFileInfo::exists(path_)) {
            return path_;
        }
        for (const esp_port_info& port : plotters()) {
            if (!serialNumber_.isEmpty() && QString::fromUtf8(port.serial) == serialNumber_) {
                return QString::fromUtf8(port.path);
            }
        }
        if (deadline.hasExpired()) {
            return std::nullopt;
        }
        QThread::msleep(kLookEveryMs);
    }
}
