#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace sim::detail {

/// What the simulated device says: the reply to the host's current write, and
/// output scheduled for later on the monotonic clock.
class Outbox {
  public:
    /// Makes the bytes of one scheduled output when it falls due; may return
    /// nothing when the situation changed meanwhile.
    using Producer = std::function<std::vector<uint8_t>()>;

    /// Sends `bytes` with the reply to the current write, or `delayMs` from now
    /// when that is positive.
    void send(std::vector<uint8_t> bytes, int delayMs = 0);

    /// Runs `producer` `delayMs` from now; outputs due at the same moment keep the
    /// order in which they were scheduled.
    void schedule(int delayMs, Producer producer);

    /// Runs `producer` at `dueNs` on the monotonic clock (at once when that has passed).
    void scheduleAt(int64_t dueNs, Producer producer);

    /// Removes and returns the reply collected so far.
    std::vector<uint8_t> takeReply();

    std::optional<int64_t> nextDueNs() const;

    /// Runs scheduled producers due at `nowNs`, earliest first, until one has
    /// something to say, and returns that; empty when nothing due had anything.
    std::vector<uint8_t> takeDue(int64_t nowNs);

    /// Drops every scheduled output (the device reset or went away).
    void cancelScheduled();

    /// Drops the reply and every scheduled output.
    void clear();

  private:
    std::vector<uint8_t> reply_;
    std::multimap<int64_t, Producer> pending_;
};

}  // namespace sim::detail
