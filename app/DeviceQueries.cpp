#include "app/DeviceQueries.h"

#include <QFileInfo>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

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

QList<ListedPort> plotters() {
    std::vector<esp_port_info> ports(
        esp_list_devices(ESP_PLOTTER_VENDOR_ID, ESP_PLOTTER_PRODUCT_ID, nullptr, 0));
    // Plotters may come or go between the count and the copy: only the entries the
    // second call filled are kept.
    ports.resize(
        std::min(ports.size(), esp_list_devices(ESP_PLOTTER_VENDOR_ID, ESP_PLOTTER_PRODUCT_ID,
                                                ports.data(), ports.size())));
    QList<ListedPort> listed;
    for (const esp_port_info& port : ports) {
        listed.append({QString::fromUtf8(port.path), QString::fromUtf8(port.serial)});
    }
    return listed;
}

QString machineIdentity(const QString& port) {
    const QString resolved = QFileInfo(port).canonicalFilePath();
    for (const ListedPort& listed : plotters()) {
        if (!listed.serial.isEmpty() &&
            (listed.path == port ||
             (!resolved.isEmpty() && QFileInfo(listed.path).canonicalFilePath() == resolved))) {
            return listed.serial;
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
