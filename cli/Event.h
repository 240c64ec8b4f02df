#pragma once

#include <QString>
#include <QtGlobal>
#include <variant>

#include "app/LogEntry.h"
#include "app/Outcome.h"

/// What a command reports for one plotter, in the order it happens.
namespace event {

struct Progress {
    float fraction = 0.0f;  ///< as the library reports it, 0..1
    QString stage;          ///< the library's stage text; empty when it gave none
    qint64 bytes = 0;       ///< bytes transferred so far; -1 when not told
};

/// The last event of every command: its outcome and the status it ends with.
struct Result {
    int status = 0;
    Outcome outcome;
};

}  // namespace event

using Event = std::variant<LogEntry, event::Progress, event::Result>;
