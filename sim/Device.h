#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sim/Config.h"
#include "sim/FlashStarts.h"
#include "sim/Outbox.h"

namespace sim::detail {

/// State shared by the simulated chip's parts (loader, console, XModem receiver).
/// A part changes `mode` to hand the byte stream over; the plotter performs what
/// the change implies (a reset into ROM, a restart into the firmware).
struct Device {
    explicit Device(Config cfg)
        : config(std::move(cfg)), flash(config.flashSize, 0xFF), starts(config.startup) {}

    Config config;
    Mode mode = Mode::Console;
    Outbox outbox;
    std::vector<std::string> transcript;
    std::vector<uint8_t> flash;
    std::map<uint32_t, std::vector<uint8_t>> ram;
    std::map<std::string, std::vector<uint8_t>> files;
    /// The whole chip was erased: the file system is empty, without even the
    /// config.yaml the plotter came with.
    bool fileSystemErased = false;

    /// The host is done with the loader since the last reset into ROM (FLASH_END, or an
    /// acknowledged read that ended): console text now means it restarted the chip.
    bool loaderDone = false;
    bool appFlashed = false;  ///< FLASH_END, and a FLASH_BEGIN over the application before it
    int64_t loaderDoneNs = 0;
    int64_t restartNs = 0;  ///< when the chip runs its firmware after the host is done
    /// What "$I" reports when not `Config::versionReport`: the updated application's
    /// version, or another one for `Startup::OtherVersion`.
    std::optional<std::string> reportedVersion;
    bool hung = false;  ///< the chip hangs: it takes no more bytes from the line
    FlashStarts starts;

    /// The host is about to change the flash (an erase or a region's FLASH_BEGIN).
    void beforeFlashChange() { starts.beforeWrite(flash, reportedVersion); }

    void note(std::string entry) { transcript.push_back(std::move(entry)); }

    /// The line goes away: nothing more is said, ever.
    void loseLine() {
        mode = Mode::Gone;
        outbox.clear();
    }
};

}  // namespace sim::detail
