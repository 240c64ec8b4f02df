#pragma once

#include <cstdint>

/// The one place where the core reads the monotonic clock and sleeps.
///
/// The product links the steady-clock implementation; test programs may link a
/// virtual clock instead, in which sleeps and time-outs pass instantly.
namespace mono {

/// Monotonic time in nanoseconds since an arbitrary, fixed origin.
int64_t nowNs();

/// Blocks the calling thread for `ms` milliseconds; 0 or less returns at once.
void sleepMs(int ms);

/// A point on the monotonic clock `timeoutMs` milliseconds after construction.
///
/// Every blocking loop of the core measures its time-out with one of these.
class Deadline {
  public:
    /// Starts the deadline now; the product `timeoutMs` x 1,000,000 is taken in 64 bits.
    explicit Deadline(int timeoutMs) : at_(nowNs() + int64_t{timeoutMs} * 1'000'000) {}

    /// True when the clock is at or past the deadline.
    bool expired() const { return nowNs() >= at_; }

    /// Nanoseconds left; negative once the deadline has passed.
    int64_t remainingNs() const { return at_ - nowNs(); }

    /// Whole milliseconds left, truncated toward zero (negative once passed).
    int remainingMs() const { return static_cast<int>(remainingNs() / 1'000'000); }

  private:
    int64_t at_;
};

}  // namespace mono
