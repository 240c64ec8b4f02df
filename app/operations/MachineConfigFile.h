#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

#include "app/operations/Operation.h"

/// Reading the machine's own config.yaml and keeping it in a file: the steps that
/// saving, comparing and the backup before an upload share.
namespace MachineConfigFile {

/// Enters `readingConfig` and downloads config.yaml from the machine on `port`, the
/// library's progress and log lines going to `sink`. The file's bytes, or the
/// outcome of a failed read ("Could not read config.yaml from the machine: " and
/// the cause; failed with the library's code, the cause as data; `portUnusable`
/// when the port could not be opened and opening it again tells why). Blocks the
/// calling thread; one library job at a time.
std::variant<QByteArray, Outcome> read(const QString& port, const OperationSink& sink);

/// Writes `bytes` to `path` through a temporary file in the same folder that is
/// then renamed over it, so an existing file is replaced whole or left as it was.
/// Logs "Machine config saved to <absolute path> (<n> bytes)" and succeeds with
/// "Machine config saved", or ends `notWritten` and logs nothing.
Outcome write(const QString& path, const QByteArray& bytes, const OperationSink& sink);

}  // namespace MachineConfigFile
