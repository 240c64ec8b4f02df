#include "app/SaveMachineConfigJob.h"
#include "cli/Commands.h"

namespace {

class SaveConfigCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "save-config",
            "Saves the machine's own config.yaml to a file on this computer. It is read over the "
            "firmware's console with XModem, so the owner's settings can be kept before an "
            "upload replaces them; the file is replaced whole or left as it was.");
        command->add_option("FILE", file_, "Where to save it (for example machine.yaml)")
            ->required()
            ->type_name("");
        return command;
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  saved"),
                QStringLiteral("8  the machine's configuration could not be read or saved "
                               "(also when no plotter is connected)")};
    }

    int noDeviceCode() const override { return ExitCode::downloadFailed; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const SaveMachineConfigJob job(context.portPath, QString::fromStdString(file_));
        if (const auto failure = job.run(feed.jobSink())) {
            return {ExitCode::downloadFailed, *failure, true};
        }
        return {ExitCode::success, QStringLiteral("Machine config saved"), false};
    }

  private:
    std::string file_;
};

}  // namespace

std::unique_ptr<Command> makeSaveConfigCommand() {
    return std::make_unique<SaveConfigCommand>();
}
