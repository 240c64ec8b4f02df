#include "app/operations/ListBackups.h"
#include "cli/Commands.h"

namespace {

class BackupsCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "backups",
            "Lists the machine configurations and whole-flash snapshots kept in the backups "
            "folder, newest first: every config.yaml read from a plotter (save-config, "
            "diff-config, the backup before an upload, the save before --erase-all) is kept "
            "there, the newest 50 of each plotter, and every snapshot (snapshot, flash "
            "--snapshot, repair), the newest 5 of each plotter and the newest taken while it "
            "ran. Each line gives the time, why it was read (save, compare, before-upload, "
            "before-erase, snapshot, before-update, before-repair), the firmware version, the "
            "size, the plotter and the file; with --json the result carries them as "
            "\"backups\".");
    }

    QString successMeaning() const override { return QStringLiteral("listed, also when none"); }
    QList<int> failureStatuses() const override { return {}; }
    Ports ports() const override { return Ports::none; }

    std::shared_ptr<Operation> operation(const CommandContext&) const override {
        return std::make_shared<ListBackups>();
    }
};

}  // namespace

std::unique_ptr<Command> makeBackupsCommand() {
    return std::make_unique<BackupsCommand>();
}
