#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

#include "app/Outcome.h"

/// Largest machine configuration accepted for upload, in bytes (1 MiB).
inline constexpr qsizetype kMaxMachineConfigSize = 1024 * 1024;

/// Why `bytes` cannot be uploaded as a machine configuration, in plain words that
/// read after "is not a valid machine configuration: ": "larger than 1 MiB";
/// "line L, column C: MESSAGE" (counted from 1) for text that is not UTF-8 or
/// not YAML; or a top level that is not a mapping of settings. None when the
/// bytes are a valid configuration. Firmware that cannot read its configuration
/// starts with default settings, so such a file must never reach the machine.
/// Pure; any thread.
std::optional<QString> machineConfigProblem(const QByteArray& bytes);

/// Checks the configuration file at `path` as an upload checks it: read whole,
/// then `machineConfigProblem`. Its bytes, or the refusal: "Could not read file:
/// NAME", "NAME is not a valid machine configuration: PROBLEM". Needs no machine;
/// quick enough for the GUI thread.
std::variant<QByteArray, Outcome> checkConfigFile(const QString& path);

/// The same for the bytes of the file at `path`, read already.
std::variant<QByteArray, Outcome> checkConfigBytes(const QString& path, const QByteArray& bytes);
