#include "app/FirmwareUpdateJob.h"
#include "cli/Commands.h"

namespace {

class FlashCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "flash",
            "Writes firmware, as the updater window's \"Update Firmware\" does. The bundled "
            "image, or --firmware FILE, is checked before anything is sent. Only the "
            "application is written when the running firmware answers; otherwise, or with "
            "--full or --erase-all, the bootloader, partition table and boot-app image too.");
        command
            ->add_option("--firmware", firmware_,
                         "Firmware image (.bin) to write in place of the bundled one")
            ->type_name("FILE");
        command->add_flag("--full", full_,
                          "Write the bootloader, partition table and boot-app image too");
        command->add_flag("--erase-all", eraseAll_,
                          "Erase the whole flash first (a full flash; the configuration must be "
                          "uploaded again afterwards)");
        return command;
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  written and verified"),
                QStringLiteral("1  no plotter is connected"),
                QStringLiteral("2  the port could not be opened"),
                QStringLiteral("3  no sync with the bootloader"),
                QStringLiteral("4  unexpected chip, or secure boot or flash encryption enabled"),
                QStringLiteral("5  the flasher stub did not start"),
                QStringLiteral("6  erasing or writing failed"),
                QStringLiteral("7  verification failed"),
                QStringLiteral("11 the image was refused before anything was sent"),
                QStringLiteral("12 an image is missing from the resources")};
    }

    Ports ports() const override { return Ports::several; }
    bool writesFirmware() const override { return true; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        FirmwareUpdateJob::Options options;
        if (!firmware_.empty()) {
            options.customFirmware = QString::fromStdString(firmware_);
        }
        options.writeBootPartitions = full_;
        options.eraseAll = eraseAll_;
        options.developmentImages = context.developmentImages();
        const FirmwareUpdateJob job(context.portPath, context.resources, options);
        return resultOf(job.run(feed.jobSink(&FirmwareUpdateJob::writtenShare)),
                        QStringLiteral("Firmware update complete."));
    }

  private:
    std::string firmware_;
    bool full_ = false;
    bool eraseAll_ = false;
};

}  // namespace

std::unique_ptr<Command> makeFlashCommand() {
    return std::make_unique<FlashCommand>();
}
