#pragma once

#include <optional>
#include <string>

#include "fluidnc/Transcript.h"
#include "serial/SerialPort.h"

/// The running firmware's text console. Stateless; every call blocks its caller
/// and uses a port the caller has opened. A transcript, where one is taken, is
/// borrowed for the call and receives every byte the call reads.
namespace fluidnc {

/// Reads lines until one contains "ok" or `timeoutMs` passes; the caller is not told which.
void waitForOk(SerialPort& port, int timeoutMs);

/// Drains stale input, sends "$I\n" and returns the version cut from the first
/// "[VER:...]" report within `timeoutMs` (possibly empty); absent when none came
/// or an "ok" line ended the answer first. The drained bytes and every line read,
/// the answer's included, also go to `transcript` when one is given.
std::optional<std::string> queryVersion(SerialPort& port, int timeoutMs,
                                        Transcript* transcript = nullptr);

/// Sends "$Bye\n" and pauses 500 ms while the firmware restarts.
void sendRestart(SerialPort& port);

/// Sends nothing: reads whatever arrives into `transcript` for `ms` milliseconds,
/// in slices of at most 50 ms, and returns at that deadline (within 1 ms).
void listen(SerialPort& port, int ms, Transcript& transcript);

/// Sends "$SS\n", which asks the firmware to print the messages of its last start-up
/// again, and reads lines into `transcript` until one reads "ok" or starts with
/// "error:" (a firmware without the command), or `timeoutMs` passes.
void replayStartup(SerialPort& port, int timeoutMs, Transcript& transcript);

}  // namespace fluidnc
