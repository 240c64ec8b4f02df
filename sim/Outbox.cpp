#include "sim/Outbox.h"

#include <utility>

#include "serial/Clock.h"

namespace sim::detail {

void Outbox::send(std::vector<uint8_t> bytes, int delayMs) {
    if (delayMs > 0) {
        schedule(delayMs, [bytes = std::move(bytes)] { return bytes; });
        return;
    }
    reply_.insert(reply_.end(), bytes.begin(), bytes.end());
}

void Outbox::schedule(int delayMs, Producer producer) {
    scheduleAt(mono::nowNs() + int64_t{delayMs > 0 ? delayMs : 0} * 1'000'000, std::move(producer));
}

void Outbox::scheduleAt(int64_t dueNs, Producer producer) {
    pending_.emplace(dueNs, std::move(producer));
}

std::vector<uint8_t> Outbox::takeReply() {
    return std::exchange(reply_, {});
}

std::optional<int64_t> Outbox::nextDueNs() const {
    if (pending_.empty()) {
        return std::nullopt;
    }
    return pending_.begin()->first;
}

std::vector<uint8_t> Outbox::takeDue(int64_t nowNs) {
    while (!pending_.empty() && pending_.begin()->first <= nowNs) {
        // Extracted before running: a producer may schedule its own successor.
        Producer producer = std::move(pending_.extract(pending_.begin()).mapped());
        std::vector<uint8_t> bytes = producer();
        if (!bytes.empty()) {
            return bytes;
        }
    }
    return {};
}

void Outbox::cancelScheduled() {
    pending_.clear();
}

void Outbox::clear() {
    reply_.clear();
    pending_.clear();
}

}  // namespace sim::detail
