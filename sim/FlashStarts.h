#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "sim/Startup.h"

namespace sim::detail {

/// How the chip starts belongs to what its flash holds: this remembers, per
/// fingerprint of the whole flash, the start-up the chip had the last time it
/// restarted from it and the version it then reported, so that writing an earlier
/// flash back brings back the start it had then.
class FlashStarts {
  public:
    struct Start {
        Startup startup = Startup::Healthy;
        std::optional<std::string> version;  ///< what "$I" reports, when not the configured one
    };

    /// `knob`: `Config::startup` when the plotter was made.
    explicit FlashStarts(Startup knob) : knobSeen_(knob) {}

    /// Before the first change to the flash since the last restart: the content it
    /// had keeps the start the chip had from it (the firmware that runs before the
    /// first restart is healthy) unless a restart from it was remembered already.
    void beforeWrite(const std::vector<uint8_t>& flash, const std::optional<std::string>& version);

    /// At a restart into the firmware, how the chip starts from `flash`: after the
    /// host's reset (`byHost`) that wrote nothing, as it ran (`knob` waits for a
    /// write); else as
    /// `knob` (`Config::startup`) says when it changed since the last restart or the
    /// flash is one it has not started from, otherwise as it did from this flash
    /// before. Remembers the result and sets `knob` to it. `version`: what "$I" would
    /// report by the flash's new contents.
    Start onRestart(const std::vector<uint8_t>& flash, Startup& knob,
                    std::optional<std::string> version, bool byHost);

    /// The start-up of the last restart; healthy before the first.
    Startup current() const { return current_.startup; }

  private:
    std::unordered_map<uint64_t, Start> known_;
    Startup knobSeen_;
    Start current_;
    bool written_ = false;  ///< the flash changed since the last restart
};

}  // namespace sim::detail
