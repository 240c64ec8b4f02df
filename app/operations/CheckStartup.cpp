#include "app/operations/CheckStartup.h"

#include <QDeadlineTimer>
#include <algorithm>

#include "app/Texts.h"

namespace {

constexpr int kPortReturnMs = 5000;

Outcome::Kind kindOf(int verdict) {
    switch (verdict) {
        case ESP_STARTUP_RUNNING:
            return Outcome::Kind::succeeded;
        case ESP_STARTUP_BOOT_LOOP:
        case ESP_STARTUP_PANIC:
        case ESP_STARTUP_NO_APP:
        case ESP_STARTUP_BROWNOUT:
            return Outcome::Kind::notStarting;
        case ESP_STARTUP_CONFIG_ERROR:
            return Outcome::Kind::configRejected;
        default:
            return Outcome::Kind::notConfirmed;
    }
}

}  // namespace

Outcome startupOutcome(const FlasherBridge::StartupReport& report, StartupCause::Written written,
                       const std::optional<QString>& expected) {
    StartupCause cause{report.verdict, report.version, expected, written};
    Outcome outcome = Outcome::make(kindOf(report.verdict), Texts::startupMessage(cause));
    outcome.cause = cause;
    outcome.evidence = report.evidence;
    return outcome;
}

CheckStartup::CheckStartup(PlotterPort port, StartupCause::Written written,
                           std::optional<QString> expected, int timeoutMs)
    : port_(std::move(port)),
      written_(written),
      expected_(std::move(expected)),
      timeoutMs_(timeoutMs) {}

Outcome CheckStartup::run(const OperationSink& sink) {
    sink.enter(Phase::checkingStartup);
    const QDeadlineTimer deadline(timeoutMs_);
    FlasherBridge::StartupReport report;
    if (const auto path = port_.findAgain(std::min<int>(kPortReturnMs, timeoutMs_))) {
        FlasherBridge::checkStartup(*path, expected_,
                                    static_cast<int>(std::max<qint64>(0, deadline.remainingTime())),
                                    &report, sink.libraryLog);
    }
    return startupOutcome(report, written_, expected_);
}
