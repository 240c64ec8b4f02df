#pragma once

#include <QString>

#include "app/Outcome.h"
#include "app/texts/Audience.h"

/// What the machine's start after a write means for the owner: how the job ends,
/// in which words, and what to do next. Pure functions; any thread.
namespace StartupVerdict {

/// A success for a running machine; `notStarting` for a boot loop, a crash, no
/// firmware or a brown-out; `configRejected`; else `notConfirmed`.
Outcome::Kind kind(int verdict);

/// The outcome's message: "Firmware 2.10.6 installed and running.", "Firmware
/// written, but the machine does not start: it restarts in a loop.", … Versions
/// read as the window's firmware line shows them.
QString message(const StartupCause& cause);

/// What to do next in `audience`'s words; empty for a machine that runs.
QString nextStep(const StartupCause& cause, Texts::Audience audience);

/// Whether erasing and writing the flash again mends it: the machine restarts in a
/// loop, crashed or finds no firmware. Not for a brown-out, which a power supply
/// fixes.
bool repairHelps(const StartupCause& cause);

}  // namespace StartupVerdict
