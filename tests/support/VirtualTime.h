#pragma once

#include <cstdint>

#include "serial/Clock.h"

/// Virtual milliseconds since `startNs` (a `mono::nowNs()` reading), rounded to the
/// nearest. Each reading of the virtual clock adds 10 us, so a wait comes out exact,
/// and a loop that reads byte by byte or stops short of its deadline within 1 ms.
inline int64_t virtualMsSince(int64_t startNs) {
    return (mono::nowNs() - startNs + 500'000) / 1'000'000;
}
