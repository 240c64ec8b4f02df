#include <QApplication>
#include <QDir>
#include <QLayout>
#include <QMainWindow>
#include <QSignalBlocker>
#include <QTemporaryDir>

#include "UiTestSupport.h"
#include "app/UpdateController.h"
#include "ui/AboutWindow.h"
#include "ui/AppDelegate.h"
#include "ui/Colors.h"
#include "ui/StatusDot.h"
#include "ui/UpdaterView.h"

// Renders the windows in their characteristic states to PNG files in
// TFU_SCREENS_DIR, for a person to look at.
class ScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void mainWindowStates();
    void aboutWindow();

  private:
    QImage save(QWidget* window, const QString& name);

    QDir m_screens{QStringLiteral(TFU_SCREENS_DIR)};
};

void ScreensTest::initTestCase() {
    QVERIFY(m_screens.mkpath(QStringLiteral(".")));
    QApplication::setWindowIcon(QIcon(QStringLiteral(TFU_ICON_PNG)));
    QVERIFY(!QApplication::windowIcon().isNull());
}

QImage ScreensTest::save(QWidget* window, const QString& name) {
    // Layouts settle through posted events; the monitor is quiet, so nothing else runs.
    QTest::qWait(50);
    const QImage image = window->grab().toImage();
    const QString path = m_screens.filePath(name + QStringLiteral(".png"));
    if (!image.save(path)) {
        qWarning("could not write %s", qPrintable(path));
        return {};
    }
    return image;
}

void ScreensTest::mainWindowStates() {
    QTemporaryDir resources;
    FakePort port;
    AppDelegate delegate(
        std::make_unique<UpdateController>(ResourceBundle(resources.path()), port.detector()),
        AppDelegate::Options());
    delegate.applicationDidFinishLaunching();
    QMainWindow* window = delegate.window();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const QSignalBlocker quiet(delegate.updateController().deviceMonitor());
    auto* view = qobject_cast<UpdaterView*>(window->centralWidget());
    const QString port0 = QStringLiteral("/dev/ttyACM0");

    QVERIFY(!save(window, QStringLiteral("main-idle")).isNull());

    view->showConnection(true, port0);
    view->showState(UpdateState::ready());
    view->showStatusMessage(QStringLiteral("Device connected"));
    const QImage ready = save(window, QStringLiteral("main-ready"));
    const QPoint dot = view->statusDot()->mapTo(window, view->statusDot()->rect().center());
    QCOMPARE(QColor(ready.pixel(dot * ready.devicePixelRatio())), AppColors::connected());

    view->showState(UpdateState::flashing(0.5f));
    view->showStatusMessage(QStringLiteral("Writing firmware…"));
    view->showLog({QStringLiteral("Updating firmware v2.10.6…"),
                   QStringLiteral("Checking device status…"),
                   QStringLiteral("Device running firmware v3.7.8 — updating firmware only.")});
    QVERIFY(!save(window, QStringLiteral("main-flashing-50")).isNull());

    const QString failure = QStringLiteral(
        "Failed to sync with device. Try unplugging and "
        "reconnecting.");
    view->showState(UpdateState::error(failure));
    view->showStatusMessage(failure);
    view->showLog({QStringLiteral("Updating firmware v2.10.6…"),
                   QStringLiteral("Checking device status…"),
                   QStringLiteral("Device not responding — writing boot partitions + firmware."),
                   QStringLiteral("ERROR: ") + failure});
    QVERIFY(!save(window, QStringLiteral("main-error")).isNull());

    QStringList lines;
    for (int i = 0; i < 500; ++i) {
        lines.append(QStringLiteral("FLASH_DATA block %1 of 500 at 0x%2")
                         .arg(i + 1)
                         .arg(0x10000 + i * 0x400, 8, 16, QLatin1Char('0')));
        view->showLog(lines);
    }
    view->showState(UpdateState::flashComplete());
    view->showStatusMessage(QStringLiteral("Device connected"));
    QVERIFY(!save(window, QStringLiteral("main-long-log")).isNull());
}

void ScreensTest::aboutWindow() {
    AboutWindow about(BuildConfig::products(), BuildConfig::buildDate(),
                      QApplication::windowIcon().pixmap(QSize(64, 64)));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    QVERIFY(about.grab().toImage().save(m_screens.filePath(QStringLiteral("about.png"))));
}

QTEST_MAIN(ScreensTest)
#include "ScreensTest.moc"
