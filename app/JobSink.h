#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>

#include "app/FlasherBridge.h"

/// Where a job reports while it runs; the window and the command line each bring
/// their own. Any handler may be empty. All are called on the job's thread, so a
/// receiver on the GUI thread posts what it gets there.
struct JobSink {
    FlasherBridge::ProgressHandler progress;  ///< fraction 0..1 and a stage text
    FlasherBridge::LogHandler log;            ///< one line for the user's log
    /// The library's own log lines, which the window shows only with Detailed Logging.
    FlasherBridge::LogHandler libraryLog = {};
    /// The job has passed its checks and now works on the machine; `bytes` is what
    /// it is about to write (the firmware job's flash plan, the configuration).
    std::function<void(qint64 bytes)> started = {};
    /// The job succeeded; the lines that close it follow through `log`.
    std::function<void()> succeeded = {};

    void reportProgress(float fraction, const QString& stage) const {
        if (progress) {
            progress(fraction, stage);
        }
    }
    void logLine(const QString& line) const {
        if (log) {
            log(line);
        }
    }
    void reportStarted(qint64 bytes) const {
        if (started) {
            started(bytes);
        }
    }
    void reportSucceeded() const {
        if (succeeded) {
            succeeded();
        }
    }
};
