#pragma once

#include <QString>

#include "cli/Event.h"

/// Where the events of every plotter go: the terminal, plain lines or JSON.
/// Used on the main thread only.
class Reporter {
  public:
    virtual ~Reporter() = default;

    /// An event of the plotter on `port` (as listed or given, "sim2" or
    /// "/dev/ttyACM0"; empty for a command without a port).
    virtual void report(const QString& port, const Event& event) = 0;

    /// A message about the run itself, such as the Ctrl+C warning; to standard error.
    virtual void notice(const QString& text) = 0;

    /// Completes the output: a terminal's progress lines are drawn a last time.
    virtual void close() {}
};
