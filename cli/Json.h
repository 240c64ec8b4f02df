#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "cli/Event.h"
#include "cli/Reporter.h"

/// One compact JSON object for `event`, without a line break: {"type":"log",
/// "line":…} (with "severity":"error" for an error, whose line is the one the
/// window shows, "ERROR: " and the message), {"type":"progress","fraction":…,
/// "stage":…,"bytes":…} or {"type":"result","code":…,"message":…,"kind":…} (the
/// code is the exit status, the kind `kindName`'s; with "library" for a library
/// failure's result code, "machine" for the machine's start after a write,
/// "restored" and "backup" for a job that keeps the settings, "evidence":[…] when
/// the outcome has any, and "backups":[…] when it lists backups, each as
/// `BackupIndex::toJson` gives it), and "port" when `port` is not empty.
QByteArray toJsonLine(const QString& port, const Event& event);

/// One compact JSON object for a row of a connection checklist: {"type":"check",
/// "mark":"ok"|"problem"|"info","line":…} with "fix":… when it has one.
QByteArray toJsonLine(const QString& port, const CheckRow& row);

/// The event of one such line; none for anything else.
std::optional<Event> eventFromJsonLine(const QByteArray& line);

/// Prints every event as one JSON line on standard output, a connection
/// checklist's rows each as one before the result; notices go to standard error as
/// plain text.
class JsonReporter : public Reporter {
  public:
    /// With `withPorts`, every object carries "port".
    explicit JsonReporter(bool withPorts) : withPorts_(withPorts) {}

    void report(const QString& port, const Event& event) override;
    void notice(const QString& text) override;

  private:
    bool withPorts_;
};
