#pragma once

#include <functional>
#include <memory>
#include <string>

#include "sim/Plotter.h"

namespace sim {

/// A `Plotter` behind a pseudo-terminal, served by its own thread, so that the
/// POSIX serial back end runs for real against it.
///
/// The slave side is set raw at creation and held open for the simulator's life, so
/// hosts may open and close `path()` repeatedly. Scheduled output is written in
/// real time as separate writes. Needs the real monotonic clock. All access to the
/// plotter happens under one lock; the public operations are thread-safe.
class PtyPlotter {
  public:
    /// Opens the pseudo-terminal and starts the thread; throws std::system_error
    /// when no pseudo-terminal can be had.
    explicit PtyPlotter(Config config = {});

    /// Stops the thread and closes both sides.
    ~PtyPlotter();

    PtyPlotter(const PtyPlotter&) = delete;
    PtyPlotter& operator=(const PtyPlotter&) = delete;

    /// The slave device path to hand to `SerialPort::open`.
    const std::string& path() const;

    /// The line goes away now: both sides close, reads on the host's descriptor
    /// fail and the path no longer opens. Also happens by itself when the plotter
    /// enters `Mode::Gone`. Returns once done.
    void unplug();

    /// Runs `fn` on the plotter under the lock (read-only look).
    void inspect(const std::function<void(const Plotter&)>& fn) const;

    /// Runs `fn` on the plotter under the lock, for example to change its config.
    void modify(const std::function<void(Plotter&)>& fn);

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace sim
