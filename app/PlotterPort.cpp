#include "app/PlotterPort.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>

#include "app/DeviceQueries.h"

namespace {

constexpr int kLookEveryMs = 100;

}  // namespace

PlotterPort::PlotterPort(QString path, QString serialNumber)
    : path_(std::move(path)), serialNumber_(std::move(serialNumber)) {}

PlotterPort PlotterPort::at(const QString& path) {
    for (const DeviceQueries::ListedPort& port : DeviceQueries::plotters()) {
        if (port.path == path) {
            return PlotterPort(path, port.serial);
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
        for (const DeviceQueries::ListedPort& port : DeviceQueries::plotters()) {
            if (!serialNumber_.isEmpty() && port.serial == serialNumber_) {
                return port.path;
            }
        }
        if (deadline.hasExpired()) {
            return std::nullopt;
        }
        QThread::msleep(kLookEveryMs);
    }
}
