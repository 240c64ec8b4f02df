#include "app/DeviceQueries.h"

#include <QFileInfo>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

#include "app/DeviceMonitor.h"
#include "app/VersionText.h"
#include "esp_flasher.h"

namespace DeviceQueries {

std::optional<QString> firmwareVersion(const QString& port) {
    const std::unique_ptr<char, decltype(&std::free)> reply(
        esp_query_version(port.toUtf8().constData()), std::free);
    if (!reply) {
        return std::nullopt;
    }
    return VersionText::cleanFirmwareVersion(QString::fromUtf8(reply.get()));
}

QString machineIdentity(const QString& port) {
    constexpr uint16_t kVendorId = DeviceMonitor::kVendorId;
    constexpr uint16_t kProductId = DeviceMonitor::kProductId;
    std::vector<esp_port_info> ports(esp_list_devices(kVendorId, kProductId, nullptr, 0));
    // A plotter may come or go between the count and the copy.
    ports.resize(std::min(ports.size(),
                          esp_list_devices(kVendorId, kProductId, ports.data(), ports.size())));
    const QString resolved = QFileInfo(port).canonicalFilePath();
    for (const esp_port_info& listed : ports) {
        const QString path = QString::fromUtf8(listed.path);
        const QString serial = QString::fromUtf8(listed.serial);
        if (!serial.isEmpty() &&
            (path == port ||
             (!resolved.isEmpty() && QFileInfo(path).canonicalFilePath() == resolved))) {
            return serial;
        }
    }
    return port;
}

PartitionTable partitionTable(const QString& port, const QByteArray& stub) {
    switch (esp_probe_partition_table(port.toUtf8().constData(),
                                      reinterpret_cast<const uint8_t*>(stub.constData()),
                                      static_cast<size_t>(stub.size()))) {
        case 1:
            return PartitionTable::present;
        case 0:
            return PartitionTable::absent;
        default:
            return PartitionTable::unreadable;
    }
}

}  // namespace DeviceQueries
