#include <QActionGroup>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "app/SimulatedPlotter.h"
#include "app/UpdateController.h"
#include "ui/AppDelegate.h"
#include "ui/SingleInstance.h"

namespace {

// How the simulated plotter starts after the next write, so that every result the
// window can show can be seen.
void addStartupMenu(QMainWindow& window, sim::PtyPlotter& plotter) {
    QMenu* menu = window.menuBar()->addMenu(QStringLiteral("Simulated Plotter"));
    auto* choices = new QActionGroup(menu);
    for (const sim::Startup startup : sim::kStartups) {
        QAction* item = menu->addAction(QStringLiteral("Starts: ") +
                                        QString::fromLatin1(sim::startupName(startup)));
        item->setCheckable(true);
        item->setChecked(startup == sim::Startup::Healthy);
        choices->addAction(item);
        QObject::connect(item, &QAction::triggered, &window, [&plotter, startup] {
            plotter.modify([startup](sim::Plotter& p) { p.config().startup = startup; });
        });
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Teskal Firmware Updater"));
    QApplication::setDesktopFileName(QStringLiteral("teskal-firmware-updater"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/teskal-firmware-updater.png")));

    const auto instance = SingleInstance::claim(QStringLiteral("teskal-updater-sim"));
    if (!instance) {
        return EXIT_FAILURE;
    }
    const ResourceBundle resources = ResourceBundle::located(QStringLiteral("resources-dev"));
    const auto plotter = startSimulatedPlotter(resources, SimulatedPace::visible);
    const std::string port = plotter->path();
    // Only the simulator's pseudo-terminal is ever offered as the device, so the
    // development images this program carries, and accepts, cannot reach a real
    // machine.
    DeviceMonitor::Detector detector = [port](uint16_t, uint16_t) { return strdup(port.c_str()); };
    AppDelegate delegate(
        std::make_unique<UpdateController>(resources, std::move(detector),
                                           UpdateController::DevelopmentImages::accept),
        AppDelegate::Options());
    delegate.applicationDidFinishLaunching();
    addStartupMenu(*delegate.window(), *plotter);
    delegate.window()->setWindowTitle(
        QStringLiteral("Teskal Firmware Updater \u2014 simulated plotter"));
    return QApplication::exec();
}
