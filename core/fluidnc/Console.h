#pragma once

#include <optional>
#include <string>

#include "serial/SerialPort.h"

/// The running firmware's text console. Stateless; every call blocks its caller
/// and uses a port the caller has opened.
namespace fluidnc {

/// Reads lines until one contains "ok" or `timeoutMs` passes; the caller is not told which.
void waitForOk(SerialPort& port, int timeoutMs);

/// Drains stale input, sends "$I\n" and returns the version cut from the first
/// "[VER:...]" report within `timeoutMs` (possibly empty); absent when none came
/// or an "ok" line ended the answer first.
std::optional<std::string> queryVersion(SerialPort& port, int timeoutMs);

/// Sends "$Bye\n" and pauses 500 ms while the firmware restarts.
void sendRestart(SerialPort& port);

}  // namespace fluidnc
