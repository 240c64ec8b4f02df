#include "app/operations/ProbePartitionTable.h"
#include "cli/Commands.h"

namespace {

class ProbeCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "probe",
            "Says whether the plotter holds a partition table. It reads the table through the "
            "bootloader with the flasher stub and looks for an application at 0x10000; "
            "nothing is written.");
    }

    QString successMeaning() const override {
        return QStringLiteral("a partition table is present");
    }
    QList<int> failureStatuses() const override { return {1, 2, 9, 11, 12, 16}; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        return std::make_shared<ProbePartitionTable>(context.portPath, context.resources,
                                                     context.developmentImages());
    }
};

}  // namespace

std::unique_ptr<Command> makeProbeCommand() {
    return std::make_unique<ProbeCommand>();
}
