#include "sim/PlotterLoopback.h"

namespace sim {

void connectLoopback(Plotter& plotter, SerialPort& port) {
    port.openLoopback(
        [&plotter](const uint8_t* data, size_t len) { return plotter.onHostBytes(data, len); },
        [&plotter](int timeoutMs) { return plotter.onIdle(timeoutMs); });
}

}  // namespace sim
