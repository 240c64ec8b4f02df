#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QTreeWidget>

#include "../support/FakeSysfs.h"
#include "../support/FreePty.h"
#include "UiTestSupport.h"
#include "app/BackupIndex.h"
#include "ui/AboutWindow.h"
#include "ui/AppDelegate.h"
#include "ui/ConnectionCheckWindow.h"
#include "ui/LogPanel.h"
#include "ui/RestoreWindow.h"
#include "ui/SingleInstance.h"
#include "ui/UpdaterView.h"

namespace {

// One line per item, "title|shortcut|flags", submenus indented, "---" for separators.
void describe(const QList<QAction*>& actions, const QString& indent, QStringList& out) {
    for (const QAction* item : actions) {
        QString line = item->isSeparator() ? QStringLiteral("---")
                                           : withoutMnemonic(item->text()) + '|' +
                                                 item->shortcut().toString() + '|';
        line += item->isEnabled() ? "" : "disabled";
        line += item->isCheckable() ? "checkable" : "";
        line += item->data().isValid() ? "tag=" + item->data().toString() : QString();
        out.append(indent + line);
        if (item->menu() != nullptr) {
            describe(item->menu()->actions(), indent + "  ", out);
        }
    }
}

}  // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

  private slots:
    // Dates in the window are the locale's; these cases read them in C's.
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init() { launch({{"Alpha", "alpha.yaml"}, {"Beta", "beta.yaml"}}); }

    void menuBarMatchesTheTableAndProductItemsUploadByTag();
    void togglesFlipTheFlagAndTheCheckMark();
    void aboutWindowIsReusedEscapeClosesItAndWindowsHaveOnlyTheirButtons();
    void saveLogWritesHeaderAndLinesOrLogsWhyNot();
    void fileDialogsTakeOnlyTheirExtensions();
    void aSecondCopyOfAProgramFindsItLocked();
    void theLinkOpensTheConnectionCheckWhichClosesOnceThePlotterIsReady();
    void thePermissionRuleIsInstalledByItsOneFixedCommand();
    void restoreWindowPutsThisMachineOnTopAndActsOnTheSelectedRow();

  private:
    void launch(QList<ProductConfig> products);
    QStringList menus() const {
        QStringList out;
        describe(delegate_->window()->menuBar()->actions(), {}, out);
        return out;
    }
    QAction* action(const QString& title) const { return menuItem(delegate_->window(), title); }

    QTemporaryDir resources_;
    FakeSysfs devices_;
    std::unique_ptr<AppDelegate> delegate_;
    // What the file dialogs were asked; the save dialog's answer and proposed name.
    QList<FileRequest> fileRequests_;
    std::optional<QString> savePath_;
    QString suggestedName_;
};

void AppDelegateTest::launch(QList<ProductConfig> products) {
    delegate_.reset();
    AppDelegate::Options options;
    options.products = std::move(products);
    options.survey =
        surveyOf({QString::fromStdString(devices_.sys), QString::fromStdString(devices_.dev)});
    options.chooseFile = [this](QWidget*, const FileRequest& request) {
        fileRequests_.append(request);
        return std::optional<QString>();
    };
    options.chooseSaveFile = [this](QWidget*, const SaveRequest& request) {
        suggestedName_ = request.suggestedName;
        return savePath_;
    };
    delegate_ = std::make_unique<AppDelegate>(
        std::make_unique<UpdateController>(ResourceBundle(resources_.path()), noDevice),
        std::move(options));
    delegate_->applicationDidFinishLaunching();
    QVERIFY(QTest::qWaitForWindowExposed(delegate_->window()));
}

void AppDelegateTest::menuBarMatchesTheTableAndProductItemsUploadByTag() {
    // One item a line, submenus indented.
    QCOMPARE(
        menus().join('\n'),
        "Teskal Firmware Updater||\n  About Teskal Firmware Updater||\n  ---\n  Quit|Ctrl+Q|\n"
        "File||\n  Open Firmware File\u2026|Ctrl+O|\n  Use Bundled Firmware||\n  Choose Firmware "
        "Version\u2026||\n  Firmware Catalogue\u2026||\n  ---\n"
        "  Save Log\u2026|Ctrl+S|\n"
        "Options||\n  Detailed Logging||checkable\n  ---\n  Write Boot Partitions||checkable\n"
        "  Erase All Flash||checkable\n  Snapshot Before Writing||checkable\n  ---\n"
        "  Back Up Machine Config Before Upload||checkable\n"
        "Config||\n  Update Config||\n    Alpha||tag=0\n    Beta||tag=1\n  ---\n"
        "  Select from Disk...||\n  ---\n  Save Machine Config\u2026||\n"
        "  Compare With Machine\u2026||\n    Alpha||tag=0\n    Beta||tag=1\n    ---\n"
        "    Choose File\u2026||\n  Restore Machine Config\u2026||\n  ---\n"
        "  Back Up Whole Machine\u2026||\n  Restore Whole Machine\u2026||\n  ---\n"
        "  Repair Machine\u2026||\n"
        "Help||\n  Connection Check\u2026||\n  ---\n  About Teskal Firmware Updater||");
    QCOMPARE(action("About Teskal Firmware Updater")->menuRole(), QAction::AboutRole);
    QCOMPARE(action("Quit")->menuRole(), QAction::QuitRole);

    // A tag outside the product list does nothing; without a device, an upload that
    // reaches the controller logs why it cannot start.
    QAction probe;
    for (const QVariant& tag :
         {QVariant(-1), QVariant(2), QVariant(), QVariant("x"), QVariant(1)}) {
        probe.setData(tag);
        delegate_->uploadConfigAction(&probe);
    }
    QTRY_COMPARE(delegate_->updateController().logMessages(),
                 QStringList{"ERROR: No device connected"});

    launch({});
    QCOMPARE(menus().mid(menus().indexOf("Config||")),
             QStringList(
                 {"Config||", "  No products configured||disabled", "  ---",
                  "  Select from Disk...||", "  ---", "  Save Machine Config\u2026||",
                  "  Compare With Machine\u2026||", "    Choose File\u2026||",
                  "  Restore Machine Config\u2026||", "  ---", "  Back Up Whole Machine\u2026||",
                  "  Restore Whole Machine\u2026||", "  ---", "  Repair Machine\u2026||", "Help||",
                  "  Connection Check\u2026||", "  ---", "  About Teskal Firmware Updater||"}));
}

void AppDelegateTest::togglesFlipTheFlagAndTheCheckMark() {
    for (const auto& [title, flag] :
         {std::pair{"Detailed Logging", "detailedLogging"},
          std::pair{"Write Boot Partitions", "writeBootPartitionsEnabled"},
          std::pair{"Erase All Flash", "eraseAllFlashEnabled"},
          std::pair{"Back Up Machine Config Before Upload", "backupBeforeUploadEnabled"}}) {
        for (const bool on : {true, false}) {
            action(title)->trigger();
            QVERIFY2(delegate_->updateController().property(flag).toBool() == on, title);
            QVERIFY2(action(title)->isChecked() == on, title);
        }
    }
}

void AppDelegateTest::aboutWindowIsReusedEscapeClosesItAndWindowsHaveOnlyTheirButtons() {
    QVERIFY(delegate_->aboutWindow() == nullptr);
    action("About Teskal Firmware Updater")->trigger();
    AboutWindow* about = delegate_->aboutWindow();
    QVERIFY(QTest::qWaitForWindowExposed(about));
    QVERIFY(
        about->information()->toPlainText().startsWith("Supported products:\n  Alpha\n  Beta\n"));
    QCOMPARE(about->versionLabel()->text(),
             "Firmware v2.10.6 (build " + BuildConfig::buildDate() + ")");
    QCOMPARE(about->programVersionLabel()->text(),
             "Program version " + BuildConfig::programVersion());
    QTest::mouseClick(about->closeButton(), Qt::LeftButton);
    QVERIFY(!about->isVisible());
    delegate_->showAbout();

    about->close();
    delegate_->showAbout();
    QCOMPARE(delegate_->aboutWindow(), about);
    QVERIFY(about->isVisible());

    QMainWindow* window = delegate_->window();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(about->isVisible());

    about->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(about));
    QTest::keyClick(about, Qt::Key_A);  // other keys pass
    QVERIFY(about->isVisible());
    QTest::keyClick(about, Qt::Key_Escape);
    QVERIFY(!about->isVisible());
    QVERIFY(window->isVisible());

    // The main window grows from its 480 x 420; the About window keeps its size.
    for (const auto& [shown, resizable] :
         {std::pair<QWidget*, bool>{window, true}, std::pair<QWidget*, bool>{about, false}}) {
        const Qt::WindowFlags flags = shown->windowFlags();
        QVERIFY2(flags.testFlags(Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                 Qt::WindowCloseButtonHint),
                 qPrintable(shown->windowTitle()));
        QCOMPARE(flags.testFlag(Qt::WindowMinimizeButtonHint), resizable);
        QCOMPARE(flags.testFlag(Qt::WindowMaximizeButtonHint), resizable);
        QCOMPARE(shown->minimumSize() != shown->maximumSize(), resizable);
    }
    QCOMPARE(window->centralWidget()->minimumSizeHint(), QSize(480, 420));
    QCOMPARE(window->centralWidget()->size(), QSize(480, 420));
    window->resize(640, 600);
    QTRY_COMPARE(window->centralWidget()->size().width(), 640);
}

void AppDelegateTest::saveLogWritesHeaderAndLinesOrLogsWhyNot() {
    UpdateController& controller = delegate_->updateController();
    controller.log(QStringLiteral("first"));
    controller.log(QStringLiteral("Device running firmware v3.7.8 — updating firmware only."));
    QTRY_COMPARE(controller.logMessages().size(), 2);

    // The log area's context menu offers the same item as the File menu.
    auto* view = qobject_cast<UpdaterView*>(delegate_->window()->centralWidget());
    QAction* save = action(QStringLiteral("Save Log\u2026"));
    QVERIFY(view->logPanel()->actions().contains(save));

    QTemporaryDir folder;
    savePath_ = folder.filePath(QStringLiteral("support.txt"));
    save->trigger();
    QVERIFY(suggestedName_.startsWith("teskal-updater-log-"));
    // The header, a blank line, then one log line a line, in UTF-8.
    const QRegularExpression expected(QRegularExpression::anchoredPattern(QString::fromUtf8(
        R"(Teskal Firmware Updater log
Program version: \d+\.\d+\.\d+
Build date: \d{8}
Bundled firmware: 2\.10\.6
Operating system: .+, kernel .+
Qt version: 6\.\d+\.\d+
Date and time: \d{4}-\d\d-\d\dT\d\d:\d\d:\d\d.*
Port: none

first
Device running firmware v3\.7\.8 — updating firmware only\.
)")));
    const QString written = QString::fromUtf8(readFile(*savePath_));
    QVERIFY2(expected.match(written).hasMatch(), qPrintable(written));

    savePath_ = folder.filePath(QStringLiteral("missing/support.txt"));
    save->trigger();
    QTRY_VERIFY(
        controller.logMessages().last().startsWith(QStringLiteral("ERROR: Could not save log: ")));
}

void AppDelegateTest::fileDialogsTakeOnlyTheirExtensions() {
    action("Open Firmware File\u2026")->trigger();
    action("Select from Disk...")->trigger();
    QCOMPARE(fileRequests_.size(), 2);
    QTemporaryDir dir;
    writeFile(dir, "machine.yml", {});
    writeFile(dir, "FIRMWARE.BIN", {});
    // The message, a name the request refuses with its message, a name it takes.
    const std::tuple<QString, QString, QString, QString> rows[] = {
        {"Select a firmware binary (.bin)", "machine.yml", "Choose a .bin file.", "FIRMWARE.BIN"},
        {"Select a configuration file (.yaml)", "FIRMWARE.BIN", "Choose a .yaml or .yml file.",
         "machine.yml"},
    };
    for (qsizetype i = 0; i < 2; ++i) {
        const auto& [message, typed, refusal, taken] = rows[i];
        QCOMPARE(fileRequests_[i].message, message);
        ExtensionFileDialog dialog(delegate_->window(), fileRequests_[i]);
        auto* files = dialog.findChild<QFileSystemModel*>();
        QVERIFY(files != nullptr);
        QSignalSpy loaded(files, &QFileSystemModel::directoryLoaded);
        dialog.setDirectory(dir.path());
        dialog.open();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        // The folder is read on a thread of its own; once it arrives the dialog
        // re-selects, which must not overtake the typing.
        QTRY_VERIFY(loaded.count() > 0);
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        QVERIFY(name != nullptr);
        name->setFocus();  // as a user typing there; it then replaces the file list's selection
        QTRY_VERIFY(name->hasFocus());
        QTest::keyClicks(name, typed);
        QStringList asked;
        answerNextMessageBox("Escape", &asked);
        dialog.accept();
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked.first().section('|', 0, 0), refusal);
        QVERIFY(dialog.isVisible());

        // Typed over, back in the name field: a keystroke that lands while the
        // file list has the focus adds to the list's selection instead.
        QApplication::setActiveWindow(&dialog);
        name->setFocus();
        QTRY_VERIFY(name->hasFocus());
        name->selectAll();
        QTest::keyClicks(name, taken);
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedFiles(), QStringList{dir.filePath(taken)});
    }
}

void AppDelegateTest::aSecondCopyOfAProgramFindsItLocked() {
    QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    auto first = SingleInstance::tryLock("teskal-firmware-updater");
    QVERIFY(first);
    QVERIFY(!SingleInstance::tryLock("teskal-firmware-updater"));
    QVERIFY(SingleInstance::tryLock("teskal-updater-sim"));  // another program
    first.reset();
    QVERIFY(SingleInstance::tryLock("teskal-firmware-updater"));
}

void AppDelegateTest::restoreWindowPutsThisMachineOnTopAndActsOnTheSelectedRow() {
    QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const BackupIndex index;
    const QDateTime time(QDate(2024, 5, 1), QTime(14, 3, 22));
    const auto keep = [&](const char* machine, int hours, BackupReason reason,
                          std::optional<QString> firmware) {
        return std::get<Backup>(index.keep(
            "abc", {reason, machine, firmware, time.addSecs(3600 * hours), std::nullopt}));
    };
    const Backup oldest = keep("SN-A", 0, BackupReason::save, "v3.7.8");
    const Backup other = keep("SN-B", 1, BackupReason::beforeErase, std::nullopt);
    const Backup newest = keep("SN-A", 2, BackupReason::compare, "v3.7.8");
    QFile corrupt(index.folder() + "/config-broken.json");
    QVERIFY(corrupt.open(QIODevice::WriteOnly) && corrupt.write("{") == 1);
    corrupt.close();
    const auto rows = [](const RestoreWindow& window) {
        QStringList out;
        for (int row = 0; row < window.list()->topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < window.list()->columnCount(); ++column) {
                cells << window.list()->topLevelItem(row)->text(column);
            }
            out << cells.join('|');
        }
        return out;
    };

    // No machine connected: newest first; the unreadable record is named in the log.
    action("Restore Machine Config\u2026")->trigger();
    RestoreWindow* shown = delegate_->restoreWindow();
    QVERIFY(QTest::qWaitForWindowExposed(shown));
    QCOMPARE(shown->backups(), QList<Backup>({newest, other, oldest}));
    QTRY_COMPARE(
        delegate_->updateController().logMessages(),
        QStringList{"Skipped the backup record " + corrupt.fileName() + ": not a backup record"});

    RestoreWindow window(index.list(), "SN-A", index.folder());
    // The locale's dates, and versions as the firmware line shows them.
    QCOMPARE(rows(window),
             QStringList({"1 May 2024 16:03:22|Compared|3.7.8|3 bytes|SN-A (this machine)",
                          "1 May 2024 14:03:22|Saved|3.7.8|3 bytes|SN-A (this machine)",
                          "1 May 2024 15:03:22|Before erase|-|3 bytes|SN-B"}));
    QSignalSpy compared(&window, &RestoreWindow::compareRequested);
    QSignalSpy restored(&window, &RestoreWindow::restoreRequested);
    window.show();
    window.list()->setCurrentItem(window.list()->topLevelItem(2));
    QTest::mouseClick(window.compareButton(), Qt::LeftButton);
    QTest::mouseClick(window.restoreButton(), Qt::LeftButton);
    QCOMPARE(compared.size(), 1);
    QCOMPARE(compared[0][0].value<Backup>(), other);
    QCOMPARE(restored.size(), 1);
    QCOMPARE(restored[0][0].value<Backup>(), other);
    QVERIFY(!window.isVisible());

    // The window's Restore reaches the controller, which needs a machine.
    QTest::mouseClick(shown->restoreButton(), Qt::LeftButton);
    QTRY_COMPARE(delegate_->updateController().logMessages().last(), "ERROR: No device connected");

    RestoreWindow empty({}, QString(), index.folder());
    QVERIFY(!empty.restoreButton()->isEnabled() && !empty.compareButton()->isEnabled());
}

void AppDelegateTest::theLinkOpensTheConnectionCheckWhichClosesOnceThePlotterIsReady() {
    auto* view = qobject_cast<UpdaterView*>(delegate_->window()->centralWidget());
    QVERIFY(!view->notFoundLink()->isVisible());
    view->showConnectionHint(true);
    QVERIFY(view->notFoundLink()->isVisible());
    emit view->notFoundLink()->linkActivated(QStringLiteral("check"));
    ConnectionCheckWindow* check = delegate_->connectionCheckWindow();
    QVERIFY(check != nullptr && check->isVisible());
    QCOMPARE(check->windowTitle(), QStringLiteral("Connection Check"));
    QSignalSpy ready(check, &ConnectionCheckWindow::plotterReady);

    // The plotter is plugged in while the window is open; its node leads to a free
    // pseudo-terminal.
    const FreePty pty;
    devices_.ids("usb1/1-1", "303a", "1001", true);
    devices_.interface("usb1/1-1/1-1:1.0", "cdc_acm");
    devices_.tty("ttyACM0", "usb1/1-1/1-1:1.0", true, false);
    const std::string node = devices_.dev + "/ttyACM0";
    std::filesystem::create_symlink(pty.path, node);
    QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 5000);
    QCOMPARE(ready.first().first().toString(), QString::fromStdString(node));
    QTRY_VERIFY_WITH_TIMEOUT(!check->isVisible(), 5000);
}

void AppDelegateTest::thePermissionRuleIsInstalledByItsOneFixedCommand() {
    QCOMPARE(PermissionRule::forExecutableDir("/opt/teskal/bin").program(),
             QStringLiteral("/usr/bin/pkexec"));
    QCOMPARE(PermissionRule::forExecutableDir("/opt/teskal/bin").arguments(),
             QStringList{"/opt/teskal/lib/teskal-firmware-updater/install-udev-rule"});
    QCOMPARE(PermissionRule::forExecutableDir("/opt/teskal/bin").rule,
             QStringLiteral("/opt/teskal/lib/udev/rules.d/60-teskal-firmware-updater.rules"));

    // Installed, with pkexec: the button runs the command, and only it.
    QTemporaryDir prefix;
    QVERIFY(QDir(prefix.path()).mkpath("lib/udev/rules.d") &&
            QDir(prefix.path()).mkpath("lib/teskal-firmware-updater"));
    PermissionRule rule = PermissionRule::forExecutableDir(prefix.filePath("bin"));
    rule.pkexec = prefix.filePath("lib/pkexec");
    for (const QString& program : {rule.pkexec, rule.helper}) {
        QFile file(program);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ExeOwner));
    }
    QList<QStringList> started;
    bool starts = true;
    ConnectionCheckWindow window(surveyOf(), rule,
                                 [&](const QString& program, const QStringList& args) {
                                     started << (QStringList{program} + args);
                                     return starts;
                                 });
    QVERIFY(window.installRuleButton()->isEnabled());
    window.installRuleButton()->click();
    QCOMPARE(started, QList<QStringList>({{rule.pkexec, rule.helper}}));
    starts = false;
    window.installRuleButton()->click();
    const auto labels = window.findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == "The permission rule's installer could not be started.";
    }));

    // Without its helper the button is disabled and says what to type instead.
    QFile::remove(rule.helper);
    QVERIFY(QFile(rule.rule).open(QIODevice::WriteOnly));
    ConnectionCheckWindow byHand(surveyOf(), rule, [&](const QString&, const QStringList&) {
        started << QStringList{"started"};
        return true;
    });
    QVERIFY(!byHand.installRuleButton()->isEnabled());
    QCOMPARE(byHand.installRuleButton()->toolTip(),
             "pkexec or the rule's installer is missing. Run by hand: sudo cp " + rule.rule +
                 " /etc/udev/rules.d/ && sudo udevadm control --reload && sudo udevadm trigger");
    byHand.installRuleButton()->click();
    QCOMPARE(started.size(), 2);
}

QTEST_MAIN(AppDelegateTest)
#include "AppDelegateTest.moc"
