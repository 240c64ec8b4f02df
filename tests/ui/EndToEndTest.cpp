#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <cstring>

#include "UiTestSupport.h"
#include "app/BuildConfig.h"
#include "app/UpdateController.h"
#include "sim/PtyPlotter.h"
#include "ui/AppDelegate.h"
#include "ui/CompareWindow.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/UpdaterView.h"

namespace {

// The item titled `title`; in the menu titled `menu` when one is named, since a
// product's name stands in two submenus.
QAction* menuItem(const AppDelegate& delegate, const QString& title, const QString& menu = {}) {
    for (QAction* item : delegate.window()->menuBar()->findChildren<QAction*>()) {
        const auto* owner = qobject_cast<const QMenu*>(item->parent());
        if (item->text() == title && (menu.isEmpty() || (owner && owner->title() == menu))) {
            return item;
        }
    }
    qFatal("no menu item %s", qPrintable(title));
}

}  // namespace

// The whole program against the simulated plotter on a pseudo-terminal: the update
// button (clicked twice), Save Machine Config, and Compare With Machine followed by
// the compare window's upload each run their job to the end; closing or quitting
// while the update runs asks first.
class EndToEndTest : public QObject {
    Q_OBJECT

  private slots:
    void updateButtonAndConfigMenuRunTheirJobs();
};

void EndToEndTest::updateButtonAndConfigMenuRunTheirJobs() {
    sim::PtyPlotter plotter;
    int exits = 0;
    QTemporaryDir folder;
    QString suggestedName;
    AppDelegate::Options options;
    options.exitNow = [&exits] { ++exits; };
    options.chooseSaveFile = [&](QWidget*, const SaveRequest& request) {
        suggestedName = request.suggestedName;
        return std::optional(folder.filePath("machine.yaml"));
    };
    AppDelegate delegate(
        std::make_unique<UpdateController>(
            ResourceBundle(QStringLiteral(TFU_DEV_RESOURCES_DIR)),
            [port = plotter.path()](uint16_t, uint16_t) { return strdup(port.c_str()); },
            UpdateController::DevelopmentImages::accept),
        std::move(options));
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

    // The job has at least its probe and the port's settling time ahead of it.
    QStringList asked;
    answerNextMessageBox("Escape", &asked);
    QVERIFY(!delegate.window()->close());
    answerNextMessageBox("Keep Running", &asked);
    menuItem(delegate, "Quit")->trigger();
    QCOMPARE(exits, 0);
    answerNextMessageBox("Quit Anyway", &asked);
    menuItem(delegate, "Quit")->trigger();
    QCOMPARE(exits, 1);
    const QString question = QStringLiteral(
        "An update is running. Quitting now can leave the machine unable to start. Quit "
        "anyway?|Keep Running|Quit Anyway|default Keep Running");
    QCOMPARE(asked, QStringList(3, question));
    QVERIFY(delegate.window()->isVisible());

    QTRY_VERIFY_WITH_TIMEOUT(log.contains(QStringLiteral("Firmware update complete.")), 60000);
    QVERIFY(barShown && buttonHeldDisabled);
    QCOMPARE(log.filter(QStringLiteral("ERROR:")), QStringList());
    QTRY_VERIFY(view->updateButton()->isEnabled());
    QTRY_COMPARE(view->statusLabel()->text(), QStringLiteral("Device connected"));
    QCOMPARE(view->portLabel()->text(), "(" + QString::fromStdString(plotter.path()) + ")");

    menuItem(delegate, "Save Machine Config\u2026")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(!delegate.updateController().jobRunning(), 20000);
    QCOMPARE(log.size(), 1);
    QVERIFY2(log.first().startsWith("Machine config saved to " + folder.filePath("machine.yaml")),
             qPrintable(log.first()));
    QVERIFY(QRegularExpression("^machine-config-\\d{8}-\\d{4}\\.yaml$")
                .match(suggestedName)
                .hasMatch());

    const ProductConfig& product = BuildConfig::products().first();
    menuItem(delegate, product.name, "Compare With Machine\u2026")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(delegate.compareWindow() != nullptr, 20000);
    CompareWindow* compare = delegate.compareWindow();
    QVERIFY(QTest::qWaitForWindowExposed(compare));
    QVERIFY(
        compare->keyView()->toPlainText().contains("name: Simulated plotter → " + product.name));
    QTRY_VERIFY(!delegate.updateController().jobRunning());
    QTest::mouseClick(compare->uploadButton(), Qt::LeftButton);
    QVERIFY(!compare->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(log.contains(QStringLiteral("Upload successful; restarting machine.")),
                             60000);
    QVERIFY(log.first().startsWith(QStringLiteral("Preparing ") + product.name + " config"));

    // With no job running the window closes without a question.
    QTRY_VERIFY(!delegate.updateController().jobRunning());
    answerNextMessageBox("Keep Running", &asked);
    QVERIFY(delegate.window()->close());
    QCOMPARE(asked.size(), 3);
}

QTEST_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
