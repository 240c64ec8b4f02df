#include "app/operations/ReportFiles.h"
#include "cli/Commands.h"

namespace {

class FileReportCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "inspect",
            "Reports on firmware images and machine configurations. No plotter is needed: for "
            "each .bin its chip, version, project, build date, size, SHA-256 and whether it "
            "fits the application partition of the resources' partition table; for each .yaml "
            "or .yml whether it is a valid machine configuration. Each file is checked as flash "
            "and upload-config would check it.");
        command->add_option("FILE", files_, "Files to inspect")->required();
        return command;
    }

    QString successMeaning() const override { return QStringLiteral("every file passes"); }
    QList<int> failureStatuses() const override { return {11}; }
    Ports ports() const override { return Ports::none; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        QStringList paths;
        for (const std::string& file : files_) {
            paths << QString::fromStdString(file);
        }
        return std::make_shared<ReportFiles>(paths, context.resources, context.developmentImages());
    }

  private:
    std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<Command> makeFileReportCommand() {
    return std::make_unique<FileReportCommand>();
}
