#include "serial/Clock.h"

#include <atomic>

// Virtual time: sleeps and time-outs pass instantly. Every reading of the clock
// costs a small quantum so that a loop polling a silent loopback still reaches
// its deadline, in virtual time, after a bounded number of turns.
namespace {
constexpr int64_t kReadQuantumNs = 10'000;
std::atomic<int64_t> virtualNow{1'000'000'000};
}  // namespace

namespace mono {

int64_t nowNs() {
    return virtualNow.fetch_add(kReadQuantumNs) + kReadQuantumNs;
}

void sleepMs(int ms) {
    if (ms > 0) {
        virtualNow.fetch_add(int64_t{ms} * 1'000'000);
    }
}

}  // namespace mono
