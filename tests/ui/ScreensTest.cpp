#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTextBrowser>
#include <optional>

#include "../support/FakeSysfs.h"
#include "UiTestSupport.h"
#include "app/operations/CheckStartup.h"
#include "ui/AboutWindow.h"
#include "ui/AppDelegate.h"
#include "ui/Colors.h"
#include "ui/CompareWindow.h"
#include "ui/ConnectionCheckWindow.h"
#include "ui/EraseQuestions.h"
#include "ui/Fonts.h"
#include "ui/LogPanel.h"
#include "ui/LogView.h"
#include "ui/QuitGuard.h"
#include "ui/RepairDialog.h"
#include "ui/RestoreWindow.h"
#include "ui/ResultBanner.h"
#include "ui/Translations.h"
#include "ui/UpdaterView.h"

// Renders the windows in their characteristic states to PNG files in the folder
// named by TFU_SCREENS_DIR, for a person to look at. CTest runs it at 96 dpi and at
// scale factor 2; the layout must not change between them.
class ScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale::c());
        QVERIFY(screens_.mkpath(QStringLiteral(".")));
        QApplication::setWindowIcon(QIcon(QStringLiteral(TFU_ICON_PNG)));
    }
    // In English, then in each language into its own folder (screens/de, ...).
    void mainWindowStates_data() { languages(); }
    void mainWindowStates();
    void aboutWindow();
    void compareWindow();
    void connectionCheckWindow_data() { languages(); }
    void connectionCheckWindow();
    void restoreWindowAndRepairDialog_data() { languages(); }
    void restoreWindowAndRepairDialog();

  private:
    static void languages() {
        QTest::addColumn<QString>("language");
        for (const char* language : {"C", "de", "fr", "es", "ja", "zh_CN"}) {
            QTest::newRow(language) << QString::fromLatin1(language);
        }
    }
    // The current row's language, installed until the next row; true for English.
    bool speak() {
        QFETCH(QString, language);
        translations_.reset();
        translations_.emplace(QLocale(language));
        folder_ = screens_;
        if (language != QLatin1String("C")) {
            folder_.mkpath(language);
            folder_.cd(language);
        }
        return language == QLatin1String("C");
    }
    void save(QWidget* window, const QString& name) {
        // Layouts settle through posted events; the monitor is quiet, so nothing else runs.
        QTest::qWait(50);
        QVERIFY(window->grab().toImage().save(folder_.filePath(name + QStringLiteral(".png"))));
    }

    QDir screens_{qEnvironmentVariable("TFU_SCREENS_DIR")};
    QDir folder_ = screens_;
    std::optional<Translations> translations_;
};

void ScreensTest::mainWindowStates() {
    speak();
    QTemporaryDir resources;
    AppDelegate delegate(
        std::make_unique<UpdateController>(ResourceBundle(resources.path()), noDevice),
        AppDelegate::Options());
    delegate.applicationDidFinishLaunching();
    QMainWindow* window = delegate.window();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const QSignalBlocker quiet(delegate.updateController().deviceMonitor());
    auto* view = qobject_cast<UpdaterView*>(window->centralWidget());
    save(window, QStringLiteral("main-idle"));
    view->showConnectionHint(true);
    save(window, QStringLiteral("main-plotter-not-found"));
    view->showConnectionHint(false);

    view->showConnection(true, QStringLiteral("/dev/ttyACM0"));
    const QString sample =
        QStringLiteral("Device running firmware v3.7.8 — updating firmware only.");
    const QString failure =
        QStringLiteral("Failed to sync with device. Try unplugging and reconnecting.");
    LogEntries log = infoEntries({"Updating firmware v2.10.6…", "Checking device status…", sample});
    const LogEntry refused = LogEntry::error(
        "notes.bin cannot be used: not a firmware image (first byte 0x7B, expected 0xE9)");
    // Each screen: its name, state, status line and log.
    const std::tuple<QString, UpdateState, QString, LogEntries> screens[] = {
        {"main-ready", UpdateState::ready(), "Device connected", LogEntries()},
        {"main-flashing-50", UpdateState::flashing(0.5f), "Writing firmware…", log},
        {"main-uploading", UpdateState::uploadingConfig(0.3f), "Sending configuration…",
         infoEntries({"Preparing Corvane Halcot config v1.4.0-devset"})},
        {"main-error", UpdateState::error(failure), failure,
         LogEntries(log) << LogEntry::error(failure)},
        {"main-checking-startup", UpdateState::checkingStartup(),
         "Checking that the machine starts\u2026",
         LogEntries(log) << LogEntry::info("Firmware update complete.")},
        {"main-complete", UpdateState::flashComplete(), "Firmware 2.10.6 installed and running.",
         LogEntries(log) << LogEntry::info("Firmware update complete.")
                         << LogEntry::info("Firmware 2.10.6 installed and running.")},
        {"main-refused-firmware", UpdateState::ready(), "Device connected", LogEntries{refused}},
    };
    for (const auto& [name, state, status, lines] : screens) {
        view->showState(state);
        view->showStatusMessage(status);
        view->showLog(lines);
        save(window, name);
    }
    // Every kind of result banner, over a finished job's log.
    const auto verdict = [](int kind, const QStringList& evidence) {
        FlasherBridge::StartupReport report;
        report.verdict = kind;
        report.version = kind == ESP_STARTUP_WRONG_VERSION ? std::optional<QString>("2.9.1")
                                                           : std::optional<QString>("2.10.6");
        report.evidence = evidence;
        return startupOutcome(report, StartupCause::Written::firmware, QStringLiteral("2.10.6"));
    };
    const QString rebooted =
        QStringLiteral("rst:0xc (RTC_SW_CPU_RST),boot:0x8 (SPI_FAST_FLASH_BOOT)");
    const QString badGpio =
        QStringLiteral("[MSG:ERR: Bad GPIO gpio.48 for axes/x/motor0/stepstick/step_pin]");
    using namespace BannerColors;
    // Green when the machine runs what was written, amber when that is not confirmed.
    const std::tuple<QString, Outcome, QColor> banners[] = {
        {"banner-running", verdict(ESP_STARTUP_RUNNING, {}), goodEdge()},
        {"banner-wrong-version", verdict(ESP_STARTUP_WRONG_VERSION, {"[VER:2.9.1:]"}),
         cautionEdge()},
        {"banner-boot-loop-repair",
         verdict(ESP_STARTUP_BOOT_LOOP, {rebooted, "ESP-ROM:esp32s3-20210327"}), badEdge()},
        {"banner-panic",
         verdict(ESP_STARTUP_PANIC, {"Guru Meditation Error: Core  1 panic'ed (LoadProhibited).",
                                     "Backtrace: 0x4200b9c3:0x3fcebe60", rebooted}),
         badEdge()},
        {"banner-config-error", verdict(ESP_STARTUP_CONFIG_ERROR, {badGpio}), badEdge()},
        {"banner-failed", Outcome::library(3), badEdge()},
    };
    view->showState(UpdateState::flashComplete());
    view->showStatusMessage(QStringLiteral("Device connected"));
    view->showLog(LogEntries(log) << LogEntry::info("Firmware update complete."));
    for (const auto& [name, outcome, edge] : banners) {
        view->showResult(outcome);
        save(window, name);
        const QImage banner = view->resultBanner()->grab().toImage();
        QCOMPARE(banner.pixelColor(1, banner.height() / 2), edge);
    }
    // An uploaded configuration the machine rejects, with the one it had before at hand.
    FlasherBridge::StartupReport rejected;
    rejected.verdict = ESP_STARTUP_CONFIG_ERROR;
    rejected.evidence = {badGpio};
    Outcome withPrevious =
        startupOutcome(rejected, StartupCause::Written::configuration, std::nullopt);
    std::get<StartupCause>(withPrevious.cause).previous = Backup();
    view->showResult(withPrevious);
    save(window, QStringLiteral("banner-config-rejected-restore"));
    // However tall the banner, the log keeps eight lines in view; the window grows.
    view->showResult(verdict(ESP_STARTUP_PANIC,
                             {"Guru Meditation Error: Core  1 panic'ed.",
                              "Backtrace: 0x4200b9c3:0x3fcebe60", rebooted, rebooted, rebooted}));
    QTest::qWait(50);
    QVERIFY(view->logPanel()->height() >= 8 * view->logPanel()->view()->lineHeight());
    save(window, QStringLiteral("banner-tall"));
    view->showResult(std::nullopt);

    // About 60 characters a line: the 56-character sample line must not wrap.
    QVERIFY(view->logPanel()->view()->viewport()->width() >=
            QFontMetrics(Fonts::monospace(11)).horizontalAdvance(sample));

    for (int i = 0; i < 500; ++i) {
        view->showLog(
            log << LogEntry::info(QStringLiteral("FLASH_DATA block %1 of 500").arg(i + 1)));
    }
    save(window, QStringLiteral("main-long-log"));

    const auto question = quitDuringJobQuestion(window);
    question->show();
    QVERIFY(QTest::qWaitForWindowExposed(question.get()));
    save(question.get(), QStringLiteral("quit-question"));

    const std::pair<std::unique_ptr<QMessageBox>, QString> eraseQuestions[] = {
        {eraseQuestion(window), "erase-question"},
        {eraseAnywayQuestion(window), "erase-anyway-question"},
        {retryQuestion(window,
                       "Nothing was erased: Could not read config.yaml from the machine: XModem "
                       "download: no block received"),
         "retry-question"},
    };
    for (const auto& [box, name] : eraseQuestions) {
        box->show();
        QVERIFY(QTest::qWaitForWindowExposed(box.get()));
        save(box.get(), name);
    }
}

void ScreensTest::aboutWindow() {
    AboutWindow about(BuildConfig::products(), BuildConfig::buildDate(),
                      QApplication::windowIcon().pixmap(QSize(64, 64)));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    save(&about, QStringLiteral("about"));
    QCOMPARE(about.information()->verticalScrollBar()->maximum(), 0);
}

void ScreensTest::compareWindow() {
    const QByteArray machine =
        "# Tuned on the machine\nname: \"Corvane Halcot\"\naxes:\n  x:\n    steps_per_mm: 78.750\n"
        "    max_travel_mm: 330.000\n  z:\n    max_travel_mm: 10.000\n";
    const QByteArray halcot =
        "name: \"Corvane Halcot\"\naxes:\n  x:\n    steps_per_mm: 80.000\n"
        "    max_travel_mm: 330.000\n    soft_limits: true\n";
    CompareWindow compare(compareConfigs({QStringLiteral("machine"), machine},
                                         {QStringLiteral("Corvane Halcot"), halcot}),
                          QStringLiteral("Corvane Halcot"));
    compare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&compare));
    save(&compare, QStringLiteral("compare-by-key"));
    compare.tabs()->setCurrentIndex(1);
    save(&compare, QStringLiteral("compare-by-line"));
}

void ScreensTest::restoreWindowAndRepairDialog() {
    const bool english = speak();
    const QDateTime time(QDate(2024, 5, 1), QTime(14, 3, 22));
    const QString folder =
        QStringLiteral("/home/owner/.local/share/teskal-firmware-updater/backups");
    const auto backup = [&](int hours, BackupReason reason, const QString& machine,
                            std::optional<QString> firmware) {
        const QString path = folder + QStringLiteral("/config-%1.yaml").arg(hours);
        return Backup{path, time.addSecs(3600 * hours), reason, machine, firmware, 2870, {}, {}};
    };
    RestoreWindow restore({backup(0, BackupReason::save, "3C8A1F20B4E2", "v3.7.8"),
                           backup(3, BackupReason::beforeErase, "3C8A1F20B4E2", "v3.7.8"),
                           backup(5, BackupReason::compare, "/dev/ttyACM1", "v3.6.2"),
                           backup(26, BackupReason::beforeUpload, "3C8A1F20B4E2", std::nullopt)},
                          QStringLiteral("3C8A1F20B4E2"), folder);
    restore.show();
    QVERIFY(QTest::qWaitForWindowExposed(&restore));
    save(&restore, QStringLiteral("restore"));

    RepairDialog repair(restore.backups(), QStringLiteral("3C8A1F20B4E2"),
                        {{"Corvane Halcot", "Halcot.yaml"}}, QStringLiteral("firmware 2.10.6"));
    repair.show();
    QVERIFY(QTest::qWaitForWindowExposed(&repair));
    save(&repair, QStringLiteral("repair-asking"));
    repair.showFirmwareAnswers(false);
    QVERIFY(!english ||
            repair.sentence()->text() ==
                QStringLiteral("Erase the machine, install firmware 2.10.6, then put back your "
                               "settings from 2 May 2024 16:03:22."));
    save(&repair, QStringLiteral("repair"));
    repair.showFirmwareAnswers(true);
    save(&repair, QStringLiteral("repair-current-settings"));
}

// A plotter whose serial port was never made, beside a USB serial adapter.
void ScreensTest::connectionCheckWindow() {
    speak();
    FakeSysfs tree;
    tree.ids("usb1/1-1", "303a", "1001", true);
    tree.attribute("usb1/1-1", "serial", "F4:12:FA:6C:3B:90");
    tree.interface("usb1/1-1/1-1:1.0", "");
    tree.ids("usb1/1-2", "1a86", "7523", true);
    tree.attribute("usb1/1-2", "product", "USB Serial");
    tree.interface("usb1/1-2/1-2:1.0", "ch341");
    tree.tty("ttyUSB0", "usb1/1-2/1-2:1.0/ttyUSB0");
    ConnectionCheckWindow check(
        surveyOf({QString::fromStdString(tree.sys), QString::fromStdString(tree.dev)}),
        PermissionRule::installed());
    check.show();
    QVERIFY(QTest::qWaitForWindowExposed(&check));
    save(&check, QStringLiteral("connection-check"));
}

QTEST_MAIN(ScreensTest)
#include "ScreensTest.moc"
