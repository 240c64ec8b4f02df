#pragma once

#include <QString>
#include <optional>

#include "app/Outcome.h"

/// Why a port cannot be used for a job, found without writing a byte to it: the
/// check every operation that opens a port makes before it starts, and again
/// after the library could not open the port. Blocking but short (a stat, the
/// account database, a scan of /proc); any thread.
namespace PortDiagnosis {

/// How far a check may go (see enum esp_port_probe).
enum class Probe {
    look,  ///< never opens the node
    open,  ///< also opens and closes it at once, which tells a device that has gone
};

/// The library's check of `port`, as Qt values.
PortCause check(const QString& port, Probe probe);

/// The `portUnusable` outcome for `cause`, in the window's words; none when the
/// cause is no problem.
std::optional<Outcome> unusable(const PortCause& cause);

/// Before a job: looks at `port` without opening it. The `portUnusable` outcome
/// when it cannot be used; none when nothing was found.
std::optional<Outcome> beforeJob(const QString& port);

/// After a job whose library call could not open `port` (`failure` failed with
/// code 2): opens it briefly to find why. The `portUnusable` outcome, still with
/// code 2, when a cause is found; otherwise, and for any other outcome, `failure`
/// as it was.
Outcome afterJob(const QString& port, Outcome failure);

}  // namespace PortDiagnosis
