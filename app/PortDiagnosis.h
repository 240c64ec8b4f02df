#pragma once

#include <QString>
#include <optional>

#include "app/Outcome.h"
#include "app/texts/Audience.h"

/// Why a port cannot be used for a job, found without writing a byte to it: the
/// check every operation that opens a port makes before it starts, and again
/// after the library could not open the port; and the words for what it found.
/// Blocking but short (a stat, the account database, a scan of /proc); any thread.
namespace PortDiagnosis {

/// How far a check may go (see enum esp_port_probe).
enum class Probe {
    look,  ///< never opens the node
    open,  ///< also opens and closes it at once, which tells a device that has gone
};

/// The library's check of `port`, as Qt values.
PortCause check(const QString& port, Probe probe);

/// Whether joining the node's group lets the user open it: the node's mode lets
/// its group read and write, and the group is not root's.
bool groupWouldHelp(const PortCause& cause);

/// What is wrong, one sentence: "Permission denied on PATH (group G).", "PATH does
/// not exist.", "PATH is in use by NAME (pid N).", …
QString problem(const PortCause& cause);

/// What fixes it, one or two sentences; `rule` says where the permission rule
/// comes from (see `ruleFor`). Empty for a port that can be used.
QString fix(const PortCause& cause, const QString& rule);

/// Where `audience` finds the permission rule: the window's Connection Check, or on
/// the command line the one command that installs it.
QString ruleFor(Texts::Audience audience);

/// The `portUnusable` outcome for `cause`: the problem and its fix in `audience`'s
/// words, the cause as data; none when the cause is no problem.
std::optional<Outcome> unusable(const PortCause& cause,
                                Texts::Audience audience = Texts::Audience::window);

/// Before a job: looks at `port` without opening it. The `portUnusable` outcome
/// when it cannot be used; none when nothing was found.
std::optional<Outcome> beforeJob(const QString& port,
                                 Texts::Audience audience = Texts::Audience::window);

/// After a job whose library call could not open `port` (`failure` failed with
/// code 2): opens it briefly to find why. The `portUnusable` outcome, still with
/// code 2, when a cause is found; otherwise, and for any other outcome, `failure`
/// as it was.
Outcome afterJob(const QString& port, Outcome failure,
                 Texts::Audience audience = Texts::Audience::window);

}  // namespace PortDiagnosis
