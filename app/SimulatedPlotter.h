#pragma once

#include <memory>

#include "app/ResourceBundle.h"
#include "app/operations/CheckConnection.h"
#include "sim/Config.h"
#include "sim/PtyPlotter.h"

/// How quickly a simulated plotter answers.
enum class SimulatedPace {
    instant,  ///< at once: tests
    brisk,    ///< short pauses where a real one takes its time: teskal-flash --sim
    visible,  ///< each stage long enough to be seen in the window: the demo program
};

/// The version a plotter of teskal-flash --sim and of the demo runs before it is
/// updated: an older release of the product's own line.
inline constexpr const char* kSimulatedOlderRelease = "FluidNC v2.10.5 (sim)";

/// Starts a simulated plotter on a pseudo-terminal of its own, the one way the
/// simulated-plotter program, teskal-flash --sim and the application's tests make
/// one. It starts from `config` (a healthy plotter by default) with the pauses of
/// `pace`; its flash holds the bootloader and the partition table of `resources`
/// when they have them, as a plotter that was updated before. Throws
/// std::system_error when no pseudo-terminal can be had. Once updated with the
/// bundled development image it reports the bundled firmware's version, for which
/// that image stands in; with another image, that image's own version; unless
/// `config` names another.
std::unique_ptr<sim::PtyPlotter> startSimulatedPlotter(const ResourceBundle& resources,
                                                       SimulatedPace pace, sim::Config config = {});

/// What the Connection Check sees where only a simulated plotter is offered: that
/// plotter, with the plotter's USB ids, on its pseudo-terminal `path`, the port the
/// kernel's pty driver made.
UsbSurvey simulatedSurvey(const std::string& path);
