#include "app/ConfigUploadJob.h"
#include "cli/Commands.h"
#include "cli/ConfigSource.h"

namespace {

const QString kUploaded = QStringLiteral("Upload successful; restarting machine.");

double uploadedShare(float fraction) {
    return static_cast<double>(fraction);
}

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

    QStringList exitCodes() const override {
        return {QStringLiteral("0  uploaded; the machine restarts"),
                QStringLiteral("1  no plotter is connected"),
                QStringLiteral("2  the port could not be opened"),
                QStringLiteral("8  the upload failed"),
                QStringLiteral("11 the configuration was refused before anything was sent"),
                QStringLiteral("12 the product's configuration is missing from the resources")};
    }

    Ports ports() const override { return Ports::several; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const JobSink sink = feed.jobSink(&uploadedShare);
        const ConfigChoice choice = source_.choice();
        if (choice.product) {
            // The development set's configurations describe no real machine.
            if (context.developmentSet && !context.simulated) {
                return {ExitCode::refused,
                        QStringLiteral("The development set's configurations are only for "
                                       "simulated plotters"),
                        true};
            }
            const ConfigUploadJob job(context.portPath, context.resources, *choice.product);
            return resultOf(job.run(sink), kUploaded);
        }
        const ConfigFile config = readConfigFile(choice.path);
        if (!config.bytes) {
            return {ExitCode::refused, config.refusal, true};
        }
        feed.log(config.announcement);
        const ConfigUploadJob job(context.portPath, *config.bytes);
        return resultOf(job.run(sink), kUploaded);
    }

  private:
    ConfigSource source_;
};

}  // namespace

std::unique_ptr<Command> makeUploadConfigCommand() {
    return std::make_unique<UploadConfigCommand>();
}
