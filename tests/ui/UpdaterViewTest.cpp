#include <QClipboard>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include "UiTestSupport.h"
#include "ui/Colors.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/StatusDot.h"
#include "ui/UpdaterView.h"

class UpdaterViewTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        view_ = std::make_unique<UpdaterView>(controller_);
        view_->show();
        QVERIFY(QTest::qWaitForWindowExposed(view_.get()));
    }

    void buttonProgressAndStatusRowFollowStateAndConnection_data();
    void buttonProgressAndStatusRowFollowStateAndConnection();
    void statusLineStaysOneLineEllipsisAndTooltipWhenTooLong();
    void errorLinesAreBoldAndTheCopyButtonCopiesAll();
    void scrollsToTheLastLineWhenTheCountChanges();

  private:
    // The monitor stays silent, so states shown by a test are not replaced by
    // "ready" or "idle" at the next poll.
    UpdateController controller_{ResourceBundle(QString()), noDevice};
    QSignalBlocker quietMonitor_{controller_.deviceMonitor()};
    std::unique_ptr<UpdaterView> view_;
};

void UpdaterViewTest::buttonProgressAndStatusRowFollowStateAndConnection_data() {
    QTest::addColumn<UpdateState>("state");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("bar");  // hidden, determinate or indeterminate
    const std::tuple<UpdateState, bool, QString> rows[] = {
        {UpdateState::flashing(0.5f), false, "determinate"},
        {UpdateState::uploadingConfig(0.25f), false, "determinate"},
        {UpdateState::error(QStringLiteral("Flash write failed.")), true, "hidden"},
        {UpdateState::idle(), true, "hidden"},
        {UpdateState::ready(), true, "hidden"},
        {UpdateState::downloadingConfig(), false, "indeterminate"},
        {UpdateState::flashComplete(), true, "hidden"},
        {UpdateState::configComplete(), true, "hidden"},
    };
    for (const auto& [state, notBusy, bar] : rows) {
        const QByteArray name = state.toString().toUtf8();
        QTest::addRow("%s connected", name.data()) << state << true << notBusy << bar;
        QTest::addRow("%s no device", name.data()) << state << false << false << bar;
    }
}

void UpdaterViewTest::buttonProgressAndStatusRowFollowStateAndConnection() {
    QFETCH(UpdateState, state);
    QFETCH(bool, connected);
    QFETCH(bool, enabled);
    QFETCH(QString, bar);

    // Arrive from the opposite connection and a busy state, so nothing is left over.
    const auto path = connected ? std::optional(QStringLiteral("/dev/ttyACM0")) : std::nullopt;
    view_->showConnection(!connected, std::nullopt);
    view_->showState(UpdateState::downloadingConfig());
    view_->showConnection(connected, path);
    view_->showState(state);
    QCOMPARE(view_->updateButton()->isEnabled(), enabled);
    view_->showConnection(connected, path);  // the monitor publishes on every poll

    QCOMPARE(view_->portLabel()->isVisibleTo(view_.get()), connected);
    QVERIFY(!connected || view_->portLabel()->text() == QStringLiteral("(/dev/ttyACM0)"));
    QCOMPARE(view_->statusDot()->color(),
             connected ? AppColors::connected() : AppColors::disconnected());

    QCOMPARE(view_->updateButton()->isEnabled(), enabled);
    const QProgressBar* progress = view_->progressBar();
    QCOMPARE(progress->isVisibleTo(view_.get()), bar != "hidden");
    if (bar == "determinate") {
        QVERIFY(qAbs(double(progress->value()) / progress->maximum() - state.progress()) < 0.01);
        QCOMPARE(progress->palette().color(QPalette::Highlight), AppColors::accent());
    } else if (bar == "indeterminate") {
        QCOMPARE(progress->maximum(), 0);
    }
}

void UpdaterViewTest::statusLineStaysOneLineEllipsisAndTooltipWhenTooLong() {
    view_->showConnection(true, QStringLiteral("/dev/ttyACM0"));
    view_->layout()->activate();
    const QRect firmwareBefore = view_->firmwareLabel()->geometry();
    const ElidedLabel* status = view_->statusLabel();
    for (const auto& [message, elided] :
         {std::pair{QStringLiteral("Device connected"), false},
          std::pair{QStringLiteral("Failed to sync with device. Try unplugging and reconnecting."),
                    true}}) {
        view_->showStatusMessage(message);
        view_->layout()->activate();
        QCOMPARE(status->text() == message, !elided);
        QCOMPARE(status->text().endsWith(QStringLiteral("…")), elided);
        QCOMPARE(status->toolTip(), elided ? message : QString());
        QVERIFY(status->geometry().right() < view_->portLabel()->geometry().left());
        QCOMPARE(view_->firmwareLabel()->geometry(), firmwareBefore);
    }
}

void UpdaterViewTest::errorLinesAreBoldAndTheCopyButtonCopiesAll() {
    const LogView* log = view_->logPanel()->view();
    for (const auto& [entry, bold] : {std::pair{LogEntry::error("Flash write failed."), true},
                                      std::pair{LogEntry::info("error: no"), false},
                                      std::pair{LogEntry::info("ERROR no"), false}}) {
        QVERIFY2(log->fontFor(entry).bold() == bold, qPrintable(entry.line()));
    }

    const QToolButton* copy = view_->logPanel()->copyButton();
    QVERIFY(!copy->isVisibleTo(view_.get()));
    view_->showLog(infoEntries({"old"}));  // replaced, though the new list is longer
    view_->showLog(infoEntries({"a", "b", "c"}));
    QVERIFY(copy->isVisibleTo(view_.get()));
    QGuiApplication::clipboard()->setText(QStringLiteral("previous content"));
    QTest::mouseClick(view_->logPanel()->copyButton(), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\nb\nc"));
    view_->showLog({});
    QVERIFY(!copy->isVisibleTo(view_.get()));
}

void UpdaterViewTest::scrollsToTheLastLineWhenTheCountChanges() {
    LogView* log = view_->logPanel()->view();
    QScrollBar* bar = log->verticalScrollBar();
    LogEntries lines(60, LogEntry::info("line"));
    view_->showLog(lines);
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // The same number of lines with new text does not scroll.
    bar->setValue(0);
    lines.last() = LogEntry::info("changed");
    view_->showLog(lines);
    QTest::qWait(50);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(log->lines().last(), QStringLiteral("changed"));

    lines.append(LogEntry::info("one more"));
    view_->showLog(lines);
    QTRY_COMPARE(bar->value(), bar->maximum());

    // Emptying the log, even straight after a line arrived, does not scroll.
    bar->setValue(0);
    lines.append(LogEntry::info("last"));
    view_->showLog(lines);
    view_->showLog({});
    QTRY_COMPARE(bar->maximum(), 0);
    QCOMPARE(bar->value(), 0);
}

QTEST_MAIN(UpdaterViewTest)
#include "UpdaterViewTest.moc"
