#include "app/DeviceQueries.h"

#include <cstdlib>
#include <memory>

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
