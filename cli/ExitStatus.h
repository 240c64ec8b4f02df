#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "app/Outcome.h"

/// teskal-flash's exit statuses: one table from an outcome to a status, with one
/// meaning per status, fixed so that scripts can rely on them. The library's
/// result codes 2 to 8 keep their numbers.
namespace ExitStatus {

inline constexpr int success = 0;
/// diff-config follows diff(1): 1 when the configurations differ.
inline constexpr int different = 1;
/// A child process that ran the command for one plotter ended abnormally.
inline constexpr int crashed = 70;
/// The command line could not be understood.
inline constexpr int usage = 64;
/// Stopped with Ctrl+C (128 + SIGINT).
inline constexpr int stopped = 130;

/// How a command's statuses read: as everywhere; as diff(1)'s, where 1 means
/// "different" and so no plotter is told as the configuration that could not be
/// read (8); or as a checklist's, where 1 means that no plotter is ready to use.
enum class Convention { table, diff, checklist };

/// The status an outcome ends the program with.
int of(const Outcome& outcome, Convention convention = Convention::table);

/// What `status` means, for --help ("the port could not be opened").
QString meaning(int status);

/// The --help lines "N  meaning" for the statuses a command can end with, in the
/// order given; `success` words what 0 means for the command.
QStringList help(const QList<int>& statuses, const QString& success,
                 Convention convention = Convention::table);

}  // namespace ExitStatus
