#include "app/operations/CheckStartup.h"

#include <QDeadlineTimer>
#include <algorithm>

#include "app/StartupVerdict.h"

namespace {

constexpr int kPortReturnMs = 5000;

}  // namespace

Outcome startupOutcome(const FlasherBridge::StartupReport& report, StartupCause::Written written,
                       const std::optional<QString>& expected) {
    StartupCause cause;
    cause.verdict = report.verdict;
    cause.version = report.version;
    cause.expected = expected;
    cause.written = written;
    Outcome outcome =
        Outcome::make(StartupVerdict::kind(report.verdict), StartupVerdict::message(cause));
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
