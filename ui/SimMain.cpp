#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "app/UpdateController.h"
#include "sim/PtyPlotter.h"
#include "ui/AppDelegate.h"
#include "ui/SingleInstance.h"

namespace {

// The simulated device answers at once by default; these delays give each stage of
// a job enough time to be seen in the window.
sim::Config demoConfig() {
    sim::Config config;
    config.flashBeginDelayMs = 300;
    config.flashBlockDelayMs = 25;
    config.eraseDelayMs = 3000;
    config.md5DelayMs = 250;
    config.bootMs = 400;
    config.consoleDelayMs = 30;
    config.handshakeFirstMs = 500;
    config.handshakeIntervalMs = 500;
    return config;
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
    sim::PtyPlotter plotter(demoConfig());
    const std::string port = plotter.path();
    // Only the simulator's pseudo-terminal is ever offered as the device, so the
    // development images this program carries, and accepts, cannot reach a real
    // machine.
    DeviceMonitor::Detector detector = [port](uint16_t, uint16_t) { return strdup(port.c_str()); };
    AppDelegate delegate(std::make_unique<UpdateController>(
                             ResourceBundle::located(QStringLiteral("resources-dev")),
                             std::move(detector), UpdateController::DevelopmentImages::accept),
                         AppDelegate::Options());
    delegate.applicationDidFinishLaunching();
    delegate.window()->setWindowTitle(
        QStringLiteral("Teskal Firmware Updater \u2014 simulated plotter"));
    return QApplication::exec();
}
