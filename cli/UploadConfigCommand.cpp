#include "app/operations/UploadConfig.h"
#include "cli/Commands.h"
#include "cli/ConfigSource.h"

namespace {

class UploadConfigCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "upload-config",
            "Uploads a machine configuration, as the updater window's Config menu does. It "
            "takes a product's configuration from the resources, or a file from disk, which is "
            "checked first (UTF-8, YAML, a mapping of settings, at most 1 MiB); the machine "
            "then restarts.");
        source_.define(command, "What to upload");
        return command;
    }

    QString successMeaning() const override {
        return QStringLiteral("uploaded; the machine restarted with it");
    }
    QList<int> failureStatuses() const override { return {1, 2, 8, 10, 11, 12, 13, 14}; }
    Ports ports() const override { return Ports::several; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        UploadConfig::Options options;
        // The development set's configurations describe no real machine.
        options.developmentConfigsRefused = context.developmentSet && !context.simulated;
        options.machine = context.machine;
        return std::make_shared<UploadConfig>(context.portPath, context.resources, source_.choice(),
                                              options);
    }

  private:
    ConfigSource source_;
};

}  // namespace

std::unique_ptr<Command> makeUploadConfigCommand() {
    return std::make_unique<UploadConfigCommand>();
}
