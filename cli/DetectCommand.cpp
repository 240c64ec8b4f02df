#include "app/operations/ListPlotters.h"
#include "cli/Commands.h"

namespace {

class DetectCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "detect",
            "Prints the port of each connected plotter, one a line. Plotters are USB "
            "serial devices 303a:1001; with --sim N they are the simulated plotters sim1 to "
            "simN.");
    }

    QString successMeaning() const override {
        return QStringLiteral("at least one plotter is connected");
    }
    QList<int> failureStatuses() const override { return {1}; }
    Ports ports() const override { return Ports::none; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        return std::make_shared<ListPlotters>(context.connected);
    }
};

}  // namespace

std::unique_ptr<Command> makeDetectCommand() {
    return std::make_unique<DetectCommand>();
}
