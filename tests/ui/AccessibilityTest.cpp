#include <QAccessible>
#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>
#include <QtMath>

#include "../support/FakeSysfs.h"
#include "UiTestSupport.h"
#include "app/operations/CheckStartup.h"
#include "ui/AboutWindow.h"
#include "ui/AppDelegate.h"
#include "ui/Colors.h"
#include "ui/CompareWindow.h"
#include "ui/ConnectionCheckWindow.h"
#include "ui/EraseQuestions.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/QuitGuard.h"
#include "ui/RepairDialog.h"
#include "ui/RestoreWindow.h"
#include "ui/ResultBanner.h"
#include "ui/UpdaterView.h"

namespace {

// WCAG 2's contrast ratio, written out here so that the window's own arithmetic is
// not what checks it.
double contrast(const QColor& a, const QColor& b) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : qPow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const double la = luminance(a) + 0.05;
    const double lb = luminance(b) + 0.05;
    return std::max(la, lb) / std::min(la, lb);
}

QPalette darkPalette() {
    QPalette dark;
    const QColor window(53, 53, 53);
    const QColor base(35, 35, 35);
    for (const auto& [role, colour] : {std::pair{QPalette::Window, window},
                                       {QPalette::WindowText, QColor(Qt::white)},
                                       {QPalette::Base, base},
                                       {QPalette::AlternateBase, window},
                                       {QPalette::Text, QColor(Qt::white)},
                                       {QPalette::Button, window},
                                       {QPalette::ButtonText, QColor(Qt::white)},
                                       {QPalette::Highlight, QColor(42, 130, 218)},
                                       {QPalette::HighlightedText, QColor(Qt::black)},
                                       {QPalette::Link, QColor(42, 130, 218)}}) {
        dark.setColor(role, colour);
    }
    return dark;
}

// The colours a label's text is drawn in: those written into rich text, else its
// palette's.
QList<QColor> textColours(const QLabel* label) {
    QList<QColor> colours{label->palette().color(QPalette::WindowText)};
    if (label->textFormat() == Qt::RichText) {
        QTextDocument document;
        document.setHtml(label->text());
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                if (piece.fragment().charFormat().hasProperty(QTextFormat::ForegroundBrush)) {
                    colours = {piece.fragment().charFormat().foreground().color()};
                }
            }
        }
    }
    return colours;
}

}  // namespace

// What a keyboard and a screen reader meet in the window (the AT-SPI test reads it
// as a real client does), and whether its text can be read in a light and a dark
// palette.
class AccessibilityTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        view_ = std::make_unique<UpdaterView>(controller_);
        view_->show();
        QVERIFY(QTest::qWaitForWindowActive(view_.get()));
        view_->showConnection(true, QStringLiteral("/dev/ttyACM0"));
        view_->showState(UpdateState::ready());
    }
    void cleanup() { QApplication::setPalette(QApplication::style()->standardPalette()); }

    void tabReachesEveryActionAndShowsWhereItIs();
    void progressAndStatusSayTheStageAndTheWholeText();
    void escapeClosesEveryDialog();
    void textReadsOnItsBackgroundInLightAndDarkPalettes();

  private:
    void showBanner(int verdict, bool previousOffered = false) {
        FlasherBridge::StartupReport report;
        report.verdict = verdict;
        report.version = QString(verdict == ESP_STARTUP_WRONG_VERSION ? "2.9.1" : "2.10.6");
        report.evidence = {QStringLiteral("rst:0xc (RTC_SW_CPU_RST),boot:0x8")};
        Outcome outcome = startupOutcome(report, StartupCause::Written::firmware, "2.10.6");
        if (previousOffered) {
            std::get<StartupCause>(outcome.cause).previous = Backup{};
        }
        view_->showResult(outcome);
    }
    // The text colours of `window`'s visible labels and buttons against what they
    // stand on, each below the ratio written into `failures`.
    void checkContrast(QWidget* window, const QString& where, QStringList& failures);

    UpdateController controller_{ResourceBundle(QString()), noDevice};
    QSignalBlocker quietMonitor_{controller_.deviceMonitor()};
    std::unique_ptr<UpdaterView> view_;
};

void AccessibilityTest::tabReachesEveryActionAndShowsWhereItIs() {
    view_->showLog(infoEntries({"Firmware update complete."}));
    showBanner(ESP_STARTUP_BOOT_LOOP, true);
    QPushButton* restore = nullptr;
    QPushButton* repair = nullptr;
    for (QPushButton* offer : view_->resultBanner()->findChildren<QPushButton*>()) {
        (offer->text() == QStringLiteral("Repair…") ? repair : restore) = offer;
    }
    QVERIFY(restore != nullptr && repair != nullptr);
    const QList<QWidget*> stops = {view_->updateButton(),
                                   restore,
                                   repair,
                                   view_->resultBanner()->closeButton(),
                                   view_->logPanel()->view(),
                                   view_->logPanel()->copyButton()};
    // Focus shows when it came by the keyboard.
    view_->logPanel()->copyButton()->setFocus();
    QTest::keyClick(view_->logPanel()->copyButton(), Qt::Key_Tab);
    for (QWidget* stop : stops) {
        QCOMPARE(QApplication::focusWidget(), stop);
        // An outline may be drawn a little outside the control itself.
        const QRect area =
            QRect(stop->mapTo(view_.get(), QPoint()), stop->size()).adjusted(-10, -10, 10, 10);
        const QImage focused = view_->grab(area).toImage();
        stop->clearFocus();
        QVERIFY2(view_->grab(area).toImage() != focused,
                 qPrintable(stop->metaObject()->className() + QStringLiteral(" shows no focus")));
        stop->setFocus(Qt::TabFocusReason);
        QTest::keyClick(stop, Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), view_->updateButton());
}

void AccessibilityTest::progressAndStatusSayTheStageAndTheWholeText() {
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(view_->progressBar());
    // The fraction shown, or none for a bar that only moves.
    const std::tuple<UpdateState, QString, std::optional<double>> stages[] = {
        {UpdateState::flashing(0.5f), "Writing firmware", 0.5},
        {UpdateState::checkingStartup(), "Checking that the machine starts", std::nullopt},
        {UpdateState::uploadingConfig(0.25f), "Uploading configuration", 0.25},
        {UpdateState::downloadingConfig(), "Reading the machine's configuration", std::nullopt},
    };
    for (const auto& [state, name, fraction] : stages) {
        view_->showState(state);
        QCOMPARE(bar->text(QAccessible::Name), name);
        const QAccessibleValueInterface* value = bar->valueInterface();
        if (fraction) {
            QCOMPARE(value->currentValue().toDouble() / value->maximumValue().toDouble(),
                     *fraction);
        } else {
            QCOMPARE(value->maximumValue().toInt(), 0);
        }
    }

    const QString longStatus =
        QStringLiteral("Failed to sync with device. Try unplugging and reconnecting.");
    view_->showStatusMessage(longStatus);
    view_->layout()->activate();
    QVERIFY(view_->statusLabel()->text() != longStatus);  // elided on screen
    QCOMPARE(QAccessible::queryAccessibleInterface(view_->statusLabel())->text(QAccessible::Name),
             longStatus);
}

void AccessibilityTest::escapeClosesEveryDialog() {
    QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    FakeSysfs devices;
    AppDelegate::Options options;
    options.survey =
        surveyOf({QString::fromStdString(devices.sys), QString::fromStdString(devices.dev)});
    AppDelegate delegate(
        std::make_unique<UpdateController>(ResourceBundle(folder.path()), noDevice),
        std::move(options));
    delegate.applicationDidFinishLaunching();
    QWidget* window = delegate.window();
    const std::pair<QString, std::function<QWidget*()>> dialogs[] = {
        {"About", [&] { return delegate.showAbout(), delegate.aboutWindow(); }},
        {"Compare",
         [&] {
             delegate.showComparison(compareConfigs({"machine", "a: 1\n"}, {"file", "a: 2\n"}),
                                     ConfigChoice::ofFile(folder.filePath("file.yaml")));
             return delegate.compareWindow();
         }},
        {"Restore", [&] { return delegate.restoreMachineConfig(), delegate.restoreWindow(); }},
        {"Repair", [&] { return delegate.showRepair(), delegate.repairDialog(); }},
        {"Connection Check",
         [&] { return delegate.showConnectionCheck(), delegate.connectionCheckWindow(); }},
    };
    const auto closesOnEscape = [](const QString& name, QWidget* dialog) {
        QVERIFY2(QTest::qWaitForWindowActive(dialog), qPrintable(name));
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : dialog, Qt::Key_Escape);
        QTRY_VERIFY2(!dialog->isVisible(), qPrintable(name));
    };
    for (const auto& [name, open] : dialogs) {
        closesOnEscape(name, open());
    }
    const std::pair<QString, std::unique_ptr<QMessageBox>> questions[] = {
        {"quit", quitDuringJobQuestion(window)},
        {"erase", eraseQuestion(window)},
        {"erase anyway", eraseAnywayQuestion(window)},
        {"retry", retryQuestion(window, QStringLiteral("Nothing was erased."))},
    };
    for (const auto& [name, question] : questions) {
        question->show();
        closesOnEscape(name, question.get());
    }
}

void AccessibilityTest::checkContrast(QWidget* window, const QString& where,
                                      QStringList& failures) {
    const auto expect = [&](const QString& what, const QColor& text, const QColor& background) {
        const double ratio = contrast(text, background);
        if (ratio < 4.5) {
            failures << QStringLiteral("%1: %2 %3 on %4 is %5:1")
                            .arg(where, what, text.name(), background.name())
                            .arg(ratio, 0, 'f', 2);
        }
    };
    auto* banner = window->findChild<ResultBanner*>();
    QColor field;
    if (banner != nullptr && banner->isVisible()) {
        const QImage shown = banner->grab().toImage();
        field = shown.pixelColor(8, shown.height() / 2);  // between the edge and the text
    }
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->isVisibleTo(window) && !label->text().isEmpty()) {
            const bool onField = banner != nullptr && banner->isAncestorOf(label);
            for (const QColor& colour : textColours(label)) {
                expect(label->text().left(24), colour,
                       onField ? field : label->palette().color(QPalette::Window));
            }
        }
    }
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (!button->isVisibleTo(window) || button->text().isEmpty()) {
            continue;
        }
        const auto* flat = qobject_cast<const QToolButton*>(button);
        const bool onField = banner != nullptr && banner->isAncestorOf(button);
        expect(button->text(), button->palette().color(QPalette::ButtonText),
               flat != nullptr && flat->autoRaise() && onField
                   ? field
                   : button->palette().color(QPalette::Button));
    }
    if (auto* log = window->findChild<LogPanel*>()) {
        expect("log", AppColors::logText(), log->palette().color(QPalette::Base));
    }
    if (auto* about = qobject_cast<AboutWindow*>(window)) {
        const QTextBrowser* text = about->information();
        expect("information", text->palette().color(QPalette::Text),
               about->palette().color(QPalette::Window));
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                if (piece.fragment().charFormat().isAnchor()) {
                    expect(piece.fragment().text(),
                           piece.fragment().charFormat().foreground().color(),
                           about->palette().color(QPalette::Window));
                }
            }
        }
    }
}

void AccessibilityTest::textReadsOnItsBackgroundInLightAndDarkPalettes() {
    FakeSysfs tree;
    tree.ids("usb1/1-1", "303a", "1001", true);  // a plotter without its serial port
    tree.ids("usb1/1-2", "1a86", "7523", true);
    tree.interface("usb1/1-2/1-2:1.0", "ch341");
    tree.tty("ttyUSB0", "usb1/1-2/1-2:1.0/ttyUSB0");
    ConnectionCheckWindow check(
        surveyOf({QString::fromStdString(tree.sys), QString::fromStdString(tree.dev)}),
        PermissionRule::installed());
    AboutWindow about(BuildConfig::products(), BuildConfig::buildDate(), QPixmap());
    check.show();
    about.show();
    view_->showConnectionHint(true);
    view_->showLog(infoEntries({"Firmware update complete."}));

    // Built in the light palette, the windows must follow a switch to the dark one.
    QStringList failures;
    for (const auto& [name, palette] :
         {std::pair{QStringLiteral("light"), QApplication::style()->standardPalette()},
          std::pair{QStringLiteral("dark"), darkPalette()}}) {
        QApplication::setPalette(palette);
        QTRY_COMPARE(view_->palette().color(QPalette::Window), palette.color(QPalette::Window));
        for (const auto& [tone, verdict] : {std::pair{"green", ESP_STARTUP_RUNNING},
                                            {"amber", ESP_STARTUP_WRONG_VERSION},
                                            {"red", ESP_STARTUP_BOOT_LOOP}}) {
            showBanner(verdict, true);
            checkContrast(view_.get(), name + " " + tone, failures);
        }
        checkContrast(&check, name + " check", failures);
        checkContrast(&about, name + " about", failures);
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join('\n')));
}

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
