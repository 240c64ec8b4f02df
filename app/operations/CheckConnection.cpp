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
        CheckRow::failed(PortDiagnosis::problem(cause), PortDiagnosis::fix(cause, rule));
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
    const QString serial = QString::fromUtf8(plotter.serial);
    list.rows << CheckRow::passed(serial.isEmpty() ? Texts::plotterSeen()
                                                   : Texts::plotterSeenWithSerial(serial));
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

QString otherPlotter(const esp_usb_serial_device& device) {
    const QString serial = QString::fromUtf8(device.serial);
    const QString where =
        device.path[0] == '\0' ? Texts::withoutPort() : QString::fromUtf8(device.path);
    return serial.isEmpty() ? Texts::otherPlotter(where)
                            : Texts::otherPlotterWithSerial(serial, where);
}

// "1a86:7523 USB Serial (ch341)": the ids, and the product and driver where known.
QString otherDevice(const esp_usb_serial_device& device) {
    QString named = QStringLiteral("%1:%2")
                        .arg(device.vendorId, 4, 16, QLatin1Char('0'))
                        .arg(device.productId, 4, 16, QLatin1Char('0'));
    if (device.product[0] != '\0') {
        named += QLatin1Char(' ') + QString::fromUtf8(device.product);
    }
    if (device.driver[0] != '\0') {
        named += QStringLiteral(" (%1)").arg(QString::fromUtf8(device.driver));
    }
    return Texts::notAPlotter(named, QString::fromUtf8(device.path));
}

}  // namespace

UsbSurvey surveyOf(DevicePlaces places) {
    // Devices may come or go between the count and the copy: keep only the entries
    // the second call filled.
    return [places = std::move(places)] {
        const QByteArray sysfs = places.sysfsRoot.toUtf8();
        const QByteArray dev = places.devRoot.toUtf8();
        Devices devices(esp_survey_usb_serial(sysfs.constData(), dev.constData(), nullptr, 0));
        devices.resize(
            std::min(devices.size(), esp_survey_usb_serial(sysfs.constData(), dev.constData(),
                                                           devices.data(), devices.size())));
        return devices;
    };
}

CheckConnection::Watch CheckConnection::Watch::realTime() {
    return {[] {
                return std::chrono::duration_cast<std::chrono::milliseconds>(
                           std::chrono::steady_clock::now().time_since_epoch())
                    .count();
            },
            [](int ms) { QThread::msleep(static_cast<unsigned long>(ms)); }};
}

CheckConnection::CheckConnection(QString rule, UsbSurvey survey, std::optional<Watch> watch)
    : rule_(std::move(rule)), survey_(std::move(survey)), watch_(std::move(watch)) {}

bool CheckConnection::hasPort() const {
    const Devices devices = survey_();
    const esp_usb_serial_device* plotter = chosenPlotter(devices);
    return plotter != nullptr && plotter->path[0] != '\0';
}

Checklist CheckConnection::check() const {
    Checklist list;
    const Devices devices = survey_();
    const esp_usb_serial_device* plotter = chosenPlotter(devices);
    if (plotter == nullptr) {
        list.rows << CheckRow::failed(Texts::noPlotterSeen(), Texts::noPlotterFix());
    } else {
        checkPlotter(*plotter, rule_, list);
    }
    for (const esp_usb_serial_device& device : devices) {
        if (&device != plotter) {
            list.rows << CheckRow::note(isPlotter(device) ? otherPlotter(device)
                                                          : otherDevice(device));
        }
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
        flapping.sample(now, hasPort());
        if (flapping.keepsRestarting()) {
            return true;
        }
        watch_->pause(DeviceMonitor::kPollIntervalMs);
    }
    return false;
}

Outcome CheckConnection::run(const OperationSink& sink) {
    Checklist list = check();
    const bool seen = !list.rows.isEmpty() && list.rows.front().mark == CheckRow::Mark::ok;
    if (watch_ && seen && !list.ready()) {
        const bool restarting = keepsRestarting();
        list = check();
        if (restarting) {
            markRestarting(list, sink.audience);
        }
    }
    Outcome outcome = list.ready()
                          ? Outcome::success(Texts::portReady(*list.readyPort))
                          : Outcome::make(Outcome::Kind::notReady, Texts::noPlotterReady());
    outcome.cause = std::move(list);
    return outcome;
}
