#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sim/Config.h"
#include "sim/Outbox.h"

namespace sim::detail {

/// State shared by the simulated chip's parts (loader, console, XModem receiver).
/// A part changes `mode` to hand the byte stream over; the plotter performs what
/// the change implies (a reset into ROM, a restart into the firmware).
struct Device {
    explicit Device(Config cfg) : config(std::move(cfg)), flash(config.flashSize, 0xFF) {}

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

    bool flashEnded = false;  ///< FLASH_END seen since the last reset into ROM
    bool appFlashed = false;  ///< ... and a FLASH_BEGIN at the application's offset before it
    int64_t flashEndNs = 0;
    int64_t restartNs = 0;  ///< when the chip runs its firmware after the last FLASH_END
    /// What "$I" reports when not `Config::versionReport`: the updated application's
    /// version, or another one for `Startup::OtherVersion`.
    std::optional<std::string> reportedVersion;
    bool hung = false;  ///< the chip hangs: it takes no more bytes from the line

    void note(std::string entry) { transcript.push_back(std::move(entry)); }

    /// The line goes away: nothing more is said, ever.
    void loseLine() {
        mode = Mode::Gone;
        outbox.clear();
    }
};

}  // namespace sim::detail
