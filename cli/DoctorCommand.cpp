#include "app/PermissionRule.h"
#include "app/operations/CheckConnection.h"
#include "cli/Commands.h"

namespace {

class DoctorCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        return parent.add_subcommand(
            "doctor",
            "Checks why a plotter cannot be reached, step by step: whether one is seen on USB "
            "(303a:1001), whether a serial port was made for it, whether you may open it, and "
            "whether another program holds it; it also lists the other USB serial devices. "
            "Each problem comes with its fix. A plotter on USB without a usable port is watched "
            "for up to 10 s, to tell one that keeps restarting. Nothing is sent to the plotter, "
            "and --sim is "
            "ignored: the check is of this computer's USB.");
    }

    QString successMeaning() const override { return QStringLiteral("a plotter is ready to use"); }
    QList<int> failureStatuses() const override { return {1}; }
    Ports ports() const override { return Ports::none; }
    OutcomeTable::Convention convention() const override {
        return OutcomeTable::Convention::checklist;
    }

    std::shared_ptr<Operation> operation(const CommandContext&) const override {
        return std::make_shared<CheckConnection>(PermissionRule::installed().howTo(), surveyOf(),
                                                 CheckConnection::Watch::realTime());
    }
};

}  // namespace

std::unique_ptr<Command> makeDoctorCommand() {
    return std::make_unique<DoctorCommand>();
}
