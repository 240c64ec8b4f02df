#include "app/operations/CheckConnection.h"

#include <QThread>
#include <algorithm>
#include <chrono>
#include <vector>

#include "app/DeviceMonitor.h"
#include "app/PortDiagnosis.h"
#include "app/PortFlapping.h"
#include "app/Texts.h"
#include "esp_flasher.h"

namespace {

using Devices = std::vector<esp_usb_serial_device>;

// Devices may come or go between the count and the copy: keep only the entries
// the second call filled.
Devices survey(const CheckConnection::Places& places) {
    const QByteArray sysfs = places.sysfsRoot.toUtf8();
    const QByteArray dev = places.devRoot.toUtf8();
    Devices devices(esp_survey_usb_serial(sysfs.constData(), dev.constData(), nullptr, 0));
    devices.resize(std::min(
        devices.size(),
        esp_survey_usb_serial(sysfs.constData(), dev.constData(), devices.data(), devices.size())));
    return devices;
}

bool isPlotter(const esp_usb_serial_device& device) {
    return device.vendorId == ESP_PLOTTER_VENDOR_ID && device.productId == ESP_PLOTTER_PRODUCT_ID;
}

// The plotter to check: the first one that has a port, else the first one.
const esp_usb_serial_device* chosenPlotter(const Devices& devices) {
    const auto withPort = std::find_if(devices.begin(), devices.end(), [](const auto& device) {
        return isPlotter(device) && device.path[0] != '\0';
    });
    const auto any = std::find_if(devices.begin(), devices.end(), isPlotter);
    return withPort != devices.end() ? &*withPort : any != devices.end() ? &*any : nullptr;
}

void checkPort(const QString& path, const QString& rule, Checklist& list) {
    const PortCause cause = PortDiagnosis::check(path, PortDiagnosis::Probe::look);
    const CheckRow problem =
        CheckRow::failed(Texts::portProblem(cause), Texts::portFix(cause, rule));
    switch (cause.problem) {
        case ESP_PORT_OK:
            list.rows << CheckRow::passed(Texts::mayOpen(path))
                      << CheckRow::passed(Texts::notHeld(path));
            list.readyPort = path;
            return;
        case ESP_PORT_HELD:
            list.rows << CheckRow::passed(Texts::mayOpen(path)) << problem;
            return;
        case ESP_PORT_PERMISSION:
            list.permissionDenied = true;
            list.rows << problem;
            return;
        default:
            list.rows << problem;
            return;
    }
}

// A port is made by cdc_acm, which binds to the plotter's first interface; bound
// and without a node, udev has not made it yet.
void checkPlotter(const esp_usb_serial_device& plotter, const QString& rule, Checklist& list) {
    list.rows << CheckRow::passed(Texts::plotterSeen(QString::fromUtf8(plotter.serial)));
    const QString driver = QString::fromUtf8(plotter.driver);
    if (plotter.path[0] == '\0') {
        list.rows << (driver == QLatin1String("cdc_acm")
                          ? CheckRow::failed(Texts::noNode(), Texts::noNodeFix())
                          : CheckRow::failed(Texts::noDriver(), Texts::noDriverFix()));
        return;
    }
    const QString path = QString::fromUtf8(plotter.path);
    list.rows << CheckRow::passed(Texts::portMade(path, driver));
    checkPort(path, rule, list);
}

bool hasPort(const CheckConnection::Places& places) {
    const auto devices = survey(places);
    const esp_usb_serial_device* plotter = chosenPlotter(devices);
    return plotter != nullptr && plotter->path[0] != '\0';
}

}  // namespace

CheckConnection::Watch CheckConnection::Watch::realTime(Texts::Audience audience) {
    return {[] {
                return std::chrono::duration_cast<std::chrono::milliseconds>(
                           std::chrono::steady_clock::now().time_since_epoch())
                    .count();
            },
            [](int ms) { QThread::msleep(static_cast<unsigned long>(ms)); }, audience};
}

CheckConnection::CheckConnection(QString rule, Places places, std::optional<Watch> watch)
    : rule_(std::move(rule)), places_(std::move(places)), watch_(std::move(watch)) {}

Checklist CheckConnection::check() const {
    Checklist list;
    const Devices devices = survey(places_);
    const esp_usb_serial_device* plotter = chosenPlotter(devices);
    if (plotter == nullptr) {
        list.rows << CheckRow::failed(Texts::noPlotterSeen(), Texts::noPlotterFix());
    } else {
        checkPlotter(*plotter, rule_, list);
    }
    for (const esp_usb_serial_device& device : devices) {
        const QString path = QString::fromUtf8(device.path);
        if (&device == plotter) {
            continue;
        }
        list.rows << CheckRow::note(
            isPlotter(device) ? Texts::otherPlotter(QString::fromUtf8(device.serial), path)
                              : Texts::otherDevice(device.vendorId, device.productId,
                                                   QString::fromUtf8(device.product),
                                                   QString::fromUtf8(device.driver), path));
    }
    if (list.readyPort) {
        list.rows << CheckRow::passed(Texts::portReady(*list.readyPort));
    }
    return list;
}

void CheckConnection::markRestarting(Checklist& list, Texts::Audience audience) {
    if (list.ready()) {
        list.rows.removeLast();
        list.readyPort.reset();
    }
    list.rows.prepend(CheckRow::failed(Texts::keepsRestarting(), Texts::holdBootButton(audience)));
}

// A chip that restarts in a loop takes its port down at every restart, so the
// port is looked at as often as the device monitor looks at it.
bool CheckConnection::keepsRestarting() const {
    PortFlapping flapping;
    const qint64 startMs = watch_->nowMs();
    for (qint64 now = startMs; now - startMs <= PortFlapping::kWindowMs; now = watch_->nowMs()) {
        flapping.sample(now, hasPort(places_));
        if (flapping.keepsRestarting()) {
            return true;
        }
        watch_->pause(DeviceMonitor::kPollIntervalMs);
    }
    return false;
}

Outcome CheckConnection::run(const OperationSink&) {
    Checklist list = check();
    const bool seen = !list.rows.isEmpty() && list.rows.front().mark == CheckRow::Mark::ok;
    if (watch_ && seen && !list.ready()) {
        const bool restarting = keepsRestarting();
        list = check();
        if (restarting) {
            markRestarting(list, watch_->audience);
        }
    }
    Outcome outcome = list.ready()
                          ? Outcome::success(Texts::portReady(*list.readyPort))
                          : Outcome::make(Outcome::Kind::notReady, Texts::noPlotterReady());
    outcome.cause = std::move(list);
    return outcome;
}
