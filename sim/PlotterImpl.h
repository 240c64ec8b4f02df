#pragma once

#include "sim/Console.h"
#include "sim/Device.h"
#include "sim/Loader.h"
#include "sim/Plotter.h"

namespace sim {

/// The plotter's parts around their shared device state; it routes host bytes to
/// the part that owns the current mode and performs what a mode change implies.
struct Plotter::Impl {
    explicit Impl(Config config) : device(std::move(config)), loader(device), console(device) {}

    std::vector<uint8_t> onHostBytes(const uint8_t* data, size_t len);
    std::vector<uint8_t> onIdle(int timeoutMs);
    /// Scheduled output due at `nowNs`; performs a mode change that it brought.
    std::vector<uint8_t> takeDue(int64_t nowNs);
    void enter(Mode from, Mode to);

    detail::Device device;
    detail::Loader loader;
    detail::Console console;
};

}  // namespace sim
