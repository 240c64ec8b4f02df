#include "app/DeviceQueries.h"
#include "app/UserText.h"
#include "cli/Commands.h"

namespace {

class ProbeCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "probe",
            "Says whether the plotter holds a partition table. It reads the table through the "
            "bootloader with the flasher stub and looks for an application at 0x10000; "
            "nothing is written.");
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  a partition table is present"), QStringLiteral("1  none is"),
                QStringLiteral("9  the plotter did not answer, or none is connected"),
                QStringLiteral("11 the resources' stub is a development image (real plotters)"),
                QStringLiteral("12 the flasher stub is missing from the resources")};
    }

    int noDeviceCode() const override { return ExitCode::noAnswer; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const auto stub =
            context.resources.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
        if (!stub) {
            return {ExitCode::missingResource, QStringLiteral("Flash stub not found in bundle"),
                    true};
        }
        if (const auto refusal = bundledImageRefusal(
                context.resources, QStringLiteral("esp32s3_stub"), context.developmentImages())) {
            return {ExitCode::refused, *refusal, true};
        }
        switch (DeviceQueries::partitionTable(context.portPath, *stub)) {
            case DeviceQueries::PartitionTable::present:
                return answer(feed, ExitCode::success, QStringLiteral("Partition table: present"));
            case DeviceQueries::PartitionTable::absent:
                return answer(feed, 1, QStringLiteral("Partition table: absent"));
            case DeviceQueries::PartitionTable::unreadable:
                break;
        }
        return {ExitCode::noAnswer, UserText::errorMessage(ExitCode::noAnswer), true};
    }

  private:
    static event::Result answer(const Feed& feed, int code, const QString& text) {
        feed.log(text);
        return {code, text, false};
    }
};

}  // namespace

std::unique_ptr<Command> makeProbeCommand() {
    return std::make_unique<ProbeCommand>();
}
