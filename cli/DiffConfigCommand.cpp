#include "app/CompareMachineConfigJob.h"
#include "cli/Commands.h"
#include "cli/ConfigSource.h"

namespace {

constexpr int kDifferent = 1;

class DiffConfigCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "diff-config",
            "Shows what an upload would change. It reads the machine's own config.yaml and prints "
            "how it differs, key path by key path, from a product's configuration or a file "
            "(\"path: machine's value → new value\"; + a key only in the new one, - a key only "
            "on the machine). Key order and comments do not count. Nothing is written.");
        source_.define(command, "What to compare the machine's configuration with");
        return command;
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  equal by key"), QStringLiteral("1  different"),
                QStringLiteral("8  the machine's configuration could not be read (also when no "
                               "plotter is connected)"),
                QStringLiteral("11 the file was refused (not a valid machine configuration)"),
                QStringLiteral("12 the product's configuration is missing from the resources")};
    }

    int noDeviceCode() const override { return ExitCode::downloadFailed; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const ConfigChoice choice = source_.choice();
        const ChosenConfig chosen = readChosenConfig(context.resources, choice);
        if (!chosen.text) {
            return {choice.product ? ExitCode::missingResource : ExitCode::refused, chosen.refusal,
                    true};
        }
        CompareMachineConfigJob job(context.portPath, *chosen.text);
        if (const auto failure = job.run(feed.jobSink())) {
            return {ExitCode::downloadFailed, *failure, true};
        }
        const ConfigComparison& comparison = job.comparison();
        for (const QString& line : comparison.keyDifferences) {
            feed.log(line);
        }
        if (comparison.equalByKey()) {
            return {ExitCode::success, QStringLiteral("Equal by key"), false};
        }
        return {kDifferent, QStringLiteral("Different"), false};
    }

  private:
    ConfigSource source_;
};

}  // namespace

std::unique_ptr<Command> makeDiffConfigCommand() {
    return std::make_unique<DiffConfigCommand>();
}
