#pragma once

#include <QtGlobal>
#include <deque>
#include <optional>

/// Tells a plotter that keeps restarting from its port: a chip that resets over and
/// over takes its USB serial port down with it at every restart. Fed the presence
/// of the plotter's port as it is looked at, with the time of each look, it says
/// when the port vanished and came back more than twice within the last 10 s.
///
/// A plain value: no clock, no I/O. Samples must come in time order.
class PortFlapping {
  public:
    static constexpr qint64 kWindowMs = 10000;
    /// Returns within the window that are still no flapping.
    static constexpr int kTolerated = 2;

    /// The port was (`present`) or was not there at `atMs` (any monotonic clock).
    void sample(qint64 atMs, bool present);

    /// True when more than `kTolerated` returns fall within `kWindowMs` of the
    /// latest sample.
    bool keepsRestarting() const;

  private:
    std::optional<bool> present_;
    std::deque<qint64> returns_;
};
