#include "app/operations/TakeSnapshot.h"
#include "cli/Commands.h"

namespace {

class SnapshotCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "snapshot",
            "Reads the plotter's whole flash through the bootloader and the flasher stub and "
            "keeps it in the backups folder as machine-yyyyMMdd-HHmmss.bin, with a sidecar that "
            "tells the machine, its firmware version, whether it ran, the size, the SHA-256, "
            "the partition table and the application's version; the newest 5 of each plotter "
            "are kept, and the newest taken while it ran. Nothing is written to the plotter; "
            "restore-machine puts a snapshot back. With --json the result carries the file as "
            "\"snapshot\".");
    }

    QString successMeaning() const override { return QStringLiteral("the snapshot was kept"); }
    QList<int> failureStatuses() const override { return {1, 2, 3, 4, 5, 12, 17, 20}; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        TakeSnapshot::Options options;
        options.machine = context.machine;
        return std::make_shared<TakeSnapshot>(context.portPath, context.resources, options);
    }
};

}  // namespace

std::unique_ptr<Command> makeSnapshotCommand() {
    return std::make_unique<SnapshotCommand>();
}
