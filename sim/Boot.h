#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "sim/Device.h"

namespace sim::detail {

/// What the chip prints when it restarts into its firmware, as its flash says
/// (`FlashStarts`: ROM banner, boot loader, the firmware's start-up messages, or a
/// crash again and again), and whether a firmware then runs. Scheduled on the device's
/// outbox; a reset into the loader cancels what has not been printed yet.
class Boot {
  public:
    explicit Boot(Device& device) : d_(device) {}

    /// The chip restarted at `restartNs` (now or a moment ago), reset by the host
    /// (`byHost`) or by its firmware. A firmware that comes up prints its messages at
    /// `readyNs` at the earliest.
    void start(int64_t restartNs, int64_t readyNs, bool byHost);

    /// True while a firmware runs and answers its console; the one that runs before
    /// the first restart does.
    bool firmwareRuns() const { return runs_; }

    /// The "[MSG:" lines of the running firmware's last start-up, for "$SS".
    std::string messages() const;

  private:
    void startHealthy(int64_t restartNs, int64_t readyNs, bool byHost);
    void cycle(int64_t atNs, bool first, bool byHost);
    void startNoApplication(int64_t restartNs, bool byHost);
    void flood();
    void print(int64_t atNs, std::string text);
    std::string version() const;

    Device& d_;
    Startup startup_ = Startup::Healthy;
    bool runs_ = true;
    std::optional<std::string> messages_;  ///< absent before the first restart
};

}  // namespace sim::detail
