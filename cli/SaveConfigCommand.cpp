#include "app/operations/SaveMachineConfig.h"
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

    QString successMeaning() const override { return QStringLiteral("saved"); }
    QList<int> failureStatuses() const override { return {1, 2, 8, 17}; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        return std::make_shared<SaveMachineConfig>(context.portPath, QString::fromStdString(file_),
                                                   context.machine);
    }

  private:
    std::string file_;
};

}  // namespace

std::unique_ptr<Command> makeSaveConfigCommand() {
    return std::make_unique<SaveConfigCommand>();
}
