#pragma once

#include "app/Outcome.h"

/// `outcome` in teskal-flash's words, from its cause: the fix for a port that
/// cannot be used names `teskal-flash doctor` where the window names its
/// Connection Check, and "no plotter found" ends with a pointer to doctor.
Outcome inCommandLineWords(Outcome outcome);
