#pragma once

#include <CLI/CLI.hpp>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "app/FirmwareCheck.h"
#include "app/OutcomeTable.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// The options every subcommand shares, as the command line gave them.
struct CommonOptions {
    std::vector<std::string> ports;  ///< --port, in the order given
    bool all = false;                ///< --all
    std::string resources;           ///< --resources; empty: the program's own
    bool verbose = false;            ///< --verbose
    bool json = false;               ///< --json
    int simulated = 0;               ///< --sim N; 0 without it
    std::string simStartup;          ///< --sim-startup NAME; empty: healthy
};

/// Where and with what a command runs.
struct CommandContext {
    QString portName;  ///< as listed or given ("sim2", "/dev/ttyACM0"); empty without a port
    QString portPath;  ///< the node to open; a simulated plotter's pseudo-terminal
    /// The name the plotter's backups are filed under: its USB serial number, else
    /// `portName` ("sim1"); empty without a port.
    QString machine;
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

/// One subcommand of teskal-flash: it parses its own options, builds the
/// application's operation, and says which exit statuses it can end with. Adding
/// one means a class like this in a file of its own and a line in `makeCommands`.
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
    /// What exit status 0 means for it ("written and verified").
    virtual QString successMeaning() const = 0;
    /// The other statuses it can end with, for --help, in the order listed.
    virtual QList<int> failureStatuses() const = 0;
    virtual Ports ports() const { return Ports::one; }
    virtual OutcomeTable::Convention convention() const { return OutcomeTable::Convention::table; }
    /// Whether it writes firmware, so that Ctrl+C asks to be pressed twice.
    virtual bool writesFirmware() const { return false; }

    /// The operation for the plotter of `context` (or for none).
    virtual std::shared_ptr<Operation> operation(const CommandContext& context) const = 0;

    /// The --help lines of its exit statuses, from the one table.
    QStringList exitStatusHelp() const;
};
