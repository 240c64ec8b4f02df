#include <QApplication>
#include <QIcon>
#include <cstdlib>

#include "ui/AppDelegate.h"
#include "ui/SingleInstance.h"
#include "ui/Translations.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Teskal Firmware Updater"));
    QApplication::setDesktopFileName(QStringLiteral("teskal-firmware-updater"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/teskal-firmware-updater.png")));
    const Translations translations(QLocale::system());

    const auto instance = SingleInstance::claim(QStringLiteral("teskal-firmware-updater"));
    if (!instance) {
        return EXIT_FAILURE;
    }
    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
