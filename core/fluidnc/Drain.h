#pragma once

#include <cstddef>

#include "fluidnc/Transcript.h"
#include "serial/SerialPort.h"

namespace fluidnc {

/// The bound on every "read until nothing arrives" loop of the console: it also
/// ends after this long or after this many bytes, whichever comes first, so a
/// console that never stops printing cannot hold an operation.
inline constexpr int kDrainLimitMs = 2000;
inline constexpr size_t kDrainLimitBytes = 64 * 1024;

/// Reads and discards input in reads of up to `chunk` bytes (at most 256), each
/// waiting `sliceMs`, until one delivers nothing or the drain bound is reached.
/// What it reads also goes to `transcript` when one is given (borrowed for the
/// call). Blocks the calling thread.
void drainInput(SerialPort& port, size_t chunk, int sliceMs, Transcript* transcript = nullptr);

}  // namespace fluidnc
