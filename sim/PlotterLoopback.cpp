#include "sim/Plotter.h"
#include "sim/PlotterImpl.h"

namespace sim {

void Plotter::connectLoopback(SerialPort& port) {
    // Bound to the implementation, which stays put when the plotter is moved.
    Impl* impl = impl_.get();
    port.openLoopback(
        [impl](const uint8_t* data, size_t len) { return impl->onHostBytes(data, len); },
        [impl](int timeoutMs) { return impl->onIdle(timeoutMs); });
}

}  // namespace sim
