#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "app/ResourceBundle.h"
#include "sim/PtyPlotter.h"

/// The plotters a run can reach: the connected ones, or the simulated ones that
/// --sim stands for.
namespace Plotters {

/// With `simulated` > 0 the names "sim1" to "simN"; otherwise the serial ports of
/// the connected plotters (USB 303a:1001), in the order the system lists them.
QStringList connected(int simulated);

/// Whether `name` is one of the simulated plotters "sim1" to "simN".
bool isSimulated(const QString& name, int simulated);

/// Starts a simulated plotter in this process, on a pseudo-terminal of its own.
/// It answers at once but for short pauses where a real one takes its time,
/// reports a running firmware, and its flash holds the partition table of
/// `resources` (when there is one), as a plotter that was updated before.
/// Throws std::system_error when no pseudo-terminal can be had.
std::unique_ptr<sim::PtyPlotter> startSimulated(const ResourceBundle& resources);

}  // namespace Plotters
