#include "app/operations/ListFirmware.h"
#include "cli/Commands.h"

namespace {

class FirmwareCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "firmware",
            "Lists the firmware versions that can be installed: the bundled one first, then "
            "those of the firmware catalogue, newest first, each with its channel, date and "
            "notes. The catalogue is --catalogue, else the resources' catalogue-url; without "
            "either nothing is fetched. Its signature is checked against the resources' "
            "catalogue.pub, and a catalogue older than one already seen is refused; when its "
            "address cannot be reached, the last one accepted is listed, marked with its date. "
            "With --json the result carries them as \"firmware\".");
        command
            ->add_option("--catalogue", catalogue_,
                         "Firmware catalogue: an http(s) address, a catalogue.json file or a "
                         "folder that holds one")
            ->type_name("URL|FILE|FOLDER");
        command->add_flag("--beta", beta_, "List the beta versions too");
        return command;
    }

    QString successMeaning() const override { return QStringLiteral("listed"); }
    QList<int> failureStatuses() const override { return {19}; }
    Ports ports() const override { return Ports::none; }

    std::shared_ptr<Operation> operation(const CommandContext& context) const override {
        ListFirmware::Options options;
        if (!catalogue_.empty()) {
            options.catalogue = QString::fromStdString(catalogue_);
        }
        options.beta = beta_;
        options.developmentKey = context.developmentImages();
        return std::make_shared<ListFirmware>(context.resources, options);
    }

  private:
    std::string catalogue_;
    bool beta_ = false;
};

}  // namespace

std::unique_ptr<Command> makeFirmwareCommand() {
    return std::make_unique<FirmwareCommand>();
}
