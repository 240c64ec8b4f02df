#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <cstring>

#include "app/BuildConfig.h"
#include "app/UpdateController.h"
#include "sim/PtyPlotter.h"
#include "ui/AppDelegate.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/UpdaterView.h"

// The whole program against the simulated plotter on a pseudo-terminal: the update
// button (clicked twice) and a product's menu item each run their job to the end.
class EndToEndTest : public QObject {
    Q_OBJECT

  private slots:
    void updateButtonAndConfigMenuRunTheirJobs();
};

void EndToEndTest::updateButtonAndConfigMenuRunTheirJobs() {
    sim::PtyPlotter plotter;
    AppDelegate delegate(
        std::make_unique<UpdateController>(
            ResourceBundle(QStringLiteral(TFU_DEV_RESOURCES_DIR)),
            [port = plotter.path()](uint16_t, uint16_t) { return strdup(port.c_str()); },
            UpdateController::DevelopmentImages::accept),
        AppDelegate::Options());
    delegate.applicationDidFinishLaunching();
    auto* view = qobject_cast<UpdaterView*>(delegate.window()->centralWidget());
    const QStringList& log = view->logPanel()->view()->lines();

    bool barShown = false;
    bool buttonHeldDisabled = true;
    connect(&delegate.updateController(), &UpdateController::stateChanged, view,
            [&](const UpdateState& state) {
                if (state.kind() == UpdateState::Kind::flashing) {
                    barShown |= view->progressBar()->isVisibleTo(view);
                    buttonHeldDisabled &= !view->updateButton()->isEnabled();
                }
            });

    QTRY_VERIFY(view->updateButton()->isEnabled());
    // A double click: the second arrives before the job has left "ready".
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(log.contains(QStringLiteral("Firmware update complete.")), 60000);
    QVERIFY(barShown && buttonHeldDisabled);
    QCOMPARE(log.filter(QStringLiteral("ERROR:")), QStringList());
    QTRY_VERIFY(view->updateButton()->isEnabled());
    QTRY_COMPARE(view->statusLabel()->text(), QStringLiteral("Device connected"));
    QCOMPARE(view->portLabel()->text(), "(" + QString::fromStdString(plotter.path()) + ")");

    const ProductConfig& product = BuildConfig::products().first();
    for (QAction* item : delegate.window()->menuBar()->findChildren<QAction*>()) {
        if (item->text() == product.name) {
            item->trigger();
        }
    }
    QTRY_VERIFY_WITH_TIMEOUT(log.contains(QStringLiteral("Upload successful; restarting machine.")),
                             60000);
    QVERIFY(log.first().startsWith(QStringLiteral("Preparing ") + product.name + " config"));
}

QTEST_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
