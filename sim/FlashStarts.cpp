#include "sim/FlashStarts.h"

#include <functional>
#include <string_view>
#include <utility>

namespace sim::detail {

namespace {

uint64_t fingerprint(const std::vector<uint8_t>& flash) {
    return std::hash<std::string_view>{}(
        std::string_view(reinterpret_cast<const char*>(flash.data()), flash.size()));
}

}  // namespace

void FlashStarts::beforeWrite(const std::vector<uint8_t>& flash,
                              const std::optional<std::string>& version) {
    if (written_) {
        return;
    }
    written_ = true;
    known_.try_emplace(fingerprint(flash), Start{current_.startup, version});
}

FlashStarts::Start FlashStarts::onRestart(const std::vector<uint8_t>& flash, Startup& knob,
                                          std::optional<std::string> version, bool byHost) {
    const uint64_t key = fingerprint(flash);
    // The host's reset after a loader session that wrote nothing (a read of the
    // flash) restarts the chip as it ran; a start chosen for the next write waits.
    if (byHost && !written_) {
        known_.try_emplace(key, current_);
        return current_;
    }
    written_ = false;
    const auto known = known_.find(key);
    Start start{knob, std::move(version)};
    if (knob == knobSeen_ && known != known_.end()) {
        start = known->second;
    }
    known_.insert_or_assign(key, start);
    knobSeen_ = knob = start.startup;
    current_ = start;
    return start;
}

}  // namespace sim::detail
