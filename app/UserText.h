#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "esp_flasher.h"

/// The texts the window and the command line both show for what the library and
/// the machine report. Pure functions; any thread.
namespace UserText {

/// The user message for a library result code.
QString errorMessage(esp_error_t code);

/// The value of the first non-empty "meta:" line of a configuration file,
/// without blanks and quotes; none for invalid UTF-8 or no such line.
std::optional<QString> extractMetaVersion(const QByteArray& bytes);

/// " v" and the configuration's meta version, or nothing when it has none.
QString versionSuffix(const QByteArray& configData);

/// The version part of a console version reply: "FluidNC v3.7.8 (main-abc)"
/// gives "v3.7.8".
QString cleanFirmwareVersion(const QString& reply);

}  // namespace UserText
