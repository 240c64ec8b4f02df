#include "cli/Plotters.h"

#include <algorithm>
#include <vector>

#include "esp_flasher.h"

namespace Plotters {
namespace {

constexpr unsigned short kVendorId = 0x303A;
constexpr unsigned short kProductId = 0x1001;

const QString kSimPrefix = QStringLiteral("sim");

}  // namespace

QStringList connected(int simulated) {
    QStringList names;
    if (simulated > 0) {
        for (int i = 1; i <= simulated; ++i) {
            names << kSimPrefix + QString::number(i);
        }
        return names;
    }
    // Plotters may come or go between the count and the copy: keep only the
    // entries the second call filled.
    std::vector<esp_port_info> ports(esp_list_devices(kVendorId, kProductId, nullptr, 0));
    ports.resize(std::min(ports.size(),
                          esp_list_devices(kVendorId, kProductId, ports.data(), ports.size())));
    for (const esp_port_info& port : ports) {
        names << QString::fromUtf8(port.path);
    }
    return names;
}

bool isSimulated(const QString& name, int simulated) {
    if (!name.startsWith(kSimPrefix)) {
        return false;
    }
    bool number = false;
    const int index = name.mid(kSimPrefix.size()).toInt(&number);
    return number && index >= 1 && index <= simulated &&
           name == kSimPrefix + QString::number(index);
}

}  // namespace Plotters
