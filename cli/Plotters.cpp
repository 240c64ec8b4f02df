#include "cli/Plotters.h"

#include "app/DeviceQueries.h"

namespace Plotters {
namespace {

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
    for (const DeviceQueries::ListedPort& port : DeviceQueries::plotters()) {
        names << port.path;
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
