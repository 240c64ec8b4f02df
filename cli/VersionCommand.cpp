#include "app/operations/QueryVersion.h"
#include "cli/Commands.h"

namespace {

class VersionCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "version",
            "Prints the version the plotter's firmware reports. It is cleaned as the updater "
            "window shows it: \"FluidNC v3.7.8 (main)\" prints v3.7.8.");
    }

    QString successMeaning() const override { return QStringLiteral("the firmware answered"); }
    QList<int> failureStatuses() const override { return {1, 2, 9}; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        return std::make_shared<QueryVersion>(context.portPath);
    }
};

}  // namespace

std::unique_ptr<Command> makeVersionCommand() {
    return std::make_unique<VersionCommand>();
}
