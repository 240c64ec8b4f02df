#pragma once

#include <CLI/CLI.hpp>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "app/FirmwareCheck.h"
#include "app/JobOutcome.h"
#include "app/ResourceBundle.h"
#include "cli/Event.h"
#include "cli/ExitCode.h"
#include "cli/Feed.h"

/// The options every subcommand shares, as the command line gave them.
struct CommonOptions {
    std::vector<std::string> ports;  ///< --port, in the order given
    bool all = false;                ///< --all
    std::string resources;           ///< --resources; empty: the program's own
    bool verbose = false;            ///< --verbose
    bool json = false;               ///< --json
    int simulated = 0;               ///< --sim N; 0 without it
};

/// Where and with what a command runs.
struct CommandContext {
    QString portName;  ///< as listed or given ("sim2", "/dev/ttyACM0"); empty without a port
    QString portPath;  ///< the node to open; a simulated plotter's pseudo-terminal
    /// The plotter is simulated (for a command without a port: every plotter of
    /// the run is).
    bool simulated = false;
    /// The resources are the development set that --sim brings.
    bool developmentSet = false;
    ResourceBundle resources{QString()};
    QStringList connected;  ///< every plotter the run can reach

    DevelopmentImages developmentImages() const {
        return simulated ? DevelopmentImages::accept : DevelopmentImages::refuse;
    }
};

/// One subcommand of teskal-flash. Adding one means a class like this in a file
/// of its own and a line in `makeCommands`.
class Command {
  public:
    enum class Ports {
        none,     ///< works without a plotter
        one,      ///< --port P, else the first connected plotter
        several,  ///< --port P repeated, or --all: one child process per plotter
    };

    virtual ~Command() = default;

    /// Adds the subcommand, its description and its own options to `parent`.
    virtual CLI::App* define(CLI::App& parent) = 0;
    /// Its own exit statuses for --help, one "N  meaning" text each.
    virtual QStringList exitCodes() const = 0;
    virtual Ports ports() const { return Ports::one; }
    /// The exit status when no plotter is connected.
    virtual int noDeviceCode() const { return ExitCode::noDevice; }
    /// Whether it writes firmware, so that Ctrl+C asks to be pressed twice.
    virtual bool writesFirmware() const { return false; }

    /// Runs for the plotter of `context` (or none), on a worker thread, and
    /// blocks for as long as that takes. Only one command runs per process.
    virtual event::Result run(const CommandContext& context, const Feed& feed) const = 0;
};

/// The exit status and message for a job's outcome: 0 and `success`, the
/// library's code, 11 for a refusal, 12 for a missing resource.
event::Result resultOf(const JobOutcome& outcome, const QString& success);
