#include "app/operations/RestoreMachine.h"
#include "cli/Commands.h"

namespace {

class RestoreMachineCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "restore-machine",
            "Puts a snapshot of the whole flash back on the plotter (written at 0x0, verified "
            "by MD5), then tells how the machine starts. Without SNAPSHOT it takes this "
            "plotter's newest snapshot (see teskal-flash backups). A file that is not a "
            "whole-flash snapshot is refused with nothing sent, and so is another plotter's "
            "snapshot, which carries its settings and network credentials, unless "
            "--other-machine is given. With --json the result carries the machine's start as "
            "\"machine\".");
        command
            ->add_option("SNAPSHOT", snapshot_,
                         "A snapshot's file name (machine-yyyyMMdd-HHmmss.bin) or path")
            ->type_name("");
        command->add_flag("--other-machine", otherMachine_,
                          "Put another plotter's snapshot on this one");
        return command;
    }

    QString successMeaning() const override {
        return QStringLiteral("put back, verified, and the machine runs");
    }
    QList<int> failureStatuses() const override {
        return {1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 14, 15};
    }
    bool writesFirmware() const override { return true; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        RestoreMachine::Options options;
        options.snapshot = QString::fromStdString(snapshot_);
        options.machine = context.machine;
        options.otherMachineAllowed = otherMachine_;
        options.developmentImages = context.developmentImages();
        return std::make_shared<RestoreMachine>(context.portPath, context.resources, options);
    }

  private:
    std::string snapshot_;
    bool otherMachine_ = false;
};

}  // namespace

std::unique_ptr<Command> makeRestoreMachineCommand() {
    return std::make_unique<RestoreMachineCommand>();
}
