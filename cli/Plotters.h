#pragma once

#include <QString>
#include <QStringList>

/// The plotters a run can reach: the connected ones, or the simulated ones that
/// --sim stands for.
namespace Plotters {

/// With `simulated` > 0 the names "sim1" to "simN"; otherwise the serial ports of
/// the connected plotters (USB 303a:1001), in the order the system lists them.
QStringList connected(int simulated);

/// Whether `name` is one of the simulated plotters "sim1" to "simN".
bool isSimulated(const QString& name, int simulated);

}  // namespace Plotters
