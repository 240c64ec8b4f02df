#include "cli/LocalRun.h"

#include <cmath>

#include "app/OutcomeTable.h"
#include "app/operations/FlashFirmware.h"

LocalRun::LocalRun(const Command& command, CommandContext context, Reporter& reporter, bool verbose)
    : command_(command),
      context_(std::move(context)),
      reporter_(reporter),
      verbose_(verbose),
      runner_(Texts::Audience::commandLine, context_.portName) {
    connect(&runner_, &OperationRunner::phaseEntered, this, &LocalRun::enter);
    connect(&runner_, &OperationRunner::progressed, this, &LocalRun::progress);
    connect(&runner_, &OperationRunner::logged, this,
            [this](const LogEntry& entry) { deliver(entry); });
    connect(&runner_, &OperationRunner::libraryLogged, this, [this](const QString& line) {
        if (verbose_) {
            deliver(LogEntry::info(line));
        }
    });
    connect(&runner_, &OperationRunner::finished, this, &LocalRun::conclude);
}

void LocalRun::start() {
    std::shared_ptr<Operation> operation = command_.operation(context_);
    if (auto refused = operation->refusal()) {
        // Reported from the event loop, as every other ending is.
        QMetaObject::invokeMethod(
            this, [this, outcome = *refused] { conclude(outcome); }, Qt::QueuedConnection);
        return;
    }
    runner_.start(std::move(operation));
}

// A transfer whose size is known starts at 0 bytes; a download's size is not
// known, so it has no bar until the library reports.
void LocalRun::enter(Phase phase, qint64 bytes) {
    phase_ = phase;
    phaseBytes_ = bytes;
    if (bytes >= 0) {
        deliver(event::Progress{0.0f, QString(), 0});
    }
}

void LocalRun::progress(float fraction, const QString& stage) {
    qint64 bytes = -1;
    if (phase_ == Phase::writingFirmware) {
        bytes = std::llround(FlashFirmware::writtenShare(fraction) * phaseBytes_);
    } else if (phase_ == Phase::uploadingConfig) {
        bytes = std::llround(static_cast<double>(fraction) * phaseBytes_);
    }
    deliver(event::Progress{fraction, stage, bytes});
}

void LocalRun::deliver(const Event& event) {
    if (command_.writesFirmware() && std::holds_alternative<event::Progress>(event)) {
        writing_ = true;
    }
    reporter_.report(context_.portName, event);
}

void LocalRun::conclude(const Outcome& outcome) {
    writing_ = false;
    const int status = OutcomeTable::exitStatus(outcome, command_.convention());
    reporter_.report(context_.portName, event::Result{status, outcome});
    emit finished(status);
}
