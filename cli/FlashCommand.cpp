#include "app/operations/EraseKeepingSettings.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/SnapshotFirst.h"
#include "cli/Commands.h"

namespace {

class FlashCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "flash",
            "Writes firmware, as the updater window's \"Update Firmware\" does. The bundled "
            "image, --firmware FILE, or --firmware-version V of the firmware catalogue (see "
            "the firmware command; fetched, its signature and SHA-256 checked) is checked "
            "before anything is sent. A catalogue version older than the running firmware is "
            "refused (status 11) unless --allow-older. Only the "
            "application is written when the running firmware answers; otherwise, or with "
            "--full or --erase-all, the bootloader, partition table and boot-app image too.");
        CLI::Option* file =
            command
                ->add_option("--firmware", firmware_,
                             "Firmware image (.bin) to write in place of the bundled one")
                ->type_name("FILE");
        CLI::Option* version =
            command
                ->add_option("--firmware-version", version_,
                             "Write this version of the firmware catalogue in place of the "
                             "bundled one")
                ->type_name("V")
                ->excludes(file);
        command
            ->add_option("--catalogue", catalogue_,
                         "Firmware catalogue: an http(s) address, a catalogue.json file or a "
                         "folder that holds one (default: the resources' catalogue-url)")
            ->type_name("URL|FILE|FOLDER")
            ->needs(version);
        command
            ->add_flag("--allow-older", allowOlder_,
                       "Install the catalogue version even when it is older than the running "
                       "firmware")
            ->needs(version);
        command->add_flag("--full", full_,
                          "Write the bootloader, partition table and boot-app image too");
        CLI::Option* eraseAll = command->add_flag(
            "--erase-all", eraseAll_,
            "Erase the whole flash first (a full flash). The machine's config.yaml, which the "
            "erase takes with it, is read into the backups folder before and uploaded back once "
            "the machine runs; nothing is erased when it cannot be read (status 8). A firmware "
            "that does not answer has nothing to read: the flash is erased, saying so");
        command
            ->add_flag("--discard-config", discardConfig_,
                       "With --erase-all: do not save the machine's config.yaml; it is lost")
            ->needs(eraseAll);
        CLI::Option* snapshot = command->add_flag(
            "--snapshot", snapshot_,
            "Take a snapshot of the whole flash into the backups folder first; when it fails, "
            "nothing is written (status 20). A machine that then does not start can be put "
            "back with teskal-flash restore-machine");
        command
            ->add_flag("--undo-on-failure", undoOnFailure_,
                       "With --snapshot: put the snapshot back by itself when the machine does "
                       "not start; the status stays the update's")
            ->needs(snapshot);
        return command;
    }

    QString successMeaning() const override {
        return QStringLiteral("written, verified, and the machine runs it");
    }
    QList<int> failureStatuses() const override {
        return {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 17, 19, 20};
    }
    Ports ports() const override { return Ports::several; }
    bool writesFirmware() const override { return true; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        FlashFirmware::Options options;
        if (!firmware_.empty()) {
            options.customFirmware = QString::fromStdString(firmware_);
        }
        if (!version_.empty()) {
            CatalogueRelease release;
            release.catalogue = catalogue_.empty()
                                    ? std::nullopt
                                    : std::optional(QString::fromStdString(catalogue_));
            release.version = QString::fromStdString(version_);
            release.allowOlder = allowOlder_;
            options.release = release;
        }
        options.writeBootPartitions = full_;
        options.eraseAll = eraseAll_;
        options.developmentImages = context.developmentImages();
        return undoable(context, write(context, options));
    }

  private:
    std::shared_ptr<Operation> write(const CommandContext& context,
                                     const FlashFirmware::Options& options) const {
        if (!eraseAll_ || discardConfig_) {
            return std::make_shared<FlashFirmware>(context.portPath, context.resources, options);
        }
        EraseKeepingSettings::Options keeping;
        keeping.flash = options;
        keeping.goOnWhenSilent = true;
        keeping.machine = context.machine;
        return std::make_shared<EraseKeepingSettings>(context.portPath, context.resources, keeping);
    }

    std::shared_ptr<Operation> undoable(const CommandContext& context,
                                        std::shared_ptr<Operation> write) const {
        SnapshotFirst::Options options;
        options.machine = context.machine;
        options.undoOnFailure = undoOnFailure_;
        options.developmentImages = context.developmentImages();
        return SnapshotFirst::around(snapshot_, context.portPath, context.resources,
                                     std::move(write), options);
    }

    std::string firmware_;
    std::string version_;
    std::string catalogue_;
    bool allowOlder_ = false;
    bool full_ = false;
    bool eraseAll_ = false;
    bool discardConfig_ = false;
    bool snapshot_ = false;
    bool undoOnFailure_ = false;
};

}  // namespace

std::unique_ptr<Command> makeFlashCommand() {
    return std::make_unique<FlashCommand>();
}
