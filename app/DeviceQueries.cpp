#include "app/DeviceQueries.h"

#include <cstdlib>
#include <memory>

#include "app/UserText.h"
#include "esp_flasher.h"

namespace DeviceQueries {

std::optional<QString> firmwareVersion(const QString& port) {
    const std::unique_ptr<char, decltype(&std::free)> reply(
        esp_query_version(port.toUtf8().constData()), std::free);
    if (!reply) {
        return std::nullopt;
    }
    return UserText::cleanFirmwareVersion(QString::fromUtf8(reply.get()));
}

}  // namespace DeviceQueries
