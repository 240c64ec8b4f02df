#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>

#include "UiTestSupport.h"
#include "app/UpdateController.h"
#include "ui/AboutWindow.h"
#include "ui/AppDelegate.h"
#include "ui/UpdaterView.h"

namespace {

// One line per item: "title|shortcut|flags", submenus indented, "---" for separators.
void describeMenu(const QMenu* menu, const QString& indent, QStringList& out) {
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator()) {
            out.append(indent + QStringLiteral("---"));
            continue;
        }
        QString flags;
        flags += action->isEnabled() ? QString() : QStringLiteral("disabled ");
        flags += action->isCheckable() ? QStringLiteral("checkable ") : QString();
        flags += action->data().isValid() ? QStringLiteral("tag=") + action->data().toString()
                                          : QString();
        out.append(indent + action->text() + QLatin1Char('|') +
                   action->shortcut().toString(QKeySequence::PortableText) + QLatin1Char('|') +
                   flags.trimmed());
        if (action->menu() != nullptr) {
            describeMenu(action->menu(), indent + QStringLiteral("  "), out);
        }
    }
}

QStringList describeMenuBar(const QMenuBar* bar) {
    QStringList out;
    for (const QAction* top : bar->actions()) {
        out.append(QStringLiteral("[") + top->text() + QLatin1Char(']'));
        describeMenu(top->menu(), QStringLiteral("  "), out);
    }
    return out;
}

// A label keeps its place's horizontal extent and vertical centre; it may only grow.
bool sitsIn(const QWidget* label, const QRect& place) {
    const QRect actual = label->geometry();
    return actual.left() == place.left() && actual.width() == place.width() &&
           actual.height() >= place.height() &&
           qAbs((actual.top() + actual.bottom()) - (place.top() + place.bottom())) <= 1;
}

QAction* findAction(const QMenuBar* bar, const QString& text) {
    for (QAction* action : bar->findChildren<QAction*>()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

}  // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void cleanup();

    void mainWindowHasItsTitleAndFixedSize();
    void menuBarMatchesTheTable();
    void emptyProductTableDisablesTheProductMenu();
    void togglesFlipTheFlagAndTheCheckMark_data();
    void togglesFlipTheFlagAndTheCheckMark();
    void checkMarksStartFromTheController();
    void productItemsUploadByTagWithinRange();
    void firstProductUploadsItsConfigUnderItsName();
    void firmwareMenuUsesTheDialogAndTheBundledImage();
    void configFromDiskUsesTheDialog();
    void aboutWindowIsBuiltOnceAndComesBackUnchanged();
    void aboutWindowPlacesItsContent();
    void escapeClosesAboutOnlyWhileItIsActive();
    void closingTheMainWindowQuitsOnlyAfterAboutCloses();

  private:
    void launch(QList<ProductConfig> products);
    QAction* action(const QString& text) const;

    QTemporaryDir m_resources;
    FakePort m_port;
    std::unique_ptr<AppDelegate> m_delegate;
    QList<FileRequest> m_requests;
    std::optional<QString> m_chosenFile;
};

void AppDelegateTest::init() {
    m_requests.clear();
    m_chosenFile.reset();
    launch({{QStringLiteral("Alpha"), QStringLiteral("alpha.yaml")},
            {QStringLiteral("Beta"), QStringLiteral("beta.yaml")}});
}

void AppDelegateTest::cleanup() {
    m_delegate.reset();
    m_port.unplug();
    QApplication::setWindowIcon(QIcon());
}

void AppDelegateTest::launch(QList<ProductConfig> products) {
    m_delegate.reset();
    AppDelegate::Options options;
    options.products = std::move(products);
    options.chooseFile = [this](QWidget*, const FileRequest& request) {
        m_requests.append(request);
        return m_chosenFile;
    };
    m_delegate = std::make_unique<AppDelegate>(
        std::make_unique<UpdateController>(ResourceBundle(m_resources.path()), m_port.detector()),
        std::move(options));
    m_delegate->applicationDidFinishLaunching();
    QVERIFY(QTest::qWaitForWindowExposed(m_delegate->window()));
}

QAction* AppDelegateTest::action(const QString& text) const {
    return findAction(m_delegate->window()->menuBar(), text);
}

void AppDelegateTest::mainWindowHasItsTitleAndFixedSize() {
    QMainWindow* window = m_delegate->window();
    QCOMPARE(window->windowTitle(), QStringLiteral("Teskal Firmware Updater"));
    QVERIFY(qobject_cast<UpdaterView*>(window->centralWidget()) != nullptr);
    QCOMPARE(window->centralWidget()->size(), QSize(480, 420));
    QCOMPARE(window->minimumSize(), window->maximumSize());
    QCOMPARE(window->height(), 420 + window->menuBar()->height());
    QVERIFY(QApplication::quitOnLastWindowClosed());
}

void AppDelegateTest::menuBarMatchesTheTable() {
    const QStringList expected{
        QStringLiteral("[Teskal Firmware Updater]"),
        QStringLiteral("  About Teskal Firmware Updater||"),
        QStringLiteral("  ---"),
        QStringLiteral("  Quit|Ctrl+Q|"),
        QStringLiteral("[File]"),
        QStringLiteral("  Open Firmware File\u2026|Ctrl+O|"),
        QStringLiteral("  Use Bundled Firmware||"),
        QStringLiteral("[Options]"),
        QStringLiteral("  Detailed Logging||checkable"),
        QStringLiteral("  ---"),
        QStringLiteral("  Write Boot Partitions||checkable"),
        QStringLiteral("  Erase All Flash||checkable"),
        QStringLiteral("[Config]"),
        QStringLiteral("  Update Config||"),
        QStringLiteral("    Alpha||tag=0"),
        QStringLiteral("    Beta||tag=1"),
        QStringLiteral("  ---"),
        QStringLiteral("  Select from Disk...||"),
    };
    QCOMPARE(describeMenuBar(m_delegate->window()->menuBar()), expected);
    QCOMPARE(action(QStringLiteral("About Teskal Firmware Updater"))->menuRole(),
             QAction::AboutRole);
    QCOMPARE(action(QStringLiteral("Quit"))->menuRole(), QAction::QuitRole);
    QCOMPARE(action(QStringLiteral("Update Config"))->menu()->title(),
             QStringLiteral("Update Config"));
}

void AppDelegateTest::emptyProductTableDisablesTheProductMenu() {
    launch({});
    const QStringList menus = describeMenuBar(m_delegate->window()->menuBar());
    const qsizetype config = menus.indexOf(QStringLiteral("[Config]"));
    QCOMPARE(menus.mid(config),
             (QStringList{QStringLiteral("[Config]"),
                          QStringLiteral("  No products configured||disabled"),
                          QStringLiteral("  ---"), QStringLiteral("  Select from Disk...||")}));
}

void AppDelegateTest::togglesFlipTheFlagAndTheCheckMark_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<QByteArray>("flag");
    QTest::newRow("detailed logging")
        << QStringLiteral("Detailed Logging") << QByteArray("detailedLogging");
    QTest::newRow("write boot partitions")
        << QStringLiteral("Write Boot Partitions") << QByteArray("writeBootPartitionsEnabled");
    QTest::newRow("erase all flash")
        << QStringLiteral("Erase All Flash") << QByteArray("eraseAllFlashEnabled");
}

void AppDelegateTest::togglesFlipTheFlagAndTheCheckMark() {
    QFETCH(QString, title);
    QFETCH(QByteArray, flag);
    QAction* item = action(title);
    const UpdateController& controller = m_delegate->updateController();
    const auto flagValue = [&] { return controller.property(flag.constData()).toBool(); };

    item->trigger();
    QCOMPARE(flagValue(), true);
    QCOMPARE(item->isChecked(), true);
    item->trigger();
    QCOMPARE(flagValue(), false);
    QCOMPARE(item->isChecked(), false);
}

void AppDelegateTest::checkMarksStartFromTheController() {
    m_delegate = std::make_unique<AppDelegate>(
        std::make_unique<UpdateController>(ResourceBundle(m_resources.path()), m_port.detector()),
        AppDelegate::Options());
    m_delegate->updateController().setEraseAllFlashEnabled(true);
    m_delegate->applicationDidFinishLaunching();
    QVERIFY(action(QStringLiteral("Erase All Flash"))->isChecked());
    QVERIFY(!action(QStringLiteral("Detailed Logging"))->isChecked());
    QVERIFY(!action(QStringLiteral("Write Boot Partitions"))->isChecked());
}

void AppDelegateTest::productItemsUploadByTagWithinRange() {
    // Without a device, an upload that reaches the controller logs this line.
    const QStringList refused{QStringLiteral("ERROR: No device connected")};
    QAction probe;
    for (const QVariant& tag : {QVariant(-1), QVariant(2), QVariant(), QVariant("x")}) {
        probe.setData(tag);
        m_delegate->uploadConfigAction(&probe);
    }
    QTest::qWait(50);
    QCOMPARE(m_delegate->updateController().logMessages(), QStringList());

    probe.setData(1);
    m_delegate->uploadConfigAction(&probe);
    QTRY_COMPARE(m_delegate->updateController().logMessages(), refused);
}

void AppDelegateTest::firstProductUploadsItsConfigUnderItsName() {
    QVERIFY(QDir(m_resources.path()).mkpath(QStringLiteral("configs")));
    QFile config(m_resources.filePath(QStringLiteral("configs/alpha.yaml")));
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write("name: alpha\nmeta: \"1.4.2\"\n");
    config.close();
    m_port.plug("/nonexistent/ttyACM7");
    QTRY_VERIFY(m_delegate->updateController().deviceMonitor()->isConnected());

    QAction* first = action(QStringLiteral("Alpha"));
    QCOMPARE(first->data().toInt(), 0);
    first->trigger();
    QTRY_VERIFY(!m_delegate->updateController().logMessages().isEmpty());
    QCOMPARE(m_delegate->updateController().logMessages().first(),
             QStringLiteral("Preparing Alpha config v1.4.2"));
    QTRY_VERIFY(m_delegate->updateController().state().kind() == UpdateState::Kind::error);
}

void AppDelegateTest::firmwareMenuUsesTheDialogAndTheBundledImage() {
    UpdateController& controller = m_delegate->updateController();
    action(QStringLiteral("Open Firmware File\u2026"))->trigger();
    QCOMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].message, QStringLiteral("Select a firmware binary (.bin)"));
    QCOMPARE(m_requests[0].extensions, QStringList{QStringLiteral("bin")});
    QVERIFY(controller.customFirmwareURL().isEmpty());

    m_chosenFile = QStringLiteral("/tmp/firmware/custom-2.11.bin");
    action(QStringLiteral("Open Firmware File\u2026"))->trigger();
    QCOMPARE(controller.customFirmwareURL().toLocalFile(), *m_chosenFile);
    QTRY_COMPARE(controller.logMessages(),
                 QStringList{QStringLiteral("Custom firmware: custom-2.11.bin")});

    action(QStringLiteral("Use Bundled Firmware"))->trigger();
    QVERIFY(controller.customFirmwareURL().isEmpty());
    QTRY_COMPARE(controller.logMessages().last(), QStringLiteral("Using bundled firmware"));
}

void AppDelegateTest::configFromDiskUsesTheDialog() {
    UpdateController& controller = m_delegate->updateController();
    QAction* fromDisk = action(QStringLiteral("Select from Disk..."));
    fromDisk->trigger();
    QCOMPARE(m_requests.size(), 1);
    QCOMPARE(m_requests[0].message, QStringLiteral("Select a configuration file (.yaml)"));
    QCOMPARE(m_requests[0].extensions,
             (QStringList{QStringLiteral("yaml"), QStringLiteral("yml")}));
    QTest::qWait(50);
    QVERIFY(controller.logMessages().isEmpty());

    m_port.plug("/nonexistent/ttyACM7");
    QTRY_VERIFY(controller.deviceMonitor()->isConnected());
    m_chosenFile = m_resources.filePath(QStringLiteral("missing.yaml"));
    fromDisk->trigger();
    QTRY_COMPARE(controller.logMessages(),
                 QStringList{QStringLiteral("ERROR: Could not read file: missing.yaml")});
}

void AppDelegateTest::aboutWindowIsBuiltOnceAndComesBackUnchanged() {
    QVERIFY(m_delegate->aboutWindow() == nullptr);
    action(QStringLiteral("About Teskal Firmware Updater"))->trigger();
    AboutWindow* about = m_delegate->aboutWindow();
    QVERIFY(about != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(about));
    QCOMPARE(about->windowTitle(), QStringLiteral("About Teskal Firmware Updater"));
    QCOMPARE(about->size(), QSize(420, 520));
    QCOMPARE(about->minimumSize(), about->maximumSize());

    const QString expected = QStringLiteral(
                                 "Supported products:\n  Alpha\n  Beta\n\nLicenses:\n"
                                 "  Firmware: GPL v3 (based on FluidNC)\n  Source: ") +
                             AboutWindow::firmwareSourceUrl() +
                             QStringLiteral("\n\n  Flash stub: Apache License 2.0\n  Source: ") +
                             AboutWindow::stubSourceUrl() + QStringLiteral("\n");
    QCOMPARE(about->information()->toPlainText(), expected);
    QCOMPARE(about->titleLabel()->text(), QStringLiteral("Corvane\nTeskal Firmware Updater"));
    QCOMPARE(about->versionLabel()->text(),
             QStringLiteral("Firmware v2.10.6 (build ") + BuildConfig::buildDate() + ")");

    about->close();
    QVERIFY(!about->isVisible());
    m_delegate->showAbout();
    QCOMPARE(m_delegate->aboutWindow(), about);
    QVERIFY(about->isVisible());
    QCOMPARE(about->information()->toPlainText(), expected);
}

void AppDelegateTest::aboutWindowPlacesItsContent() {
    // Each link as "address shown-text".
    const auto links = [](const AboutWindow& about) {
        QStringList found;
        for (QTextBlock block = about.information()->document()->begin(); block.isValid();
             block = block.next()) {
            for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
                const QTextCharFormat format = fragment.fragment().charFormat();
                if (format.isAnchor()) {
                    found.append(format.anchorHref() + QLatin1Char(' ') +
                                 fragment.fragment().text());
                }
            }
        }
        return found;
    };

    const AboutWindow plain({}, QStringLiteral("20260101"), QPixmap());
    QVERIFY(plain.iconLabel() == nullptr);
    QVERIFY(sitsIn(plain.titleLabel(), QRect(20, 26, 380, 48)));
    QVERIFY(sitsIn(plain.versionLabel(), QRect(20, 84, 380, 18)));
    QCOMPARE(plain.information()->geometry(), QRect(30, 126, 360, 344));
    QVERIFY(sitsIn(plain.footerLabel(), QRect(20, 486, 380, 18)));
    QVERIFY(plain.information()->toPlainText().startsWith(
        QStringLiteral("Supported products:\n\n\nLicenses:\n")));
    const QString firmware = AboutWindow::firmwareSourceUrl();
    const QString stub = AboutWindow::stubSourceUrl();
    QCOMPARE(links(plain), (QStringList{firmware + ' ' + firmware, stub + ' ' + stub}));
    QVERIFY(QUrl(firmware).isValid() && QUrl(firmware).scheme() == QStringLiteral("https"));
    QVERIFY(QUrl(stub).isValid() && QUrl(stub).scheme() == QStringLiteral("https"));

    QPixmap icon(128, 128);
    icon.fill(Qt::blue);
    const AboutWindow withIcon({}, QStringLiteral("20260101"), icon);
    QCOMPARE(withIcon.iconLabel()->geometry(), QRect(178, 30, 64, 64));
    QVERIFY(sitsIn(withIcon.titleLabel(), QRect(20, 106, 380, 48)));
    QVERIFY(sitsIn(withIcon.versionLabel(), QRect(20, 164, 380, 18)));
    QCOMPARE(withIcon.information()->geometry(), QRect(30, 206, 360, 264));
    QVERIFY(sitsIn(withIcon.footerLabel(), QRect(20, 486, 380, 18)));
}

void AppDelegateTest::escapeClosesAboutOnlyWhileItIsActive() {
    QMainWindow* window = m_delegate->window();
    m_delegate->showAbout();
    AboutWindow* about = m_delegate->aboutWindow();
    QVERIFY(QTest::qWaitForWindowActive(about));

    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(about->isVisible());

    about->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(about));
    QTest::keyClick(about, Qt::Key_Escape);
    QVERIFY(!about->isVisible());
    QVERIFY(window->isVisible());

    // Other keys reach the window unchanged.
    m_delegate->showAbout();
    QVERIFY(QTest::qWaitForWindowActive(about));
    QTest::keyClick(about, Qt::Key_A);
    QVERIFY(about->isVisible());
}

void AppDelegateTest::closingTheMainWindowQuitsOnlyAfterAboutCloses() {
    m_delegate->showAbout();
    QVERIFY(QTest::qWaitForWindowExposed(m_delegate->aboutWindow()));

    // Quitting on the last window happens only inside the application's event loop.
    bool runningAfterMainClosed = false;
    QTimer::singleShot(0, this, [&] { m_delegate->window()->close(); });
    QTimer::singleShot(100, this, [&] {
        runningAfterMainClosed = true;
        m_delegate->aboutWindow()->close();
    });
    QTimer giveUp;
    giveUp.setSingleShot(true);
    connect(&giveUp, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    giveUp.start(5000);
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(runningAfterMainClosed);
}

QTEST_MAIN(AppDelegateTest)
#include "AppDelegateTest.moc"
