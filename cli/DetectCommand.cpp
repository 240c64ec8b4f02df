#include "app/UserText.h"
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

    QStringList exitCodes() const override {
        return {QStringLiteral("0  at least one plotter is connected"),
                QStringLiteral("1  none is")};
    }

    Ports ports() const override { return Ports::none; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        for (const QString& port : context.connected) {
            feed.log(port);
        }
        const qsizetype count = context.connected.size();
        if (count == 0) {
            return {ExitCode::noDevice, UserText::errorMessage(ExitCode::noDevice), true};
        }
        return {ExitCode::success,
                count == 1 ? QStringLiteral("1 plotter connected")
                           : QStringLiteral("%1 plotters connected").arg(count),
                false};
    }
};

}  // namespace

std::unique_ptr<Command> makeDetectCommand() {
    return std::make_unique<DetectCommand>();
}
