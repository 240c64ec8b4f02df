#pragma once

#include <QString>

#include "app/FlasherBridge.h"

/// Where a job reports while it runs; the window and the command line each bring
/// their own. Either handler may be empty. Both are called on the job's thread, so
/// a receiver on the GUI thread posts what it gets there.
struct JobSink {
    FlasherBridge::ProgressHandler progress;  ///< fraction 0..1 and a stage text
    FlasherBridge::LogHandler log;            ///< one line for the user's log

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
};
