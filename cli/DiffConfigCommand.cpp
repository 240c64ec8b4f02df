#include "app/operations/CompareWithMachine.h"
#include "cli/Commands.h"
#include "cli/ConfigSource.h"

namespace {

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

    QString successMeaning() const override { return QStringLiteral("equal by key"); }
    QList<int> failureStatuses() const override { return {1, 2, 8, 11, 12}; }
    OutcomeTable::Convention convention() const override { return OutcomeTable::Convention::diff; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        return std::make_shared<CompareWithMachine>(context.portPath, context.resources,
                                                    source_.choice(), context.machine);
    }

  private:
    ConfigSource source_;
};

}  // namespace

std::unique_ptr<Command> makeDiffConfigCommand() {
    return std::make_unique<DiffConfigCommand>();
}
