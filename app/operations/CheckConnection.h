#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>
#include <optional>
#include <vector>

#include "app/Checklist.h"
#include "app/operations/Operation.h"
#include "esp_flasher.h"

/// What is attached over USB that matters for finding the plotter's port, as
/// `esp_survey_usb_serial` lists it. The seam through which a simulated plotter is
/// seen as the plotter.
using UsbSurvey = std::function<std::vector<esp_usb_serial_device>()>;

/// Where the system describes its devices and makes their nodes; tests give a
/// fake tree.
struct DevicePlaces {
    QString sysfsRoot = QStringLiteral("/sys");
    QString devRoot = QStringLiteral("/dev");
};

/// The system's own survey of the devices under `places`. Reads sysfs only; opens
/// no port.
UsbSurvey surveyOf(DevicePlaces places = {});

/// Finds out why the plotter cannot be reached, step by step: whether it is seen on
/// USB, whether a serial port was made for it, whether this user may open it and
/// whether another program holds it; and which other USB serial devices are there.
/// The window's Connection Check and `teskal-flash doctor` present its checklist.
class CheckConnection : public Operation {
  public:
    /// How `run` watches a plotter that is on USB without a usable port, for a port
    /// that comes and goes (see `PortFlapping`): it looks again after every `pause`
    /// of `DeviceMonitor::kPollIntervalMs` until `nowMs`, a monotonic clock, has
    /// passed `PortFlapping::kWindowMs`.
    struct Watch {
        std::function<qint64()> nowMs;
        std::function<void(int ms)> pause;

        /// The steady clock and a sleep of the calling thread.
        static Watch realTime();
    };

    /// `rule` says, in a permission problem's fix, where the permission rule comes
    /// from (for example "button below", or the command that installs it); `survey`
    /// lists the devices. With `watch`, `run` watches a port that is not usable yet.
    explicit CheckConnection(QString rule, UsbSurvey survey = surveyOf(),
                             std::optional<Watch> watch = std::nullopt);

    /// One pass of the checks. Reads sysfs, /proc and the account database; opens no
    /// port and sends nothing, so it may run on the GUI thread once a second.
    Checklist check() const;

    /// Succeeds with "Ready: the plotter on PATH can be used." when a plotter can be
    /// used, else ends `notReady` with "No plotter is ready to use."; the checklist is
    /// the outcome's cause either way. Logs nothing. With a watch, a plotter on USB
    /// without a usable port is watched for up to 10 s; a port that vanished and came
    /// back more than twice puts "The plotter keeps restarting." and its fix, in the
    /// sink's audience's words, first.
    Outcome run(const OperationSink& sink) override;

    /// Puts "The plotter keeps restarting." and its fix at the head of `list`; a
    /// port there in one look and gone in the next is no ready port.
    static void markRestarting(Checklist& list, Texts::Audience audience);

  private:
    bool keepsRestarting() const;
    bool hasPort() const;

    QString rule_;
    UsbSurvey survey_;
    std::optional<Watch> watch_;
};
