#include "cli/Session.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <system_error>

#include "app/DeviceQueries.h"
#include "app/OutcomeTable.h"
#include "app/SimulatedPlotter.h"
#include "app/Texts.h"
#include "cli/Fleet.h"
#include "cli/Interrupts.h"
#include "cli/Json.h"
#include "cli/LocalRun.h"
#include "cli/Plotters.h"
#include "cli/TextReporter.h"

namespace {

const QString kDevelopmentFolder = QStringLiteral("resources-dev");

std::unique_ptr<Reporter> makeReporter(const CommonOptions& options, bool several) {
    if (options.json) {
        return std::make_unique<JsonReporter>(several);
    }
    TextReporter::Style style;
    style.terminal = ::isatty(STDOUT_FILENO) == 1;
    style.withPorts = several;
    style.showLog = !several || options.verbose;
    return std::make_unique<TextReporter>(style);
}

ResourceBundle resourcesFor(const CommonOptions& options) {
    if (!options.resources.empty()) {
        return ResourceBundle(QString::fromStdString(options.resources));
    }
    return options.simulated > 0 ? ResourceBundle::located(kDevelopmentFolder)
                                 : ResourceBundle::located();
}

// The plotters named on the command line, every connected one (--all), or the
// first connected one.
QStringList chosenPorts(const Command& command, const CommonOptions& options,
                        const QStringList& connected) {
    if (command.ports() == Command::Ports::none) {
        return {QString()};
    }
    if (options.all) {
        return connected;
    }
    QStringList ports;
    for (const std::string& port : options.ports) {
        ports << QString::fromStdString(port);
    }
    if (ports.isEmpty() && !connected.isEmpty()) {
        ports << connected.first();
    }
    return ports;
}

// Runs the command for one plotter or none; with a simulated port, the simulated
// plotter lives in this process, as the port-in-use check expects.
class Single {
  public:
    Single(const Command& command, const CommonOptions& options, const QString& port,
           const QStringList& connected, Reporter& reporter) {
        CommandContext context;
        context.portName = port;
        context.portPath = port;
        context.machine = port.isEmpty() ? QString() : DeviceQueries::machineIdentity(port);
        context.connected = connected;
        context.resources = resourcesFor(options);
        context.developmentSet = options.simulated > 0 && options.resources.empty();
        context.simulated =
            port.isEmpty() ? options.simulated > 0 : Plotters::isSimulated(port, options.simulated);
        if (!port.isEmpty() && context.simulated) {
            sim::Config config;
            config.startup = sim::parseStartup(options.simStartup).value_or(sim::Startup::Healthy);
            // As in the demo: an update is an update, and an older catalogue release
            // is older than what it runs.
            config.versionReport = kSimulatedOlderRelease;
            plotter_ = startSimulatedPlotter(context.resources, SimulatedPace::brisk, config);
            context.portPath = QString::fromStdString(plotter_->path());
        }
        run_ = std::make_unique<LocalRun>(command, std::move(context), reporter, options.verbose);
    }

    LocalRun& run() { return *run_; }

  private:
    std::unique_ptr<sim::PtyPlotter> plotter_;  // outlives the run that uses it
    std::unique_ptr<LocalRun> run_;
};

// A single run, or none when its simulated plotter cannot start (reported).
std::unique_ptr<Single> startSingle(const Command& command, const CommonOptions& options,
                                    const QString& port, const QStringList& connected,
                                    Reporter& reporter) {
    try {
        return std::make_unique<Single>(command, options, port, connected, reporter);
    } catch (const std::system_error& error) {
        Outcome outcome = Outcome::library(ESP_RESULT_PORT_NOT_OPENED);
        outcome.message = Texts::simulatorNotStarted(QString::fromLocal8Bit(error.what()));
        reporter.report(port, event::Result{OutcomeTable::exitStatus(outcome), outcome});
        return nullptr;
    }
}

// Ctrl+C: during a firmware write the first press only warns; any other press
// stops at once, children too.
void stopOnInterrupts(const Interrupts& interrupts, Reporter& reporter,
                      std::function<bool()> writing, std::function<void()> stopChildren) {
    auto warned = std::make_shared<bool>(false);
    QObject::connect(&interrupts, &Interrupts::pressed, &interrupts, [=, &reporter] {
        if (writing() && !*warned) {
            *warned = true;
            reporter.notice(Texts::stopWarning());
            return;
        }
        stopChildren();
        reporter.close();
        std::fflush(nullptr);
        // The job may be blocked inside the library; nothing would join its thread.
        std::_Exit(OutcomeTable::stopped);
    });
}

}  // namespace

int runSession(const Command& command, const CommonOptions& options, const QStringList& arguments) {
    const Interrupts interrupts;
    // Output that nobody reads any more (a closed pipe) must not end a firmware
    // write half way; a failed write to standard output is harmless.
    std::signal(SIGPIPE, SIG_IGN);
    const QStringList connected = Plotters::connected(options.simulated);
    const QStringList ports = chosenPorts(command, options, connected);
    const std::unique_ptr<Reporter> reporter = makeReporter(options, ports.size() > 1);
    if (ports.isEmpty()) {
        const Outcome none = Outcome::make(Outcome::Kind::noDevice, Texts::noDeviceFoundDoctor());
        const int status = OutcomeTable::exitStatus(none, command.convention());
        reporter->report(QString(), event::Result{status, none});
        return status;
    }

    QEventLoop loop;
    if (ports.size() > 1) {
        Fleet fleet(QCoreApplication::applicationFilePath(), ports, arguments,
                    command.writesFirmware(), *reporter);
        QObject::connect(&fleet, &Fleet::finished, &loop, &QEventLoop::exit);
        stopOnInterrupts(
            interrupts, *reporter, [&fleet] { return fleet.writing(); },
            [&fleet] { fleet.terminate(); });
        fleet.start();
        const int status = loop.exec();
        reporter->close();
        return status;
    }
    const auto single = startSingle(command, options, ports.first(), connected, *reporter);
    if (!single) {
        return OutcomeTable::exitStatus(Outcome::library(ESP_RESULT_PORT_NOT_OPENED));
    }
    LocalRun& run = single->run();
    QObject::connect(&run, &LocalRun::finished, &loop, &QEventLoop::exit);
    stopOnInterrupts(
        interrupts, *reporter, [&run] { return run.writing(); }, [] {});
    run.start();
    const int status = loop.exec();
    reporter->close();
    return status;
}
