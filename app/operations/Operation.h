#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>
#include <optional>

#include "app/LogEntry.h"
#include "app/Outcome.h"
#include "app/texts/Audience.h"

/// The stages of an operation that the window shows as states of their own.
enum class Phase {
    writingFirmware,  ///< the flashing job starts; its bytes are the flash plan's
    firmwareWritten,  ///< the flashing job succeeded
    uploadingConfig,  ///< a configuration upload starts; its bytes are the file's
    configUploaded,   ///< the upload succeeded and the machine restarts
    readingConfig,    ///< the machine's config.yaml is being read; its size is not known
    checkingStartup,  ///< the machine restarts after a write and is listened to
    readingFlash,     ///< the machine's whole flash is being read; its size is not known yet
};

/// Where an operation reports while it runs, and who reads it. Every handler may be
/// empty; all are called on the operation's thread, so a receiver elsewhere posts
/// what it gets.
struct OperationSink {
    /// In whose words the operation's lines and outcome are: the window's (its
    /// menus) or teskal-flash's (its commands). Set by the front end that presents
    /// them, never by an operation.
    Texts::Audience audience = Texts::Audience::window;
    /// teskal-flash's name for the plotter's port ("sim2", "/dev/ttyACM0"), for the
    /// commands a line names; empty in the window.
    QString portName;

    /// The operation enters `phase`; `bytes` is what it is about to transfer, or -1.
    std::function<void(Phase phase, qint64 bytes)> phase;
    /// A fraction 0..1 and a stage text, as the library reports them.
    std::function<void(float fraction, const QString& stage)> progress;
    /// A line of the owner's log.
    std::function<void(const LogEntry& entry)> log;
    /// One of the library's own log lines (the window shows them with Detailed Logging).
    /// They stay in English in every language: they are the machine's transcript, which
    /// support reads, as the saved log is.
    std::function<void(const QString& line)> libraryLog;

    void enter(Phase entered, qint64 bytes = -1) const {
        if (phase) {
            phase(entered, bytes);
        }
    }
    void info(const QString& line) const {
        if (log) {
            log(LogEntry::info(line));
        }
    }
    void error(const QString& line) const {
        if (log) {
            log(LogEntry::error(line));
        }
    }
};

/// One thing the owner asks for: writing firmware, uploading a configuration, a
/// question to the machine, a check of a file. The window and teskal-flash run the
/// same classes, and present the one `Outcome` each ends with.
///
/// Build it with its inputs on the caller's thread, ask `refusal` there, then `run`
/// it once (usually on `OperationRunner`'s worker).
class Operation {
  public:
    virtual ~Operation() = default;

    /// What stops the operation before it starts, checked without the machine and
    /// without logging (an unreadable or invalid file, for instance); none when it
    /// may run. It may keep what it read for `run`, which checks by itself when
    /// this was not asked. Quick enough for the GUI thread.
    virtual std::optional<Outcome> refusal() { return std::nullopt; }

    /// Does the work and reports through `sink`. Blocks the calling thread for as
    /// long as the machine takes; at most one operation that reaches the library
    /// may run at a time.
    virtual Outcome run(const OperationSink& sink) = 0;
};
