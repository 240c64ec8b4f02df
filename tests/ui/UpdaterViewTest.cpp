#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <QToolButton>

#include "UiTestSupport.h"
#include "app/UpdateController.h"
#include "ui/Colors.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/StatusDot.h"
#include "ui/UpdaterView.h"

namespace {

enum class Bar { hidden, determinate, indeterminate };

}  // namespace

Q_DECLARE_METATYPE(Bar)

class UpdaterViewTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void cleanup();

    void buttonAndProgressFollowStateAndConnection_data();
    void buttonAndProgressFollowStateAndConnection();
    void hiddenProgressBarTakesNoSpace();
    void statusRowShowsPortOnlyWhenPresent();
    void errorLinesAreBold_data();
    void errorLinesAreBold();
    void copyButtonExistsWhileTheLogHasLines();
    void copyPutsTheLinesJoinedByNewlines();
    void scrollsToTheLastLineWhenTheCountChanges();
    void aLongerListThatIsNotAnExtensionReplacesTheLines();
    void followsTheControllerAndItsMonitor();

  private:
    // A controller whose monitor stays silent, so states shown by a test are not
    // replaced by "ready" or "idle" at the next poll.
    std::unique_ptr<UpdateController> m_controller;
    std::unique_ptr<QSignalBlocker> m_quietMonitor;
    std::unique_ptr<UpdaterView> m_view;
    QTemporaryDir m_resources;
    FakePort m_port;
};

void UpdaterViewTest::init() {
    m_controller =
        std::make_unique<UpdateController>(ResourceBundle(m_resources.path()), m_port.detector());
    m_quietMonitor = std::make_unique<QSignalBlocker>(m_controller->deviceMonitor());
    m_view = std::make_unique<UpdaterView>(*m_controller);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void UpdaterViewTest::cleanup() {
    m_view.reset();
    m_quietMonitor.reset();
    m_controller.reset();
    m_port.unplug();
}

void UpdaterViewTest::buttonAndProgressFollowStateAndConnection_data() {
    QTest::addColumn<UpdateState>("state");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Bar>("bar");

    const struct {
        const char* name;
        UpdateState state;
        bool notBusy;
        Bar bar;
    } states[] = {
        {"flashing(0.5)", UpdateState::flashing(0.5f), false, Bar::determinate},
        {"uploadingConfig(0.25)", UpdateState::uploadingConfig(0.25f), false, Bar::determinate},
        {"error", UpdateState::error(QStringLiteral("Flash write failed. Try again.")), true,
         Bar::hidden},
        {"idle", UpdateState::idle(), true, Bar::hidden},
        {"ready", UpdateState::ready(), true, Bar::hidden},
        {"enteringBootloader", UpdateState::enteringBootloader(), false, Bar::indeterminate},
        {"syncing", UpdateState::syncing(), false, Bar::indeterminate},
        {"uploadingStub", UpdateState::uploadingStub(), false, Bar::indeterminate},
        {"probing", UpdateState::probing(), false, Bar::indeterminate},
        {"verifying", UpdateState::verifying(), false, Bar::hidden},
        {"flashComplete", UpdateState::flashComplete(), true, Bar::hidden},
        {"configComplete", UpdateState::configComplete(), true, Bar::hidden},
    };
    for (const auto& row : states) {
        QTest::addRow("%s connected", row.name) << row.state << true << row.notBusy << row.bar;
        QTest::addRow("%s no device", row.name) << row.state << false << false << row.bar;
    }
}

void UpdaterViewTest::buttonAndProgressFollowStateAndConnection() {
    QFETCH(UpdateState, state);
    QFETCH(bool, connected);
    QFETCH(bool, enabled);
    QFETCH(Bar, bar);

    // Arrive from the opposite connection and a busy state, so no value is left
    // over from construction.
    m_view->showConnection(!connected, std::nullopt);
    m_view->showState(UpdateState::syncing());
    m_view->showConnection(connected, std::optional<QString>(QStringLiteral("/dev/ttyACM0")));
    m_view->showState(state);

    QCOMPARE(m_view->updateButton()->isEnabled(), enabled);
    const QProgressBar* progress = m_view->progressBar();
    QCOMPARE(progress->isVisibleTo(m_view.get()), bar != Bar::hidden);
    if (bar == Bar::determinate) {
        QCOMPARE(progress->minimum(), 0);
        QVERIFY(progress->maximum() > 0);
        const double fraction = double(progress->value()) / progress->maximum();
        QVERIFY(qAbs(fraction - state.progress()) < 0.01);
        QCOMPARE(progress->palette().color(QPalette::Highlight), AppColors::accent());
    } else if (bar == Bar::indeterminate) {
        QCOMPARE(progress->minimum(), 0);
        QCOMPARE(progress->maximum(), 0);
        QCOMPARE(progress->palette().color(QPalette::Highlight),
                 QGuiApplication::palette().color(QPalette::Highlight));
    }
}

void UpdaterViewTest::hiddenProgressBarTakesNoSpace() {
    m_view->showState(UpdateState::ready());
    m_view->layout()->activate();
    const int buttonTop = m_view->updateButton()->y();
    const int labelBottom = m_view->firmwareLabel()->geometry().bottom();
    QCOMPARE(buttonTop - labelBottom - 1, 16);

    m_view->showState(UpdateState::flashing(0.5f));
    m_view->layout()->activate();
    QCOMPARE(m_view->updateButton()->y(),
             buttonTop + m_view->progressBar()->height() + m_view->layout()->spacing());
}

void UpdaterViewTest::statusRowShowsPortOnlyWhenPresent() {
    m_view->showConnection(true, std::optional<QString>(QStringLiteral("/dev/ttyACM0")));
    QVERIFY(m_view->portLabel()->isVisibleTo(m_view.get()));
    QCOMPARE(m_view->portLabel()->text(), QStringLiteral("(/dev/ttyACM0)"));
    QCOMPARE(m_view->statusDot()->color(), AppColors::connected());

    m_view->showConnection(false, std::nullopt);
    QVERIFY(!m_view->portLabel()->isVisibleTo(m_view.get()));
    QCOMPARE(m_view->statusDot()->color(), AppColors::disconnected());
}

void UpdaterViewTest::errorLinesAreBold_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("bold");
    QTest::newRow("error") << QStringLiteral("ERROR: Flash write failed. Try again.") << true;
    QTest::newRow("bare prefix") << QStringLiteral("ERROR:") << true;
    QTest::newRow("lower case") << QStringLiteral("error: no") << false;
    QTest::newRow("leading blank") << QStringLiteral(" ERROR: no") << false;
    QTest::newRow("no colon") << QStringLiteral("ERROR no") << false;
    QTest::newRow("plain") << QStringLiteral("Firmware update complete.") << false;
}

void UpdaterViewTest::errorLinesAreBold() {
    QFETCH(QString, line);
    QFETCH(bool, bold);
    const LogView* log = m_view->logPanel()->view();
    QCOMPARE(log->fontFor(line).bold(), bold);
    QCOMPARE(log->fontFor(line).pointSizeF(), 11.0);
}

void UpdaterViewTest::copyButtonExistsWhileTheLogHasLines() {
    const QToolButton* copy = m_view->logPanel()->copyButton();
    QVERIFY(!copy->isVisibleTo(m_view.get()));
    m_view->showLog({QStringLiteral("first")});
    QVERIFY(copy->isVisibleTo(m_view.get()));
    QCOMPARE(copy->toolTip(), QStringLiteral("Copy log to clipboard"));
    m_view->showLog({});
    QVERIFY(!copy->isVisibleTo(m_view.get()));
    QCOMPARE(m_view->logPanel()->view()->lines().size(), 0);
}

void UpdaterViewTest::copyPutsTheLinesJoinedByNewlines() {
    QGuiApplication::clipboard()->setText(QStringLiteral("previous content"));
    m_view->showLog({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QTest::mouseClick(m_view->logPanel()->copyButton(), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\nb\nc"));
}

void UpdaterViewTest::scrollsToTheLastLineWhenTheCountChanges() {
    LogView* log = m_view->logPanel()->view();
    const QScrollBar* bar = log->verticalScrollBar();
    QStringList lines;
    for (int i = 0; i < 60; ++i) {
        lines.append(QStringLiteral("line ") + QString::number(i));
        m_view->showLog(lines);
    }
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // The same number of lines with new text does not scroll.
    log->verticalScrollBar()->setValue(0);
    lines.last() = QStringLiteral("changed");
    m_view->showLog(lines);
    QTest::qWait(50);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(log->lines().last(), QStringLiteral("changed"));

    lines.append(QStringLiteral("one more"));
    m_view->showLog(lines);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // Emptying the log, even straight after a line arrived, does not scroll.
    log->verticalScrollBar()->setValue(0);
    lines.append(QStringLiteral("last"));
    m_view->showLog(lines);
    m_view->showLog({});
    QTRY_COMPARE(bar->maximum(), 0);
    QCOMPARE(bar->value(), 0);
}

void UpdaterViewTest::aLongerListThatIsNotAnExtensionReplacesTheLines() {
    m_view->showLog({QStringLiteral("old 0"), QStringLiteral("old 1")});
    const QStringList replacement{QStringLiteral("new 0"), QStringLiteral("new 1"),
                                  QStringLiteral("new 2")};
    m_view->showLog(replacement);
    QCOMPARE(m_view->logPanel()->view()->lines(), replacement);
}

void UpdaterViewTest::followsTheControllerAndItsMonitor() {
    m_quietMonitor.reset();
    QCOMPARE(m_view->statusLabel()->text(), QStringLiteral("Waiting for device…"));
    QCOMPARE(m_view->firmwareLabel()->text(), QStringLiteral("Firmware version 2.10.6"));
    QVERIFY(!m_view->updateButton()->isEnabled());

    // A port that does not open: the job fails at once on the empty resources.
    m_port.plug("/nonexistent/ttyACM7");
    QTRY_VERIFY(m_view->updateButton()->isEnabled());
    QCOMPARE(m_view->statusLabel()->text(), QStringLiteral("Device connected"));
    QCOMPARE(m_view->portLabel()->text(), QStringLiteral("(/nonexistent/ttyACM7)"));
    QCOMPARE(m_view->statusDot()->color(), AppColors::connected());

    QTest::mouseClick(m_view->updateButton(), Qt::LeftButton);
    QTRY_COMPARE(m_view->logPanel()->view()->lines(),
                 QStringList{QStringLiteral("ERROR: Bundled firmware not found")});
    QTRY_COMPARE(m_view->statusLabel()->text(), QStringLiteral("Device connected"));

    m_controller->chooseCustomFirmware(QStringLiteral("/some/where/custom.bin"));
    QCOMPARE(m_view->firmwareLabel()->text(), QStringLiteral("custom.bin"));

    m_port.unplug();
    QTRY_VERIFY(!m_view->updateButton()->isEnabled());
    QCOMPARE(m_view->statusLabel()->text(), QStringLiteral("Waiting for device…"));
    QVERIFY(!m_view->portLabel()->isVisibleTo(m_view.get()));
}

QTEST_MAIN(UpdaterViewTest)
#include "UpdaterViewTest.moc"
