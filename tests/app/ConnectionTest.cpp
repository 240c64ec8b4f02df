#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "../support/FakeSysfs.h"
#include "../support/FreePty.h"
#include "../support/HoldingProcess.h"
#include "../support/Unprivileged.h"
#include "app/ConnectionHint.h"
#include "app/PortDiagnosis.h"
#include "app/PortFlapping.h"
#include "app/Texts.h"
#include "app/operations/CheckConnection.h"

namespace {

// A USB device with its ids, product name and serial number ("" leaves one out).
void usbDevice(FakeSysfs& tree, const std::string& folder, const std::string& ids,
               const std::string& product, const std::string& serial) {
    tree.ids(folder, ids.substr(0, 4), ids.substr(5), true);
    for (const auto& [file, text] : {std::pair{"product", product}, {"serial", serial}}) {
        if (!text.empty()) {
            tree.attribute(folder, file, text);
        }
    }
}

// A plotter at usb1/<place> with serial `serial` whose port, ttyACM<n>, leads to
// `node` ("" for no node; no driver at all when `node` is "-").
void plotter(FakeSysfs& tree, const std::string& place, const std::string& serial, int n,
             const std::string& node) {
    const std::string folder = "usb1/" + place;
    usbDevice(tree, folder, "303a:1001", "USB JTAG/serial debug unit", serial);
    const std::string interface = folder + "/" + place + ":1.0";
    tree.interface(interface, node == "-" ? "" : "cdc_acm");
    if (node == "-") {
        return;
    }
    const std::string name = "ttyACM" + std::to_string(n);
    tree.tty(name, interface, true, false);
    if (!node.empty()) {
        std::filesystem::create_symlink(node, tree.dev + "/" + name);
    }
}

QStringList rowTexts(const Checklist& list) {
    QStringList texts;
    for (const CheckRow& row : list.rows) {
        const char* mark = row.mark == CheckRow::Mark::ok        ? "ok"
                           : row.mark == CheckRow::Mark::problem ? "problem"
                                                                 : "info";
        texts << QString::fromLatin1(mark) + " | " + row.line +
                     (row.fix.isEmpty() ? QString() : " | " + row.fix);
    }
    return texts;
}

UsbSurvey surveyOf(const FakeSysfs& tree) {
    return surveyOf(
        DevicePlaces{QString::fromStdString(tree.sys), QString::fromStdString(tree.dev)});
}

Checklist checkTree(const FakeSysfs& tree) {
    return CheckConnection(QStringLiteral("RULE"), surveyOf(tree)).check();
}

PortCause cause(int problem, const QString& group = {}, unsigned mode = 0) {
    PortCause cause;
    cause.path = QStringLiteral("/dev/ttyACM0");
    cause.problem = problem;
    cause.owner = QStringLiteral("root");
    cause.group = group;
    cause.mode = mode;
    return cause;
}

}  // namespace

class ConnectionTest : public QObject {
    Q_OBJECT

  private slots:
    void checklistFollowsTheUsbTree_data();
    void checklistFollowsTheUsbTree();
    void checklistNamesTheGroupOfAPortTheUserMayNotOpen();
    void portProblemsInWords();
    void portIsDiagnosedAgainAfterTheLibraryCouldNotOpenIt();
    void hintOffersTheCheckAfterLongWaitsAndRefusedPorts();
    void aPortThatComesAndGoesIsAPlotterThatKeepsRestarting();
};

void ConnectionTest::checklistFollowsTheUsbTree_data() {
    QTest::addColumn<QString>("setup");
    QTest::newRow("no plotter, another adapter") << "adapter";
    QTest::newRow("plotter without a driver") << "no driver";
    QTest::newRow("plotter whose node is not made yet") << "no node";
    QTest::newRow("plotter held by another program") << "held";
    QTest::newRow("ready, beside a plotter without a port") << "ready";
}

void ConnectionTest::checklistFollowsTheUsbTree() {
    QFETCH(QString, setup);
    FakeSysfs tree;
    const FreePty pty;
    const QString dev = QString::fromStdString(tree.dev);
    const QString acm1 = dev + "/ttyACM1";
    const QString seen = "ok | Plotter seen on USB (303a:1001, serial F4:12:FA:00:00:01).";
    const QString made = "ok | Serial port " + acm1 + " made for it by cdc_acm.";
    usbDevice(tree, "usb1", "1d6b:0002", "xHCI Host Controller", "");
    std::optional<HoldingProcess> holder;
    QStringList expected;
    if (setup == "adapter") {
        usbDevice(tree, "usb1/1-3", "1a86:7523", "USB Serial", "");
        tree.interface("usb1/1-3/1-3:1.0", "ch341");
        tree.tty("ttyUSB0", "usb1/1-3/1-3:1.0/ttyUSB0");
        expected = QStringList{
            "problem | No plotter seen on USB. | Switch it on, try another USB port, and use a "
            "cable that carries data: some cables only charge.",
            "info | Not a plotter: 1a86:7523 USB Serial (ch341) on " + dev + "/ttyUSB0."};
    } else if (setup == "no driver") {
        plotter(tree, "1-1", "F4:12:FA:00:00:01", 0, "-");
        expected = QStringList{
            seen,
            "problem | No serial port made for it: the kernel's cdc_acm driver is missing. | "
            "Install your system's extra kernel modules, or load the driver: sudo modprobe "
            "cdc_acm"};
    } else if (setup == "no node") {
        plotter(tree, "1-1", "F4:12:FA:00:00:01", 1, "");
        expected = QStringList{seen,
                               "problem | No serial port made for it yet. | Wait a moment; if it "
                               "stays so, unplug the plotter and plug it in again."};
    } else if (setup == "held") {
        plotter(tree, "1-1", "F4:12:FA:00:00:01", 1, pty.path);
        holder.emplace(acm1.toStdString());
        expected = QStringList{seen, made, "ok | You may open " + acm1 + ".",
                               QString("problem | %1 is in use by sleep (pid %2). | Close that "
                                       "program and try again.")
                                   .arg(acm1)
                                   .arg(holder->pid)};
    } else {
        plotter(tree, "1-1", "F4:12:FA:00:00:09", 0, "-");
        plotter(tree, "1-2", "F4:12:FA:00:00:01", 1, pty.path);
        expected = QStringList{seen,
                               made,
                               "ok | You may open " + acm1 + ".",
                               "ok | No other program is using " + acm1 + ".",
                               "info | Another plotter (serial F4:12:FA:00:00:09): without a port.",
                               "ok | Ready: the plotter on " + acm1 + " can be used."};
    }
    const Checklist found = checkTree(tree);
    QCOMPARE(rowTexts(found), expected);
    QCOMPARE(found.readyPort, setup == "ready" ? std::optional(acm1) : std::nullopt);
    QVERIFY(!found.permissionDenied);

    const Outcome outcome = CheckConnection(QString(), surveyOf(tree)).run({});
    QCOMPARE(outcome.kind, setup == "ready" ? Outcome::Kind::succeeded : Outcome::Kind::notReady);
    QCOMPARE(std::get<Checklist>(outcome.cause).rows.size(), expected.size());
}

// Mode bits stop no open by root, so the check runs in a child that has become user
// nobody (65534), who is not in the node's group.
void ConnectionTest::checklistNamesTheGroupOfAPortTheUserMayNotOpen() {
    FakeSysfs tree;
    const FreePty pty;
    plotter(tree, "1-1", "", 0, pty.path);
    QString denied =
        "problem | Permission denied on " + QString::fromStdString(tree.dev) + "/ttyACM0 (";
    if (::geteuid() == 0) {
        const group* dialout = ::getgrnam("dialout");
        if (dialout == nullptr) {
            QSKIP("needs the group dialout");
        }
        QVERIFY(::chown(pty.path.c_str(), 0, dialout->gr_gid) == 0);
        QVERIFY(::chmod(pty.path.c_str(), 0660) == 0 && ::chmod(tree.base.c_str(), 0755) == 0);
        denied +=
            "group dialout). | Install the permission rule (RULE), or join the group: sudo "
            "usermod -aG dialout $USER, then log out and in again.";
    } else {
        QVERIFY(::chmod(pty.path.c_str(), 0) == 0);
        denied += "owner " + qEnvironmentVariable("USER") +
                  ", mode 0000). | Install the permission rule (RULE).";
    }
    const std::string seen = runUnprivileged([&] {
        const Checklist found = checkTree(tree);
        return (rowTexts(found).last() + (found.permissionDenied ? "|denied" : "")).toStdString();
    });
    QCOMPARE(QString::fromStdString(seen), denied + "|denied");
}

void ConnectionTest::portProblemsInWords() {
    PortCause joined = cause(ESP_PORT_PERMISSION, "dialout", 0660);
    joined.userInGroup = true;
    const QString denied = QStringLiteral("Permission denied on /dev/ttyACM0 (");
    const QString rule = QStringLiteral(". Install the permission rule (Connection Check)");
    // A missing port and one held by a named program: in the jobs' cases.
    const std::pair<PortCause, QString> rows[] = {
        {cause(ESP_PORT_NOT_SERIAL),
         "/dev/ttyACM0 is not a serial port. Name the plotter's port, for example /dev/ttyACM0."},
        {cause(ESP_PORT_PERMISSION, "dialout", 0660),
         denied + "group dialout)" + rule +
             ", or join the group: sudo usermod -aG dialout $USER, then log out and in again."},
        {joined, denied + "group dialout). You are in the group dialout, but this session began "
                          "before you joined it: log out and in again."},
        // In the group and still denied: the group's own bits do not allow it after all.
        {cause(ESP_PORT_PERMISSION, "dialout", 0600),
         denied + "owner root, mode 0600)" + rule + "."},
        {cause(ESP_PORT_PERMISSION, "dialout", 0640),
         denied + "owner root, mode 0640)" + rule + "."},
        {cause(ESP_PORT_PERMISSION, "root", 0660), denied + "owner root, mode 0660)" + rule + "."},
        {cause(ESP_PORT_HELD),
         "/dev/ttyACM0 is in use by another program. Close it and try again."},
        {cause(ESP_PORT_UNPLUGGED),
         "/dev/ttyACM0 does not answer: its device has gone. Unplug the "
         "plotter, plug it in again and try again."},
    };
    for (const auto& [portCause, words] : rows) {
        const auto outcome = PortDiagnosis::unusable(portCause);
        QVERIFY(outcome.has_value());
        QCOMPARE(outcome->message, words);
        QCOMPARE(outcome->kind, Outcome::Kind::portUnusable);
        QCOMPARE(std::get<PortCause>(outcome->cause), portCause);
    }
    QVERIFY(!PortDiagnosis::unusable(cause(ESP_PORT_OK)));
}

void ConnectionTest::portIsDiagnosedAgainAfterTheLibraryCouldNotOpenIt() {
    const FreePty freePty, gonePty(false);
    const QString free = QString::fromStdString(freePty.path);
    const QString gone = QString::fromStdString(gonePty.path);
    // Looking finds nothing wrong with either; only opening tells the gone one.
    QVERIFY(!PortDiagnosis::beforeJob(free));
    QVERIFY(!PortDiagnosis::beforeJob(gone));
    const Outcome openFailed = Outcome::library(2);
    const Outcome afterGone = PortDiagnosis::afterJob(gone, openFailed);
    QCOMPARE(afterGone.kind, Outcome::Kind::portUnusable);
    QCOMPARE(afterGone.code, esp_error_t(2));
    QCOMPARE(std::get<PortCause>(afterGone.cause).problem, int(ESP_PORT_UNPLUGGED));
    // Nothing found, or another failure: the library's outcome stands.
    QCOMPARE(PortDiagnosis::afterJob(free, openFailed).message, openFailed.message);
    const Outcome noSync = Outcome::library(3);
    QCOMPARE(PortDiagnosis::afterJob(gone, noSync).kind, Outcome::Kind::failed);
}

void ConnectionTest::hintOffersTheCheckAfterLongWaitsAndRefusedPorts() {
    ConnectionHint hint(Texts::waitingForDevice(), 100);
    QSignalSpy changes(&hint, &ConnectionHint::offeredChanged);
    // The status is published on every poll; the wait runs from the first.
    QTimer polls;
    connect(&polls, &QTimer::timeout, &hint,
            [&hint] { hint.followStatus(Texts::waitingForDevice()); });
    polls.start(10);
    QTRY_VERIFY(hint.offered());
    polls.stop();
    hint.followStatus(Texts::deviceConnected());
    QVERIFY(!hint.offered());

    hint.jobEnded(Outcome::library(3));
    QVERIFY(!hint.offered());
    Outcome refused = Outcome::make(Outcome::Kind::portUnusable, QStringLiteral("denied"));
    hint.jobEnded(refused);
    hint.followStatus(Texts::deviceConnected());
    QVERIFY(hint.offered());
    hint.jobStarted();
    QVERIFY(!hint.offered());
    QCOMPARE(changes.count(), 4);
}

void ConnectionTest::aPortThatComesAndGoesIsAPlotterThatKeepsRestarting() {
    // The rule: more than two returns of the port within 10 s.
    const struct {
        const char* name;
        QList<std::pair<qint64, bool>> looks;
        bool restarting;
    } cases[] = {
        // The first look, present, is no return.
        {"two returns", {{0, true}, {1, false}, {2, true}, {3, false}, {4, true}}, false},
        {"three returns",
         {{0, false}, {1, true}, {2, false}, {3, true}, {4, false}, {5, true}},
         true},
        {"three returns over 10 s",
         {{0, false}, {1, true}, {2, false}, {3, true}, {4, false}, {10002, true}},
         false},
    };
    for (const auto& c : cases) {
        PortFlapping flapping;
        for (const auto& [at, present] : c.looks) {
            flapping.sample(at, present);
        }
        QVERIFY2(flapping.keepsRestarting() == c.restarting, c.name);
    }

    // The window's hint: the device monitor's looks, four a second.
    ConnectionHint hint(Texts::deviceConnected(), 100000);
    QSignalSpy restarting(&hint, &ConnectionHint::keepsRestartingChanged);
    for (const bool present : {true, false, true, false, true, false, true}) {
        hint.followPresence(present);
    }
    QVERIFY(hint.keepsRestarting() && hint.offered());
    QCOMPARE(restarting.count(), 1);

    // doctor watches a plotter on USB without a port, on a virtual clock; the tty
    // comes and goes every other look.
    const FreePty pty;
    for (const bool flaps : {true, false}) {
        FakeSysfs tree;
        plotter(tree, "1-1", "F4:12:FA:00:00:01", 1, "");
        const std::string node = tree.dev + "/ttyACM1";
        qint64 now = 0;
        int looks = 0;
        CheckConnection::Watch watch{[&now] { return now; },
                                     [&](int ms) {
                                         now += ms;
                                         if (!flaps || ++looks % 2 != 0) {
                                             return;
                                         }
                                         if (std::filesystem::exists(node)) {
                                             std::filesystem::remove(node);
                                         } else {
                                             std::filesystem::create_symlink(pty.path, node);
                                         }
                                     }};
        OperationSink commandLine;
        commandLine.audience = Texts::Audience::commandLine;
        const Outcome outcome =
            CheckConnection(QStringLiteral("RULE"), surveyOf(tree), watch).run(commandLine);
        QCOMPARE(outcome.kind, Outcome::Kind::notReady);
        const QString first = rowTexts(std::get<Checklist>(outcome.cause)).first();
        QCOMPARE(first,
                 flaps ? QStringLiteral("problem | The plotter keeps restarting. | If its "
                                        "controller board has a BOOT button, hold it while you "
                                        "plug the plotter in, then run teskal-flash repair.")
                       : QStringLiteral("ok | Plotter seen on USB (303a:1001, serial "
                                        "F4:12:FA:00:00:01)."));
        QVERIFY(now >= (flaps ? 2500 : PortFlapping::kWindowMs));
    }
}

QTEST_GUILESS_MAIN(ConnectionTest)
#include "ConnectionTest.moc"
