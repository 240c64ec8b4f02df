#include "app/DeviceQueries.h"
#include "app/UserText.h"
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

    QStringList exitCodes() const override {
        return {QStringLiteral("0  the firmware answered"),
                QStringLiteral("9  it did not answer, or no plotter is connected")};
    }

    int noDeviceCode() const override { return ExitCode::noAnswer; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const auto version = DeviceQueries::firmwareVersion(context.portPath);
        if (!version) {
            return {ExitCode::noAnswer, UserText::errorMessage(ExitCode::noAnswer), true};
        }
        feed.log(*version);
        return {ExitCode::success, *version, false};
    }
};

}  // namespace

std::unique_ptr<Command> makeVersionCommand() {
    return std::make_unique<VersionCommand>();
}
