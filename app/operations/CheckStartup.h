#pragma once

#include <QString>
#include <optional>

#include "app/FlasherBridge.h"
#include "app/PlotterPort.h"
#include "app/operations/Operation.h"

/// Tells how the machine started after a write, from what it prints: finds its
/// port again (it may vanish and come back while the chip restarts), listens, asks
/// the firmware to replay its start-up messages and for its version, and judges.
/// Sends nothing but "$SS" and "$I".
class CheckStartup : public Operation {
  public:
    /// `written`: what was written before the restart; `expected`: the version
    /// that should run, when known; `timeoutMs`: the whole check, the wait for the
    /// port included (at most 5 s of it).
    CheckStartup(PlotterPort port, StartupCause::Written written, std::optional<QString> expected,
                 int timeoutMs);

    /// Enters `checkingStartup` and ends with `startupOutcome` of what it heard; a
    /// port that did not come back is a machine that did not answer.
    Outcome run(const OperationSink& sink) override;

  private:
    PlotterPort port_;
    StartupCause::Written written_;
    std::optional<QString> expected_;
    int timeoutMs_;
};

/// What a start-up report comes to: a success for a running machine ("Firmware
/// 2.10.6 installed and running."), else `notConfirmed`, `notStarting` or
/// `configRejected`, the report's lines as evidence and a `StartupCause` always.
Outcome startupOutcome(const FlasherBridge::StartupReport& report, StartupCause::Written written,
                       const std::optional<QString>& expected);
