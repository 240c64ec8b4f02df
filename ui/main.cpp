#include <QApplication>
#include <QIcon>

#include "ui/AppDelegate.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Teskal Firmware Updater"));
    QApplication::setDesktopFileName(QStringLiteral("teskal-firmware-updater"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/teskal-firmware-updater.png")));

    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
