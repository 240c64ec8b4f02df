#include "app/operations/Repair.h"
#include "app/operations/SnapshotFirst.h"
#include "cli/Commands.h"
#include "cli/ConfigSource.h"

namespace {

class RepairCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "repair",
            "Brings back a plotter that does not start (it restarts in a loop, crashes or finds "
            "no firmware), with its settings: the whole flash is erased and the firmware, "
            "bootloader, partition table and boot-app image are written, then a configuration "
            "is uploaded. A firmware that still answers has its config.yaml saved into the "
            "backups folder first. What goes back is this plotter's newest backup, unless "
            "--backup, --product or --no-config says otherwise; without any, nothing is erased.");
        command
            ->add_option("--firmware", firmware_,
                         "Firmware image (.bin) to write in place of the bundled one")
            ->type_name("FILE");
        CLI::Option_group* choice =
            command->add_option_group("what goes back", "What goes back after the erase");
        choice
            ->add_option("--backup", backup_,
                         "A backup's file name (config-yyyyMMdd-HHmmss.yaml) or path")
            ->type_name("FILE");
        addProductOption(choice, &product_);
        choice->add_flag("--no-config", noConfig_, "Put no configuration back");
        choice->require_option(0, 1);
        command->add_flag("--no-snapshot", noSnapshot_,
                          "Do not take a snapshot of the whole flash before the erase (it is "
                          "taken by default when the chip answers; when it fails, nothing is "
                          "erased, status 20)");
        command->footer(productList());
        return command;
    }

    QString successMeaning() const override {
        return QStringLiteral("repaired: the machine runs the firmware with the configuration");
    }
    QList<int> failureStatuses() const override {
        return {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 17, 18, 20};
    }
    bool writesFirmware() const override { return true; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        Repair::Options options;
        if (!firmware_.empty()) {
            options.flash.customFirmware = QString::fromStdString(firmware_);
        }
        options.flash.developmentImages = context.developmentImages();
        options.putBack = putBack();
        options.machine = context.machine;
        options.developmentConfigsRefused = context.developmentSet && !context.simulated;
        auto repair = std::make_shared<Repair>(context.portPath, context.resources, options);
        SnapshotFirst::Options snapshot;
        snapshot.reason = BackupReason::beforeRepair;
        snapshot.machine = context.machine;
        snapshot.developmentImages = context.developmentImages();
        return SnapshotFirst::around(!noSnapshot_, context.portPath, context.resources,
                                     std::move(repair), snapshot);
    }

  private:
    Repair::PutBack putBack() const {
        using Kind = Repair::PutBack::Kind;
        if (!backup_.empty()) {
            return {Kind::backup, QString::fromStdString(backup_), std::nullopt};
        }
        if (!product_.empty()) {
            return {Kind::product, QString(), productNamed(product_)};
        }
        return {noConfig_ ? Kind::nothing : Kind::newestBackup, QString(), std::nullopt};
    }

    std::string firmware_;
    std::string backup_;
    std::string product_;
    bool noConfig_ = false;
    bool noSnapshot_ = false;
};

}  // namespace

std::unique_ptr<Command> makeRepairCommand() {
    return std::make_unique<RepairCommand>();
}
