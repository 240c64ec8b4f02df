#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "app/Outcome.h"
#include "app/texts/Audience.h"

/// The one table keyed by outcome kind (and, for a library failure, by the
/// library's result code): the owner's message where the kind tells it, what to
/// do next, the exit status teskal-flash ends with and what that status means. The
/// window's result banner and notification, teskal-flash's output and every
/// command's --help read it. Each status has one meaning, fixed so that scripts can
/// rely on it; the library's result codes 2 to 8 keep their numbers. Pure
/// functions; any thread.
namespace OutcomeTable {

inline constexpr int success = 0;
/// diff-config follows diff(1): 1 when the configurations differ.
inline constexpr int different = 1;
/// The command line could not be understood.
inline constexpr int usage = 64;
/// A child process that ran the command for one plotter ended abnormally.
inline constexpr int crashed = 70;
/// Stopped with Ctrl+C (128 + SIGINT).
inline constexpr int stopped = 130;

/// How a command's statuses read: as everywhere; as diff(1)'s, where 1 means
/// "different" and so no plotter is told as the configuration that could not be
/// read (8); or as a checklist's, where 1 means that no plotter is ready to use.
enum class Convention { table, diff, checklist };

/// The message of a library result code ("Could not open serial port. Is another
/// app using it?"); "Unknown error (code N)" for a code the table does not know.
QString libraryMessage(esp_error_t code);

/// What to do next about `outcome`, in `audience`'s words; empty when there is
/// nothing to add to its message. After a write, from the machine's start.
QString nextStep(const Outcome& outcome, Texts::Audience audience);

/// The status teskal-flash ends with for `outcome`.
int exitStatus(const Outcome& outcome, Convention convention = Convention::table);

/// What `status` means, for --help ("the port could not be opened").
QString meaning(int status);

/// The --help lines "N  meaning" for the statuses a command can end with, in the
/// order given; `successMeaning` words what 0 means for the command.
QStringList help(const QList<int>& statuses, const QString& successMeaning,
                 Convention convention = Convention::table);

}  // namespace OutcomeTable
