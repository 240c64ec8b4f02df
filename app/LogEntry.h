#pragma once

#include <QList>
#include <QString>

/// One line of the log with its severity as data. A plain value.
struct LogEntry {
    enum class Severity { info, error };

    Severity severity = Severity::info;
    /// The text, without the "ERROR: " an error is shown with.
    QString text;

    static LogEntry info(QString text) { return {Severity::info, std::move(text)}; }
    static LogEntry error(QString text) { return {Severity::error, std::move(text)}; }

    bool isError() const { return severity == Severity::error; }

    /// The line as the log shows it: an error's text after "ERROR: ". The one place
    /// where that prefix is composed.
    QString line() const;
    /// The entry of `severity` that `line()` shows as `line`, for a log that was
    /// written out with each line's severity beside it.
    static LogEntry fromLine(Severity severity, const QString& line);

    friend bool operator==(const LogEntry&, const LogEntry&) = default;
};

using LogEntries = QList<LogEntry>;
