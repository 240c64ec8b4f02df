#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <variant>
#include <vector>

#include "cli/Command.h"

/// teskal-flash's command line: every subcommand of `makeCommands` with the
/// options they share, each with a complete --help.
class CommandLine {
  public:
    CommandLine();

    /// The command to run, or the exit status when there is none: 0 after --help,
    /// 64 after a usage error (both printed).
    std::variant<const Command*, int> parse(int argc, char** argv);

    /// The shared options, filled by `parse`.
    const CommonOptions& options() const { return options_; }

  private:
    void addCommonOptions(CLI::App& subcommand, const Command& command);

    CLI::App app_;
    CommonOptions options_;
    std::vector<std::unique_ptr<Command>> commands_;
    std::vector<std::pair<CLI::App*, const Command*>> subcommands_;
};
