#pragma once

#include <QObject>
#include <thread>

#include "cli/Command.h"
#include "cli/Reporter.h"

/// Runs one command in this process, for the plotter of its context or for none.
/// The command runs on a worker thread; its events reach the reporter on the main
/// thread in the order they happened.
class LocalRun : public QObject {
    Q_OBJECT

  public:
    /// `command` and `reporter` must outlive the run. With `verbose`, the library's
    /// own log lines are reported too.
    LocalRun(const Command& command, CommandContext context, Reporter& reporter, bool verbose);
    /// Waits for the command to end.
    ~LocalRun() override;

    void start();

    /// True while a command that writes firmware is writing: from its first
    /// progress report to its result.
    bool writing() const { return writing_; }

  signals:
    /// After the result has been reported.
    void finished(int exitCode);

  private:
    void deliver(const Event& event);

    const Command& command_;
    const CommandContext context_;
    Reporter& reporter_;
    const bool verbose_;
    bool writing_ = false;
    // Joined rather than waited for: a join also waits for the thread's exit
    // handlers, where the crypto library frees its per-thread state. A process that
    // ends between the two would leave that state behind.
    std::thread worker_;
};
