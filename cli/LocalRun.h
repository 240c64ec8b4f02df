#pragma once

#include <QObject>
#include <memory>

#include "app/operations/OperationRunner.h"
#include "cli/Command.h"
#include "cli/Reporter.h"

/// Runs one command's operation in this process, for the plotter of its context or
/// for none, on the application's runner; its reports reach the reporter on the
/// main thread in the order they happened, the result last.
class LocalRun : public QObject {
    Q_OBJECT

  public:
    /// `command` and `reporter` must outlive the run. With `verbose`, the library's
    /// own log lines are reported too.
    LocalRun(const Command& command, CommandContext context, Reporter& reporter, bool verbose);

    /// Starts the operation, or ends at once with its refusal.
    void start();

    /// True while a command that writes firmware is writing: from its first
    /// progress report to its result.
    bool writing() const { return writing_; }

  signals:
    /// After the result has been reported.
    void finished(int exitStatus);

  private:
    void enter(Phase phase, qint64 bytes);
    void progress(float fraction, const QString& stage);
    void deliver(const Event& event);
    void conclude(const Outcome& outcome);

    const Command& command_;
    const CommandContext context_;
    Reporter& reporter_;
    const bool verbose_;
    bool writing_ = false;
    Phase phase_ = Phase::readingConfig;
    qint64 phaseBytes_ = -1;
    OperationRunner runner_;
};
