#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTreeWidget>

#include "../support/HoldingProcess.h"
#include "UiTestSupport.h"
#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/SimulatedPlotter.h"
#include "ui/AppDelegate.h"
#include "ui/CompareWindow.h"
#include "ui/ConnectionCheckWindow.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/RepairDialog.h"
#include "ui/RestoreWindow.h"
#include "ui/ResultBanner.h"
#include "ui/UpdaterView.h"

// The whole program against the simulated plotter on a pseudo-terminal: the update
// button (clicked twice), Save Machine Config, and Compare With Machine with the
// compare window's upload run to the end; quitting during the update asks first.
class EndToEndTest : public QObject {
    Q_OBJECT

  private slots:
    // Dates in the window are the locale's; these cases read them in C's.
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void updateButtonAndConfigMenuRunTheirJobs();
    void aMachineLeftRestartingInALoopIsRepairedInTwoClicks();
    void anUpdateThatLeavesAMachineRestartingIsUndoneInOneClick();
    void theDemosConnectionCheckSeesItsPlotterAndWhoHoldsIt();
};

namespace {

// The simulated-plotter program's window on `plotter`, as its main() makes it.
std::unique_ptr<AppDelegate> simulatedProgram(const sim::PtyPlotter& plotter,
                                              AppDelegate::Options options = {}) {
    const std::string port = plotter.path();
    options.survey = simulatedSurvey(port);
    auto delegate = std::make_unique<AppDelegate>(
        std::make_unique<UpdateController>(
            ResourceBundle(TFU_DEV_RESOURCES_DIR),
            [port](uint16_t, uint16_t) { return strdup(port.c_str()); },
            UpdateController::DevelopmentImages::accept),
        std::move(options));
    delegate->applicationDidFinishLaunching();
    return delegate;
}

}  // namespace

void EndToEndTest::updateButtonAndConfigMenuRunTheirJobs() {
    const auto plotter =
        startSimulatedPlotter(ResourceBundle(TFU_DEV_RESOURCES_DIR), SimulatedPace::instant);
    int exits = 0;
    QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    QString suggestedName;
    AppDelegate::Options options;
    options.exitNow = [&exits] { ++exits; };
    options.chooseSaveFile = [&](QWidget*, const SaveRequest& request) {
        suggestedName = request.suggestedName;
        return std::optional(folder.filePath("machine.yaml"));
    };
    AppDelegate delegate(
        std::make_unique<UpdateController>(
            ResourceBundle(TFU_DEV_RESOURCES_DIR),
            [port = plotter->path()](uint16_t, uint16_t) { return strdup(port.c_str()); },
            UpdateController::DevelopmentImages::accept),
        std::move(options));
    delegate.applicationDidFinishLaunching();
    QMainWindow* window = delegate.window();
    auto* view = qobject_cast<UpdaterView*>(window->centralWidget());
    const QStringList& log = view->logPanel()->view()->lines();

    // From a job's first write to its end the button stays disabled, while the
    // monitor goes on publishing the connection four times a second.
    bool writing = false;
    bool buttonHeldDisabled = true;
    connect(&delegate.updateController(), &UpdateController::stateChanged, view,
            [&](const UpdateState& state) {
                using Kind = UpdateState::Kind;
                if (state.kind() == Kind::flashing || state.kind() == Kind::uploadingConfig) {
                    writing = true;
                } else if (state != UpdateState::ready()) {
                    writing = false;
                }
                buttonHeldDisabled &= !(writing && view->updateButton()->isEnabled());
            });

    QTRY_VERIFY(view->updateButton()->isEnabled());
    // A double click: the second arrives before the job has left "ready".
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);

    // The job has at least its probe and the port's settling time ahead of it.
    QStringList asked;
    answerNextMessageBox("Escape", &asked);
    QVERIFY(!window->close());
    answerNextMessageBox("Keep Running", &asked);
    menuItem(window, "Quit")->trigger();
    QCOMPARE(exits, 0);
    answerNextMessageBox("Quit Anyway", &asked);
    menuItem(window, "Quit")->trigger();
    QCOMPARE(exits, 1);
    const QString question = QStringLiteral(
        "An update is running. Quitting now can leave the machine unable to start. Quit "
        "anyway?|Keep Running|Quit Anyway|default Keep Running");
    QCOMPARE(asked, QStringList(3, question));
    QVERIFY(window->isVisible());

    // The log's lines are the job's, which the controller's and teskal-flash's cases check.
    QTRY_VERIFY_WITH_TIMEOUT(log.contains(QStringLiteral("Firmware update complete.")), 60000);
    QCOMPARE(log.filter(QStringLiteral("ERROR:")), QStringList());
    QTRY_VERIFY(!delegate.updateController().jobRunning());
    const ResultBanner* banner = view->resultBanner();
    QVERIFY(banner->isVisible());
    QCOMPARE(banner->headline()->text(), QStringLiteral("Firmware 2.10.6 installed and running."));
    QCOMPARE(log.last(), banner->headline()->text());
    QVERIFY(buttonHeldDisabled);
    QTRY_VERIFY(view->updateButton()->isEnabled());
    QTRY_COMPARE(view->statusLabel()->text(), QStringLiteral("Device connected"));
    QCOMPARE(view->portLabel()->text(), "(" + QString::fromStdString(plotter->path()) + ")");

    menuItem(window, "Save Machine Config\u2026")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(!delegate.updateController().jobRunning(), 20000);
    QCOMPARE(log.size(), 1);
    QVERIFY2(log.first().startsWith("Machine config saved to " + folder.filePath("machine.yaml")),
             qPrintable(log.first()));
    QVERIFY(suggestedName.startsWith("machine-config-"));

    const ProductConfig& product = BuildConfig::products().first();
    menuItem(window, product.name, "Compare With Machine\u2026")->trigger();
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
    QTRY_COMPARE_WITH_TIMEOUT(
        banner->headline()->text(),
        QStringLiteral("Configuration uploaded; the machine restarted with it."), 20000);
    QVERIFY(buttonHeldDisabled);

    // With Erase All Flash the update asks first; Cancel starts nothing.
    menuItem(window, "Erase All Flash")->trigger();
    QTRY_VERIFY(view->updateButton()->isEnabled());
    answerNextMessageBox("Cancel", &asked);
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QCOMPARE(asked.last(),
             "Erase All Flash also erases the machine's settings (config.yaml). Save them now and "
             "put them back after the update?|Save and Restore|Cancel|Erase Without Saving|default "
             "Save and Restore");
    QVERIFY(!delegate.updateController().jobRunning());
    asked.clear();

    // With no job running the window closes without a question.
    answerNextMessageBox("Keep Running", &asked);
    QVERIFY(window->close());
    QVERIFY(asked.isEmpty());
}

// Break it, see the red banner, press Repair: it comes back with its newest backup.
void EndToEndTest::aMachineLeftRestartingInALoopIsRepairedInTwoClicks() {
    QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    sim::Config config;
    config.startup = sim::Startup::BootLoop;
    const auto plotter = startSimulatedPlotter(ResourceBundle(TFU_DEV_RESOURCES_DIR),
                                               SimulatedPace::instant, config);
    const QString port = QString::fromStdString(plotter->path());
    const QByteArray settings = "name: Repaired plotter\nmeta: 1.2\n";
    BackupIndex::Source source;
    source.machine = DeviceQueries::machineIdentity(port);
    source.time = QDateTime(QDate(2026, 11, 24), QTime(14, 2));
    QVERIFY(std::holds_alternative<Backup>(BackupIndex().keep(settings, source)));
    const auto program = simulatedProgram(*plotter);
    AppDelegate& delegate = *program;
    auto* view = qobject_cast<UpdaterView*>(delegate.window()->centralWidget());

    // While the firmware answers, a repair saves its settings first and puts that
    // copy back, and the dialog says so; until it knows, it waits.
    QTRY_VERIFY(view->updateButton()->isEnabled());
    menuItem(delegate.window(), "Repair Machine\u2026")->trigger();
    RepairDialog* asking = delegate.repairDialog();
    QVERIFY(!asking->repairButton()->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(asking->repairButton()->isEnabled(), 10000);
    QCOMPARE(asking->sentence()->text(),
             QStringLiteral("Erase the machine, install firmware 2.10.6, then put back your "
                            "current settings, saved first."));
    asking->reject();

    QTRY_VERIFY(view->updateButton()->isEnabled());
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QPushButton* offer = nullptr;
    QTRY_VERIFY_WITH_TIMEOUT((offer = view->resultBanner()->findChild<QPushButton*>()) != nullptr,
                             60000);
    QCOMPARE(offer->text(), QStringLiteral("Repair\u2026"));
    const UpdateController& controller = delegate.updateController();
    // The status check that follows a restart may still hold the port.
    QTRY_VERIFY_WITH_TIMEOUT(!controller.jobRunning(), 30000);
    QTest::mouseClick(offer, Qt::LeftButton);
    RepairDialog* dialog = delegate.repairDialog();
    QVERIFY(dialog != nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(dialog->repairButton()->isEnabled(), 10000);
    QCOMPARE(dialog->sentence()->text(),
             QStringLiteral("Erase the machine, install firmware 2.10.6, then put back your "
                            "settings from 24 Nov 2026 14:02:00."));
    QTest::mouseClick(dialog->repairButton(), Qt::LeftButton);
    QVERIFY(controller.jobRunning());
    QTRY_VERIFY_WITH_TIMEOUT(!controller.jobRunning() && controller.result(), 60000);
    const StartupCause* startup = controller.result()->startup();
    QVERIFY2(startup != nullptr && startup->verdict == ESP_STARTUP_RUNNING,
             qPrintable(controller.logMessages().join('\n')));
    plotter->inspect([&](const sim::Plotter& p) {
        const auto stored = p.storedConfig().value_or(std::vector<uint8_t>{});
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(stored.data()), stored.size()), settings);
    });
}

// The demo's road: Snapshot Before Writing, an update that leaves the machine
// restarting in a loop, and "Undo Update" on the red banner puts back the flash it
// ran from, byte for byte. Another machine's snapshot is only put back when the
// owner says so.
void EndToEndTest::anUpdateThatLeavesAMachineRestartingIsUndoneInOneClick() {
    QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    const auto plotter =
        startSimulatedPlotter(ResourceBundle(TFU_DEV_RESOURCES_DIR), SimulatedPace::instant);
    const auto flash = [&plotter] {
        std::vector<uint8_t> bytes;
        plotter->inspect([&](const sim::Plotter& p) { bytes = p.flash(); });
        return bytes;
    };
    const std::vector<uint8_t> before = flash();
    QList<std::pair<QString, QString>> asked;
    AppDelegate::Options options;
    options.confirmOtherMachine = [&asked](QWidget*, const QString& owner, const QString& machine) {
        asked.append({owner, machine});
        return false;
    };
    const auto program = simulatedProgram(*plotter, std::move(options));
    AppDelegate& delegate = *program;
    const UpdateController& controller = delegate.updateController();
    auto* view = qobject_cast<UpdaterView*>(delegate.window()->centralWidget());
    menuItem(delegate.window(), "Snapshot Before Writing")->trigger();
    plotter->modify([](sim::Plotter& p) { p.config().startup = sim::Startup::BootLoop; });

    QTRY_VERIFY(view->updateButton()->isEnabled());
    QTest::mouseClick(view->updateButton(), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!controller.jobRunning() && controller.result(), 60000);
    QCOMPARE(controller.result()->kind, Outcome::Kind::notStarting);
    const QList<QPushButton*> offers = view->resultBanner()->findChildren<QPushButton*>();
    QVERIFY(offers.size() >= 2);
    QCOMPARE(offers[0]->text(), QStringLiteral("Undo Update"));
    QCOMPARE(offers[1]->text(), QStringLiteral("Repair…"));
    QVERIFY(flash() != before);

    QTest::mouseClick(offers[0], Qt::LeftButton);
    QVERIFY(controller.jobRunning());
    QTRY_VERIFY_WITH_TIMEOUT(!controller.jobRunning() && controller.result(), 60000);
    QVERIFY2(controller.result()->kind == Outcome::Kind::succeeded,
             qPrintable(controller.logMessages().join('\n')));
    QVERIFY(controller.logMessages().last().startsWith("Machine put back as it was on "));
    QVERIFY(flash() == before);
    plotter->inspect([](const sim::Plotter& p) { QCOMPARE(p.startup(), sim::Startup::Healthy); });

    // The list puts this machine's snapshot first; another machine's asks first.
    const QString machine = DeviceQueries::machineIdentity(QString::fromStdString(plotter->path()));
    const QString mine = BackupIndex().list(BackupIndex::Family::snapshots).first().path;
    BackupIndex::Source other{BackupReason::snapshot, "SN-OTHER", std::nullopt,
                              QDateTime::currentDateTime().addDays(1), SnapshotFacts{}};
    QVERIFY(std::holds_alternative<Backup>(BackupIndex().keep(readFile(mine), other)));
    menuItem(delegate.window(), "Restore Whole Machine…")->trigger();
    RestoreWindow* window = delegate.restoreWindow();
    QCOMPARE(window->backups().size(), 2);
    QCOMPARE(window->backups()[0].path, mine);
    window->list()->setCurrentItem(window->list()->topLevelItem(1));
    QTest::mouseClick(window->restoreButton(), Qt::LeftButton);
    QCOMPARE(asked, (QList<std::pair<QString, QString>>{{"SN-OTHER", machine}}));
    QVERIFY(!controller.jobRunning());
}

// The demo's Connection Check, from the Help menu, sees the simulated plotter as
// the plotter: it names the program that holds its port, and says "Ready" once that
// program lets go.
void EndToEndTest::theDemosConnectionCheckSeesItsPlotterAndWhoHoldsIt() {
    const auto plotter =
        startSimulatedPlotter(ResourceBundle(TFU_DEV_RESOURCES_DIR), SimulatedPace::instant);
    const QString port = QString::fromStdString(plotter->path());
    auto monitor = std::make_unique<HoldingProcess>(plotter->path());
    const auto program = simulatedProgram(*plotter);
    menuItem(program->window(), "Connection Check\u2026")->trigger();
    ConnectionCheckWindow* check = program->connectionCheckWindow();
    QVERIFY(check != nullptr && QTest::qWaitForWindowExposed(check));
    QSignalSpy ready(check, &ConnectionCheckWindow::plotterReady);
    QStringList rows;
    for (const CheckRow& row : check->checklist().rows) {
        rows << row.line + (row.fix.isEmpty() ? QString() : " | " + row.fix);
    }
    QCOMPARE(rows, QStringList({"Plotter seen on USB (303a:1001).",
                                "Serial port " + port + " made for it by pty.",
                                "You may open " + port + ".",
                                QString("%1 is in use by sleep (pid %2). | Close that program and "
                                        "try again.")
                                    .arg(port)
                                    .arg(monitor->pid)}));

    monitor.reset();
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 5000);
    QCOMPARE(ready.first().first().toString(), port);
    QCOMPARE(check->checklist().rows.last().line,
             "Ready: the plotter on " + port + " can be used.");
}

QTEST_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
