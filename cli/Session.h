#pragma once

#include <QStringList>

#include "cli/Command.h"

/// Runs one invocation of `command`: finds its plotters (--port, --all, the first
/// connected one, or --sim's simulated ones), runs it in this process or in one
/// child per plotter, reports as the options ask, and handles Ctrl+C: during a
/// firmware write the first press only warns, otherwise a press stops everything
/// with status 130. `arguments` are the program's, without its name. Returns the
/// exit status. Call on the main thread of a QCoreApplication, before any other
/// thread starts.
int runSession(const Command& command, const CommonOptions& options, const QStringList& arguments);
