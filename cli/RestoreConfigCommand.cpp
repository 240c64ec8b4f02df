#include "app/operations/RestoreConfig.h"
#include "cli/Commands.h"

namespace {

class RestoreConfigCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "restore-config",
            "Puts a configuration from the backups folder back on the plotter, with the same "
            "upload and checks as upload-config; the machine then restarts. Without BACKUP it "
            "takes the newest backup of this plotter (see teskal-flash backups).");
        command
            ->add_option("BACKUP", backup_,
                         "A backup's file name (config-yyyyMMdd-HHmmss.yaml) or path")
            ->type_name("");
        return command;
    }

    QString successMeaning() const override {
        return QStringLiteral("restored; the machine restarts");
    }
    QList<int> failureStatuses() const override { return {1, 2, 8, 11, 15}; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        UploadConfig::Options options;
        options.machine = context.machine;
        return std::make_shared<RestoreConfig>(context.portPath, context.resources,
                                               QString::fromStdString(backup_), options);
    }

  private:
    std::string backup_;
};

}  // namespace

std::unique_ptr<Command> makeRestoreConfigCommand() {
    return std::make_unique<RestoreConfigCommand>();
}
