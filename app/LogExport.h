#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

/// The log as a file for support: a short header naming the program, the shipped
/// firmware, the system and the port, then a blank line and the log lines.
/// Every function may be called from any thread.
namespace LogExport {

/// "teskal-updater-log-yyyyMMdd-HHmmss.txt", from `time`.
QString defaultFileName(const QDateTime& time);

/// The file's text: one header item a line, a blank line, then `lines`, each
/// ending in "\n". `port` none is written as "none"; `time` is the saving time.
QString document(const QStringList& lines, const std::optional<QString>& port,
                 const QDateTime& time);

/// Writes `text` as UTF-8 to `path`; an existing file is replaced only once the
/// new one is complete. Returns the reason when it could not be written.
std::optional<QString> save(const QString& path, const QString& text);

}  // namespace LogExport
