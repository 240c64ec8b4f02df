#include <QActionGroup>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/SimulatedPlotter.h"
#include "app/Texts.h"
#include "app/UpdateController.h"
#include "ui/AppDelegate.h"
#include "ui/SingleInstance.h"
#include "ui/Translations.h"

namespace {

// The start-up's name with its first letter that no earlier item took marked as
// the item's mnemonic ("boot-loop" and "brownout" both begin with b).
QString withMnemonic(const QString& name, QString& taken) {
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i].isLetter() && !taken.contains(name[i])) {
            taken.append(name[i]);
            return QString(name).insert(i, QLatin1Char('&'));
        }
    }
    return name;
}

// How the simulated plotter starts after the next write, so that every result the
// window can show can be seen. A write may mend it (a repair), so the ticked item
// follows the plotter after every job.
void addStartupMenu(QMainWindow& window, sim::PtyPlotter& plotter, UpdateController& controller) {
    QMenu* menu = window.menuBar()->addMenu(Texts::simulatedPlotterMenu());
    auto* choices = new QActionGroup(menu);
    auto items = std::make_shared<std::map<sim::Startup, QAction*>>();
    QString taken;
    for (const sim::Startup startup : sim::kStartups) {
        const QString name = QString::fromLatin1(sim::startupName(startup));
        QAction* item = menu->addAction(Texts::startsAs(withMnemonic(name, taken)));
        item->setCheckable(true);
        item->setChecked(startup == sim::Startup::Healthy);
        choices->addAction(item);
        (*items)[startup] = item;
        QObject::connect(item, &QAction::triggered, &window, [&plotter, startup] {
            plotter.modify([startup](sim::Plotter& p) { p.config().startup = startup; });
        });
    }
    QObject::connect(
        &controller, &UpdateController::jobRunningChanged, menu, [&plotter, items](bool running) {
            if (running) {
                return;
            }
            sim::Startup now = sim::Startup::Healthy;
            plotter.inspect([&now](const sim::Plotter& p) { now = p.config().startup; });
            items->at(now)->setChecked(true);
        });
}

// "--catalogue ADDRESS": the firmware catalogue the demo serves, as if chosen with
// File > "Firmware Catalogue…".
std::optional<QString> catalogueArgument(const QStringList& arguments) {
    const qsizetype at = arguments.indexOf(QStringLiteral("--catalogue"));
    return at >= 0 && at + 1 < arguments.size() ? std::optional(arguments[at + 1]) : std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Teskal Firmware Updater"));
    QApplication::setDesktopFileName(QStringLiteral("teskal-firmware-updater"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/teskal-firmware-updater.png")));
    const Translations translations(QLocale::system());

    const auto instance = SingleInstance::claim(QStringLiteral("teskal-updater-sim"));
    if (!instance) {
        return EXIT_FAILURE;
    }
    const ResourceBundle resources = ResourceBundle::located(QStringLiteral("resources-dev"));
    sim::Config config;
    config.versionReport = kSimulatedOlderRelease;
    const auto plotter = startSimulatedPlotter(resources, SimulatedPace::visible, config);
    const std::string port = plotter->path();
    // Only the simulator's pseudo-terminal is ever offered as the device, so the
    // development images this program carries, and accepts, cannot reach a real
    // machine.
    DeviceMonitor::Detector detector = [port](uint16_t, uint16_t) { return strdup(port.c_str()); };
    AppDelegate::Options options;
    options.survey = simulatedSurvey(port);
    AppDelegate delegate(
        std::make_unique<UpdateController>(resources, std::move(detector),
                                           UpdateController::DevelopmentImages::accept),
        std::move(options));
    if (const auto catalogue = catalogueArgument(QApplication::arguments())) {
        delegate.updateController().firmwareChoice()->setCatalogue(*catalogue);
    }
    delegate.applicationDidFinishLaunching();
    addStartupMenu(*delegate.window(), *plotter, delegate.updateController());
    delegate.window()->setWindowTitle(Texts::simulatedWindowTitle());
    return QApplication::exec();
}
