#pragma once

#include "serial/SerialPort.h"
#include "sim/Plotter.h"

/// The simulated plotter behind the core's loopback back end. Kept out of the
/// simulator library so that programs which run the simulator on a
/// pseudo-terminal carry no copy of the core: it lives in `tfu_sim_loopback`,
/// which links the core, for tests.
namespace sim {

/// Opens `port` as a loopback bound to `plotter` (handler and idle source). The
/// plotter must stay where it is, neither moved nor destroyed, while the port is
/// in use; both are used on the caller's thread only.
void connectLoopback(Plotter& plotter, SerialPort& port);

}  // namespace sim
