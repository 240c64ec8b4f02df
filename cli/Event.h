#pragma once

#include <QString>
#include <QtGlobal>
#include <variant>

/// What a command reports for one plotter, in the order it happens.
namespace event {

/// A line of the log, as the window's log shows it.
struct Log {
    QString line;
};

/// A refusal or failure along the way, in the window's words, without "ERROR: ".
struct Error {
    QString message;
};

struct Progress {
    float fraction = 0.0f;  ///< as the library reports it, 0..1
    QString stage;          ///< the library's stage text; empty when it gave none
    qint64 bytes = 0;       ///< bytes written to the machine so far; -1 when not told
};

/// The last event of every command.
struct Result {
    int code = 0;     ///< the exit status
    QString message;  ///< what it came to; the error message when `failed`
    bool failed = false;
};

}  // namespace event

using Event = std::variant<event::Log, event::Error, event::Progress, event::Result>;
