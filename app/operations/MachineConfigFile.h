#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

#include "app/Backup.h"
#include "app/operations/Operation.h"

/// Reading the machine's own config.yaml, which always keeps a copy in the backups
/// folder, and writing it to a file: the steps that saving, comparing, the backup
/// before an upload and the save before an erase share.
namespace MachineConfigFile {

/// Which machine's file is read, and why.
struct Request {
    QString port;
    /// The name its copy is filed under; empty: `DeviceQueries::machineIdentity(port)`.
    QString machine;
    BackupReason reason = BackupReason::save;
};

/// The file as read, with its copy in the backups folder or why none was kept.
struct Read {
    QByteArray bytes;
    std::variant<Backup, QString> kept;
};

/// Enters `readingConfig`, asks the firmware for its version (recorded with the
/// copy; none when it does not answer), downloads config.yaml from the machine, the
/// library's progress and log lines going to `sink`, and keeps a copy in
/// `BackupIndex()`. The file, or the outcome of a failed read ("Could not read
/// config.yaml from the machine: " and the cause; failed with the library's code,
/// the cause as data; `portUnusable` when the port could not be opened and opening
/// it again tells why). Blocks the calling thread; one library job at a time.
std::variant<Read, Outcome> read(const Request& request, const OperationSink& sink);

/// The same for a firmware whose version is already known (none: it did not answer).
std::variant<Read, Outcome> read(const Request& request,
                                 const std::optional<QString>& firmwareVersion,
                                 const OperationSink& sink);

/// The save before an erase: reads `request`'s file as `read` does and insists on
/// its copy in the backups folder, whose place and size it logs. The copy, or the
/// read's outcome, or `notWritten` with why no copy was kept.
std::variant<Backup, Outcome> keep(const Request& request,
                                   const std::optional<QString>& firmwareVersion,
                                   const OperationSink& sink);

/// Logs, as an error, why no copy of `read` was kept, when none was.
void noteUnkept(const Read& read, const OperationSink& sink);

/// Writes `bytes` to `path` through a temporary file in the same folder that is
/// then renamed over it, so an existing file is replaced whole or left as it was;
/// the file is the owner's alone (0600).
/// Logs "Machine config saved to <absolute path> (<n> bytes)" and succeeds with
/// "Machine config saved", or ends `notWritten` and logs nothing.
Outcome write(const QString& path, const QByteArray& bytes, const OperationSink& sink);

}  // namespace MachineConfigFile
