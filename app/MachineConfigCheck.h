#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

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
