#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// Versions read out of texts that come from elsewhere. Pure functions; any thread.
namespace VersionText {

/// The value of the first non-empty "meta:" line of a configuration file,
/// without blanks and quotes; none for invalid UTF-8 or no such line.
std::optional<QString> metaVersion(const QByteArray& bytes);

/// The version part of a console version reply: "FluidNC v3.7.8 (main-abc)"
/// gives "v3.7.8".
QString cleanFirmwareVersion(const QString& reply);

/// `version` in the style the window's firmware line shows ("2.10.6"): without the
/// "v" that firmware puts before a number ("v3.7.8" gives "3.7.8").
QString shown(const QString& version);

}  // namespace VersionText
