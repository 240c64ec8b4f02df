#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "cli/Fleet.h"
#include "tests/support/FreePty.h"
#include "tests/support/TestImages.h"

namespace {

const QString kProgram = QStringLiteral(TFU_FLASH_PROGRAM);
const QString kDev = QStringLiteral(TFU_DEV_RESOURCES_DIR);
const QString kNoPort = QStringLiteral("/dev/tfu-no-such-port");
const QString kComplete = QStringLiteral("Firmware update complete.");
const QString kUploaded = QStringLiteral("Upload successful; restarting machine.");
const QString kRunning = QStringLiteral("Firmware 2.10.6 installed and running.");
// The permission rule's fix names what installs it: in the build tree, which has
// neither its helper nor its rule file, the rule by name.
const QString kRuleHere = QStringLiteral("60-teskal-firmware-updater.rules in /etc/udev/rules.d");
const QString kWarning = QStringLiteral(
    "Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again "
    "to stop.\n");

struct Run {
    int exitCode = -1;
    QString out;
    QString err;
};

// `launcher`, when given, starts the program: its first word with the rest, the
// program and `arguments` as arguments.
Run run(const QStringList& arguments, const QStringList& launcher = {}) {
    QProcess process;
    if (launcher.isEmpty()) {
        process.start(kProgram, arguments);
    } else {
        process.start(launcher.first(), launcher.mid(1) + QStringList{kProgram} + arguments);
    }
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        qFatal("teskal-flash %s did not end", qPrintable(arguments.join(' ')));
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QList<QJsonObject> jsonObjects(const QString& out) {
    QList<QJsonObject> objects;
    for (const QString& line : out.split('\n', Qt::SkipEmptyParts)) {
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !document.isObject()) {
            qFatal("not a JSON object: %s", qPrintable(line));
        }
        objects << document.object();
    }
    return objects;
}

// Whether `lines` appear in `text`'s lines in this order, others between them.
bool containsInOrder(const QString& text, const QStringList& lines) {
    qsizetype next = 0;
    for (const QString& line : text.split('\n')) {
        if (next < lines.size() && line == lines[next]) {
            ++next;
        }
    }
    return next == lines.size();
}

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Whether a plotter (USB 303a:1001) is attached to this computer.
bool plotterAttached() {
    const QDir devices(QStringLiteral("/sys/bus/usb/devices"));
    for (const QString& device : devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString ids = devices.filePath(device) + "/id";
        if (contentsOf(ids + "Vendor").trimmed() == "303a" &&
            contentsOf(ids + "Product").trimmed() == "1001") {
            return true;
        }
    }
    return false;
}

qint64 devImageSize(const QString& name) {
    return QFileInfo(kDev + '/' + name + ".bin").size();
}

// Stands in for teskal-flash as a fleet's child, which is started with "--port P
// --json": P is "STATUS:SECONDS[:crash|:crash-after]", a result line with that
// status after that long, killed before or after the line.
const QByteArray kStandIn =
    "#!/bin/sh\n"
    "set -- $(echo \"$2\" | tr : ' ')\n"
    "sleep \"$2\"\n"
    "[ \"$3\" = crash ] && kill -KILL $$\n"
    "echo \"{\\\"type\\\":\\\"result\\\",\\\"code\\\":$1,\\\"message\\\":\\\"status $1\\\"}\"\n"
    "[ \"$3\" = crash-after ] && kill -KILL $$\n"
    "exit \"$1\"\n";

class Recorder : public Reporter {
  public:
    void report(const QString& port, const Event& event) override {
        if (const auto* result = std::get_if<event::Result>(&event)) {
            lines << port + ' ' + QString::number(result->status);
        } else if (const auto* entry = std::get_if<LogEntry>(&event); entry && entry->isError()) {
            lines << port + " error";
        }
    }
    void notice(const QString&) override {}
    QStringList lines;
};

}  // namespace

/// The program as a user runs it, against simulated plotters on pseudo-terminals.
class CliTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void subcommands_data();
    void subcommands();
    void versionNamesTheProgramItsBuildAndTheFirmware();
    void jsonLogLinesCarryTheirSeverity();
    void theMachinesStartDecidesTheStatus();
    void severalPlottersRunAtOnce();
    void severalPlottersEndAsOneDoes_data();
    void severalPlottersEndAsOneDoes();
    void fleetEndsWithTheFirstFailureInPortOrder();
    void terminalProgressIsRedrawnInPlace();
    void ctrlCWarnsOnceDuringAWrite_data();
    void ctrlCWarnsOnceDuringAWrite();
    void aPortTheUserMayNotOpenIsNamedAndGetsNothing();
    void doctorAndDetectSayWhyNoPlotterIsReady();
    void backupsAreListedAndRestored();
    void aFailedUpdateIsUndoneByItselfOrByItsCommand();

  private:
    QString file(const QString& name) const { return files_.filePath(name); }
    QTemporaryDir files_;
    const FreePty free_;  // a serial port nobody serves
    const QString freePort_ = QString::fromStdString(free_.path);
};

void CliTest::initTestCase() {
    // Every configuration read keeps a backup: never in the user's own folder.
    qputenv("XDG_DATA_HOME", file("home-data").toUtf8());
    const QByteArray firmware = contentsOf(kDev + "/firmware.bin");
    const auto unmarkedBytes =
        testimg::unmarked(std::vector<uint8_t>(firmware.begin(), firmware.end()));
    const QByteArray unmarked(reinterpret_cast<const char*>(unmarkedBytes.data()),
                              qsizetype(unmarkedBytes.size()));
    const QByteArray marker(testimg::kMarker.data(), qsizetype(testimg::kMarker.size()));
    const qsizetype partition = 0x1E0000;  // the development set's application partition
    const QByteArray mebibyte = QByteArray("name: x\n").leftJustified(1024 * 1024 - 1, '#') + '\n';
    const std::pair<QString, QByteArray> contents[] = {
        {"text.bin", "{\"name\": \"plotter\"}\n"},
        {"workshop.yml", "name: \"Workshop plotter\"\nmeta: '9.9'\n"},
        {"bad.yaml", "axes:\n  x: [1, 2\n"},
        {"notes.txt", "pens: 12\n"},
        {"fits.bin", firmware.leftJustified(partition, '\xFF')},
        {"over.bin", firmware.leftJustified(partition + 1, '\xFF')},
        {"exact.yaml", mebibyte},
        {"over.yaml", mebibyte + '\n'},
        // Resources a real machine could be given, but for their stub's last bytes.
        {"real/firmware.bin", unmarked},
        {"real/bootloader.bin", unmarked},
        {"real/partitions.bin", contentsOf(kDev + "/partitions.bin")},
        {"real/boot_app0.bin", QByteArray(8192, '\xFF')},
        {"real/esp32s3_stub.bin", QByteArray(100 * 1024, '\0') + marker},
        // A real set a plotter that never answers gets as far as the sync with.
        {"unmarked/firmware.bin", unmarked},
        {"unmarked/bootloader.bin", unmarked},
        {"unmarked/partitions.bin", contentsOf(kDev + "/partitions.bin")},
        {"unmarked/boot_app0.bin", QByteArray(8192, '\xFF')},
        {"unmarked/esp32s3_stub.bin", QByteArray(100 * 1024, '\0')},
        {"stand-in", kStandIn},
    };
    QVERIFY(QDir(files_.path()).mkpath("empty-resources") && QDir(files_.path()).mkpath("real") &&
            QDir(files_.path()).mkpath("unmarked"));
    for (const auto& [name, bytes] : contents) {
        QFile out(file(name));
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    }
    QVERIFY(QFile::setPermissions(file("stand-in"), QFile::ReadOwner | QFile::ExeOwner));
    // Children that teskal-flash leaves behind come to this process, which can tell
    // how they ended.
    QVERIFY(::prctl(PR_SET_CHILD_SUBREAPER, 1) == 0);
}

void CliTest::subcommands_data() {
    using L = QStringList;  // short rows
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out");  // lines in this order, others between them
    QTest::addColumn<QStringList>("notInOut");
    QTest::addColumn<QString>("err");  // exact; null: not compared

    // The command line's own words, not the window's menus.
    const QString note = QStringLiteral(
        "NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for "
        "your machine.");
    const QString refused = QStringLiteral("refused: a development image, not firmware\n");
    QTest::newRow("detect, 64 simulated")
        << L{"detect", "--sim", "64"} << 0 << "sim1\nsim2\nsim64" << L{"sim65"} << "";
    QTest::newRow("version") << L{"version", "--sim"} << 0 << "v2.10.5" << L{} << "";
    // A port that cannot be used is named as such, never as a silent machine.
    QTest::newRow("version, port missing")
        << L{"version", "--port", kNoPort} << 2 << "" << L{}
        << "ERROR: " + kNoPort + " does not exist. Plug the plotter in, or name another port.\n";
    QTest::newRow("version, no answer")
        << L{"version", "--port", freePort_} << 9 << "" << L{}
        << "ERROR: Operation timed out. Try unplugging and reconnecting.\n";
    QTest::newRow("probe") << L{"probe", "--sim"} << 0 << "Partition table: present" << L{} << "";
    QTest::newRow("flash, application only")
        << L{"flash", "--sim"} << 0
        << "Checking device status\u2026\nDevice running firmware v2.10.5 \u2014 updating "
           "firmware only.\n" +
               kComplete
        << L{"Opening port"} << "";
    QTest::newRow("flash, erase all, settings discarded, verbose")
        << L{"flash", "--sim", "--erase-all", "--discard-config", "--verbose"} << 0
        << "Flash plan: 4 entries (FULL)\n" + kComplete + "\n\n" + note
        << L{"Saving the machine's settings", "Uploading config"} << "";
    QTest::newRow("flash, erase all keeps the settings")
        << L{"flash", "--sim", "--erase-all"} << 0
        << "Saving the machine's settings before Erase All Flash\u2026\n" + note + '\n' + kUploaded
        << L{} << "";
    QTest::newRow("flash, refused image, nothing sent")
        << L{"flash", "--sim", "--verbose", "--firmware", file("text.bin")} << 11
        << "Updating firmware (custom: text.bin)\u2026"
        << L{"Checking device status", "Opening port"}
        << "ERROR: Firmware image refused: not a firmware image (first byte 0x7B, expected 0xE9)\n";
    QTest::newRow("flash, development image for a real port")
        << L{"flash", "--sim", "--port", freePort_} << 11 << "" << L{"Checking device status"}
        << "ERROR: Firmware image " + refused;
    QTest::newRow("flash, real port, marker at the end of a bundled image")
        << L{"flash", "--resources", file("real"), "--port", freePort_} << 11 << "" << L{}
        << "ERROR: Bundled esp32s3_stub.bin " + refused;
    QTest::newRow("flash, resources missing")
        << L{"flash", "--port", freePort_, "--resources", file("empty-resources")} << 12 << ""
        << L{} << "ERROR: Bundled firmware not found\n";
    QTest::newRow("upload, file after --sim")
        << L{"upload-config", "--sim", file("workshop.yml")} << 0
        << "Preparing workshop.yml v9.9\n" + kUploaded << L{} << "";
    QTest::newRow("upload, development configuration for a real port")
        << L{"upload-config", "--sim", "--product", "Halcot.yaml", "--port", kNoPort} << 11 << ""
        << L{"Preparing"}
        << "ERROR: The development set's configurations are only for simulated plotters\n";
    QTest::newRow("save-config, destination cannot be written")
        << L{"save-config", "--sim", "/nonexistent/folder/machine.yaml"} << 17 << ""
        << L{"Machine config saved"} << QString();
    QTest::newRow("statuses in the help, from the one table")
        << L{"save-config", "--help"} << 0
        << "Exit status:\n  0  saved\n  1  no plotter is connected\n  2  the port cannot be used "
           "(missing, not a serial port, not permitted, in use) or could not be opened\n  8  a "
           "configuration transfer with the machine failed (upload or download)\n  17 a file "
           "could not be written on this computer"
        << L{"  9 "} << "";
    QTest::newRow("diff-config's statuses follow diff(1)")
        << L{"diff-config", "--help"} << 0
        << "  0  equal by key\n  1  different, as diff(1) reports it\n  8  a configuration "
           "transfer with the machine failed (upload or download) (also when no plotter is "
           "connected)"
        << L{"  1  no plotter"} << "";
    QTest::newRow("doctor's statuses")
        << L{"doctor", "--help"} << 0
        << "  0  a plotter is ready to use\n  1  no plotter is ready to use" << L{"  2 "} << "";
    QTest::newRow("diff-config, different")
        << L{"diff-config", "--sim", "--product", "Corvane Halcot"} << 1
        << "axes/x/max_travel_mm: 300.000 \u2192 330.000\n+ axes/z/motor0/rc_servo/pwm_hz: "
           "50\nname: Simulated plotter \u2192 Corvane Halcot"
        << L{} << "";
    QTest::newRow("diff-config, invalid file")
        << L{"diff-config", "--sim", file("bad.yaml")} << 11 << "" << L{"Downloading"}
        << "ERROR: bad.yaml is not a valid machine configuration: line 3, column 1: end of "
           "sequence flow not found\n";
    const QString partition = QStringLiteral("(the application partition holds 1,966,080 bytes)");
    QTest::newRow("inspect, simulated, at the limits and past them")
        << L{"inspect",        "--sim",
             file("fits.bin"), kDev + "/configs/Halcot.yaml",
             file("over.bin"), file("exact.yaml"),
             file("over.yaml")}
        << 11
        << "fits.bin\n  chip: ESP32-S3 (chip id 9)\n  version: 0.0.0-devset\n  project: "
           "teskal-devset\n  partition: fits " +
               partition +
               "\n  result: passes\nHalcot.yaml\n  meta: 1.2.0-devset\n  result: "
               "passes\n  partition: too large " +
               partition
        << L{}
        << "ERROR: over.bin cannot be used: too large for the application partition (1,966,081 "
           "bytes; the partition holds 1,966,080)\nERROR: over.yaml is not a valid machine "
           "configuration: larger than 1 MiB\nERROR: 2 of 5 files refused\n";
    QTest::newRow("inspect, refusals")
        << L{"inspect",        "--resources",    file("empty-resources"), kDev + "/firmware.bin",
             file("text.bin"), file("notes.txt")}
        << 11
        << "firmware.bin\n  partition: unknown (no partition table in the resources)\n  result: "
           "refused\ntext.bin\n  size: 20 bytes\n  SHA-256: "
           "fa9c3e324e6282a583cf5744a6d61770870e8710d7200dcc77af917e46839f13\n  result: "
           "refused\nnotes.txt\n  result: refused"
        << L{"partition: fits"}
        << "ERROR: firmware.bin cannot be used: a development image, not firmware\nERROR: text.bin "
           "cannot be used: not a firmware image (first byte 0x7B, expected 0xE9)\nERROR: "
           "notes.txt is neither a firmware image (.bin) nor a machine configuration (.yaml, "
           ".yml)\nERROR: 3 of 3 files refused\n";
    QTest::newRow("detect, 65 simulated")
        << L{"detect", "--sim", "65"} << 64 << "" << L{} << QString();
    QTest::newRow("usage error") << L{"flash", "--all", "--port", "sim1"} << 64 << "" << L{}
                                 << QString();
}

void CliTest::subcommands() {
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, out);
    QFETCH(QStringList, notInOut);
    QFETCH(QString, err);

    const Run result = run(arguments);
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(containsInOrder(result.out, out.isEmpty() ? QStringList() : out.split('\n')),
             qPrintable(result.out));
    for (const QString& absent : notInOut) {
        QVERIFY2(!result.out.contains(absent), qPrintable(absent));
    }
    if (!err.isNull()) {
        QCOMPARE(result.err, err);
    }
    // Not a terminal: plain lines only.
    for (const QChar c : result.out + result.err) {
        QVERIFY2(c == '\n' || c.category() != QChar::Other_Control, qPrintable(result.out));
    }
}

void CliTest::versionNamesTheProgramItsBuildAndTheFirmware() {
    const Run result = run({"--version"});
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(QRegularExpression("^teskal-flash \\d+\\.\\d+\\.\\d+, built \\d{8}, bundled "
                                "firmware 2\\.10\\.6\n$")
                 .match(result.out)
                 .hasMatch(),
             qPrintable(result.out));
}

void CliTest::jsonLogLinesCarryTheirSeverity() {
    const Run result = run({"inspect", "--json", file("notes.txt")});
    QCOMPARE(result.exitCode, 11);
    const QList<QJsonObject> objects = jsonObjects(result.out);
    QVERIFY(objects.contains(QJsonObject({{"type", "log"}, {"line", "  result: refused"}})));
    const QString refusal =
        "ERROR: notes.txt is neither a firmware image (.bin) nor a machine "
        "configuration (.yaml, .yml)";
    QVERIFY(
        objects.contains(QJsonObject({{"type", "log"}, {"severity", "error"}, {"line", refusal}})));
}

// After the write the machine's own start decides: the status, "machine", its lines
// as evidence, and the text ends with the verdict, never with "complete".
void CliTest::theMachinesStartDecidesTheStatus() {
    const std::tuple<QString, int, QString, QString> rows[] = {
        {"flash --sim-startup panic", 13, "panic", "Guru Meditation Error"},
        {"flash --sim-startup no-app", 13, "no-app", "invalid header: 0xffffffff"},
        {"flash --sim-startup other-version", 10, "wrong-version", "[VER:0.9.0"},
        {"upload-config --sim-startup config-error --product Halcot.yaml", 14, "config-error",
         "[MSG:ERR: Bad GPIO"},
    };
    for (const auto& [arguments, status, machine, evidence] : rows) {
        const Run json = run(arguments.split(' ') << "--sim"
                                                  << "--json");
        QCOMPARE(json.exitCode, status);
        const QJsonObject result = jsonObjects(json.out).last();
        QCOMPARE(result["code"].toInt(), status);
        QCOMPARE(result["machine"].toString(), machine);
        QVERIFY(result["evidence"].toArray().first().toString().startsWith(evidence));
    }
    const Run text = run({"flash", "--sim", "--sim-startup", "panic"});
    const QStringList ending = text.err.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(ending.first(),
             "ERROR: Firmware written, but the machine does not start: it crashed at start-up.");
    QVERIFY(ending[1].startsWith("  Guru Meditation Error"));
    QCOMPARE(ending.last(),
             "Run teskal-flash repair to erase the machine, install the firmware again and put "
             "back your settings. If it keeps happening, keep this output for support.");
}

// Each plotter's JSON lines carry its port; an application-only update writes the
// boot-app image and the application, and its regions run from 0.12 to 0.85.
void CliTest::severalPlottersRunAtOnce() {
    const Run two = run({"flash", "--sim", "2", "--all", "--json"});
    QVERIFY2(two.exitCode == 0, qPrintable(two.out + two.err));
    QMap<QString, QJsonObject> last;  // by port and type
    for (const QJsonObject& object : jsonObjects(two.out)) {
        const QString key = object["port"].toString() + ' ' + object["type"].toString();
        QVERIFY2(QStringList({"sim1", "sim2"}).contains(key.section(' ', 0, 0)), qPrintable(key));
        QVERIFY(object["fraction"].toDouble() >= last[key]["fraction"].toDouble() &&
                object["bytes"].toInteger() >= last[key]["bytes"].toInteger());
        last[key] = object;
    }
    for (const QString port : {"sim1", "sim2"}) {
        QCOMPARE(last[port + " result"], QJsonObject({{"type", "result"},
                                                      {"code", 0},
                                                      {"message", kRunning},
                                                      {"kind", "succeeded"},
                                                      {"machine", "running"},
                                                      {"evidence", QJsonArray{"[VER:2.10.6:]"}},
                                                      {"port", port}}));
        QCOMPARE(last[port + " progress"]["bytes"].toInteger(),
                 devImageSize("boot_app0") + devImageSize("firmware"));
        QCOMPARE(qRound(last[port + " progress"]["fraction"].toDouble() * 100), 85);
    }

    // Text: one result line each; the status is the first failure in port order.
    const Run mixed =
        run({"flash", "--sim", "2", "--port", "sim2", "--port", kNoPort, "--port", "sim1"});
    QCOMPARE(mixed.exitCode, 2);
    QVERIFY(mixed.out.contains("sim2: " + kRunning + '\n'));
    QVERIFY(mixed.out.contains("sim1: " + kRunning + '\n'));
    QVERIFY2(!mixed.out.contains("Updating firmware"), "log lines only with --verbose");
    QCOMPARE(mixed.err, kNoPort + ": ERROR: " + kNoPort +
                            " does not exist. Plug the plotter in, or name another port.\n");
}

// Each child as "PORT CODE" for a result, "PORT error" for an error after it.
// Each child's result carries its outcome's kind and the library's code, so that
// with several plotters each ends in the words one plotter ends in: the sentence and
// what to do next (the machine's quoted lines may differ from run to run).
void CliTest::severalPlottersEndAsOneDoes_data() {
    QTest::addColumn<QStringList>("one");
    QTest::addColumn<QStringList>("several");
    QTest::addColumn<QStringList>("ports");
    QTest::newRow("a machine that restarts in a loop")
        << QStringList{"flash", "--sim", "--sim-startup", "boot-loop"}
        << QStringList{"flash", "--sim", "2", "--all", "--sim-startup", "boot-loop"}
        << QStringList{"sim1", "sim2"};
    QTest::newRow("a library failure: no sync")
        << QStringList{"flash", "--full", "--resources", file("unmarked"), "--port", "OTHER"}
        << QStringList{"flash",  "--full",  "--resources", file("unmarked"),
                       "--port", freePort_, "--port",      freePort_ + "-gone"}
        << QStringList{freePort_};
}

void CliTest::severalPlottersEndAsOneDoes() {
    QFETCH(QStringList, one);
    QFETCH(QStringList, several);
    QFETCH(QStringList, ports);
    // The one plotter's port, that nobody serves either.
    const FreePty other;
    one.replaceInStrings("OTHER", QString::fromStdString(other.path));
    const auto ending = [](const QString& err, const QString& prefix) {
        QStringList lines;
        for (const QString& line : err.split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith(prefix) && !line.mid(prefix.size()).startsWith("  ")) {
                lines << line.mid(prefix.size());
            }
        }
        return lines;
    };
    // Both at once: each waits on its machines, not on the other.
    // The library's own lines go to standard output, to tell a failure's cause.
    QProcess processes[2];
    processes[0].start(kProgram, one << "--verbose");
    processes[1].start(kProgram, several << "--verbose");
    for (QProcess& process : processes) {
        QVERIFY(process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit);
    }
    const Run single{processes[0].exitCode(), processes[0].readAllStandardOutput(),
                     processes[0].readAllStandardError()};
    const Run fleet{processes[1].exitCode(), processes[1].readAllStandardOutput(),
                    processes[1].readAllStandardError()};
    const QStringList alone = ending(single.err, QString());
    QVERIFY2(alone.size() == 2, qPrintable(single.out + single.err));
    QVERIFY2(fleet.exitCode == single.exitCode,
             qPrintable(single.out + single.err + fleet.out + fleet.err));
    for (const QString& port : ports) {
        QCOMPARE(ending(fleet.err, port + ": "), alone);
    }
}

void CliTest::fleetEndsWithTheFirstFailureInPortOrder() {
    const QString standIn = file("stand-in");
    const std::tuple<QString, QStringList, int, QStringList> rows[] = {
        {standIn, {"3:0.5", "5:0"}, 3, {"3:0.5 3", "5:0 5"}},
        {standIn, {"3:0", "5:0.5"}, 3, {"3:0 3", "5:0.5 5"}},
        {standIn, {"0:0", "0:0.3:crash", "3:0"}, 70, {"0:0 0", "0:0.3:crash 70", "3:0 3"}},
        {standIn,
         {"0:0.3:crash-after", "3:0"},
         70,
         {"0:0.3:crash-after 0", "0:0.3:crash-after error", "3:0 3"}},
        {file("missing"), {"a", "b"}, 70, {"a 70", "b 70"}},
    };
    for (const auto& [program, ports, exitCode, reported] : rows) {
        Recorder recorder;
        Fleet fleet(program, ports, {}, false, recorder);
        QSignalSpy finished(&fleet, &Fleet::finished);
        fleet.start();
        QVERIFY(finished.wait(10000));
        QCOMPARE(finished.first().first().toInt(), exitCode);
        recorder.lines.sort();
        QCOMPARE(recorder.lines, reported);
    }
}

void CliTest::terminalProgressIsRedrawnInPlace() {
    int master = -1;
    int slave = -1;
    QVERIFY(::openpty(&master, &slave, nullptr, nullptr, nullptr) == 0);
    QProcess process;
    process.setChildProcessModifier([slave] { ::dup2(slave, STDOUT_FILENO); });
    process.start(kProgram, {"flash", "--sim"});
    QVERIFY(process.waitForStarted());
    ::close(slave);
    QByteArray screen;
    char buffer[4096];
    pollfd readable{master, POLLIN, 0};
    while (::poll(&readable, 1, 60000) > 0) {
        const ssize_t n = ::read(master, buffer, sizeof buffer);
        if (n <= 0) {
            break;  // the last writer has gone
        }
        screen.append(buffer, n);
    }
    ::close(master);
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY2(screen.contains("\x1b[1A\r\x1b[J"), screen.constData());  // back over the bar
    QVERIFY(screen.contains("Flashing         [#"));
    QVERIFY(screen.contains("Complete         [################]  100%  "));
    QVERIFY(screen.contains(kComplete.toUtf8() + "\r\n"));
}

// With several plotters the program stops its children before it ends.
void CliTest::ctrlCWarnsOnceDuringAWrite_data() {
    QTest::addColumn<QStringList>("plotters");
    QTest::addColumn<bool>("duringWrite");
    for (const bool write : {true, false}) {
        const char* when = write ? "during the write" : "before it";
        QTest::addRow("one plotter, %s", when) << QStringList{"--sim"} << write;
        QTest::addRow("three plotters, %s", when) << QStringList{"--sim", "3", "--all"} << write;
    }
}

void CliTest::ctrlCWarnsOnceDuringAWrite() {
    QFETCH(QStringList, plotters);
    QFETCH(bool, duringWrite);
    QProcess process;
    process.start(kProgram, QStringList{"flash", "--json"} + plotters);
    const QByteArray awaited = duringWrite ? "\"type\":\"progress\"" : "\"type\":\"log\"";
    QByteArray out;
    QVERIFY(QTest::qWaitFor(
        [&] {
            process.waitForReadyRead(50);
            out += process.readAllStandardOutput();
            return out.contains(awaited);
        },
        20000));
    const auto pid = static_cast<pid_t>(process.processId());
    const QList<QByteArray> children =
        contentsOf(QStringLiteral("/proc/%1/task/%1/children").arg(pid)).split(' ');
    QCOMPARE(children.size(), plotters.size() == 1 ? 1 : 4);  // and an empty last
    ::kill(pid, SIGINT);
    if (duringWrite) {
        QByteArray err;
        QTRY_COMPARE(QString::fromUtf8(err += process.readAllStandardError()), kWarning);
        QVERIFY(!process.waitForFinished(300));  // the write goes on
        ::kill(pid, SIGINT);
    }
    QVERIFY(process.waitForFinished(5000));
    QCOMPARE(process.exitCode(), 130);
    QVERIFY(!process.readAllStandardOutput().contains("\"type\":\"result\""));
    for (const QByteArray& child : children.mid(0, children.size() - 1)) {
        int status = 0;
        QCOMPARE(::waitpid(child.toInt(), &status, 0), child.toInt());
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    }
}

// As an ordinary user on a port they may not open, every command that opens a port
// says "permission", names the group and the fix, exits 2 and sends nothing.
void CliTest::aPortTheUserMayNotOpenIsNamedAndGetsNothing() {
    const FreePty pty;
    QVERIFY(::fcntl(pty.master, F_SETFL, O_NONBLOCK) == 0);
    const QString port = QString::fromStdString(pty.path);
    QString denied;
    QStringList launcher;
    if (::geteuid() == 0) {
        // Mode bits stop no open by root: the port is given to root and dialout, and
        // the program runs as user nobody, who is in neither.
        const group* dialout = ::getgrnam("dialout");
        if (dialout == nullptr || QStandardPaths::findExecutable("setpriv").isEmpty()) {
            QSKIP("needs the group dialout and setpriv to drop privileges");
        }
        QVERIFY(::chown(qPrintable(port), 0, dialout->gr_gid) == 0);
        QVERIFY(::chmod(qPrintable(port), 0660) == 0);
        launcher = QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
        denied = "Permission denied on " + port +
                 " (group dialout). Install the permission rule (" + kRuleHere +
                 "), or join the group: sudo usermod -aG dialout $USER, then log out "
                 "and in again.";
    } else {
        // The user's own node, without permission bits.
        QVERIFY(::chmod(qPrintable(port), 0) == 0);
        denied = "Permission denied on " + port + " (owner " + qgetenv("USER") +
                 ", mode 0000). Install the permission rule (" + kRuleHere + ").";
    }
    const QStringList commands[] = {
        {"version", "--port", port},
        {"flash", "--port", port},
        {"probe", "--port", port},
        {"save-config", "--port", port, file("denied.yaml")},
        {"upload-config", "--resources", kDev, "--product", "Halcot.yaml", "--port", port},
        {"diff-config", "--resources", kDev, "--product", "Halcot.yaml", "--port", port},
    };
    for (const QStringList& command : commands) {
        const Run result = run(command, launcher);
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.err, "ERROR: " + denied + '\n');
        QCOMPARE(result.out, QString());
        char received[64];
        QVERIFY2(::read(pty.master, received, sizeof received) <= 0, qPrintable(command.first()));
    }
}

void CliTest::doctorAndDetectSayWhyNoPlotterIsReady() {
    if (plotterAttached()) {
        QSKIP("a plotter is attached to this computer");
    }
    const QString noPlotter = QStringLiteral("No plotter seen on USB.");
    const QString fix = QStringLiteral(
        "Switch it on, try another USB port, and use a cable that carries data: some cables only "
        "charge.");
    const Run text = run({"doctor"});
    QCOMPARE(text.exitCode, 1);
    QCOMPARE(text.out.section('\n', 0, 1), "\u2717 " + noPlotter + "\n  " + fix);
    QCOMPARE(text.err, QStringLiteral("ERROR: No plotter is ready to use.\n"));

    // One object per row, then the result; the rows after the first are the
    // computer's other USB serial devices.
    const QList<QJsonObject> objects = jsonObjects(run({"doctor", "--json"}).out);
    QCOMPARE(
        objects.first(),
        QJsonObject({{"type", "check"}, {"mark", "problem"}, {"line", noPlotter}, {"fix", fix}}));
    QCOMPARE(objects.last(), QJsonObject({{"type", "result"},
                                          {"code", 1},
                                          {"message", "No plotter is ready to use."},
                                          {"kind", "not-ready"}}));
    for (const QJsonObject& other : objects.mid(1, objects.size() - 2)) {
        QCOMPARE(other["mark"].toString(), QStringLiteral("info"));
    }

    const Run detect = run({"detect"});
    QCOMPARE(detect.exitCode, 1);
    QCOMPARE(detect.err,
             QStringLiteral(
                 "ERROR: No device found. Is it connected? Run teskal-flash doctor to see why.\n"));
}

void CliTest::backupsAreListedAndRestored() {
    const QString data = file("data");
    qputenv("XDG_DATA_HOME", data.toUtf8());
    const QString folder = data + "/teskal-firmware-updater/backups";
    QCOMPARE(run({"backups"}).out, "No backups in " + folder + '\n');
    const Run nothingToRestore = run({"restore-config", "--sim"});
    QCOMPARE(nothingToRestore.exitCode, 15);
    QCOMPARE(nothingToRestore.err, "ERROR: No backup of the machine sim1 in " + folder + '\n');

    QVERIFY(run({"save-config", "--sim", file("kept.yaml")})
                .out.contains("Machine config saved to " + file("kept.yaml") + " (512 bytes)"));
    const QJsonArray backups =
        jsonObjects(run({"backups", "--json"}).out).last()["backups"].toArray();
    QCOMPARE(backups.size(), 1);
    QJsonObject backup = backups[0].toObject();
    const QString name = QFileInfo(backup.take("path").toString()).fileName();
    QCOMPARE(backup.take("reason"), "save");
    QCOMPARE(backup.take("machine"), "sim1");
    QCOMPARE(backup.take("firmware"), "v2.10.5");
    QCOMPARE(backup.take("size"), 512);
    QVERIFY2(QFile::exists(folder + '/' + name) && name.startsWith("config-"), qPrintable(name));

    // A configuration the machine rejects is followed by the command that puts back
    // the one it had.
    const Run rejected = run(
        {"upload-config", "--sim", "--sim-startup", "config-error", "--product", "Halcot.yaml"});
    QCOMPARE(rejected.exitCode, 14);
    QVERIFY2(rejected.out.contains("To put back the configuration the machine had before: "
                                   "teskal-flash restore-config --port sim1 " +
                                   name + '\n'),
             qPrintable(rejected.out));
    const Run restored = run({"restore-config", "--sim", name});
    QCOMPARE(restored.exitCode, 0);
    QVERIFY2(containsInOrder(restored.out, {"Preparing " + name + " v0.0.0-sim", kUploaded}),
             qPrintable(restored.out));
    QCOMPARE(run({"restore-config", "--sim", "config-19990101-000000.yaml"}).exitCode, 15);

    // A repair saves the answering firmware's file first, and that copy goes back.
    const Run repaired = run({"repair", "--sim", "--sim-startup", "boot-loop", "--json"});
    QCOMPARE(repaired.exitCode, 0);
    const QJsonObject result = jsonObjects(repaired.out).last();
    QCOMPARE(result["machine"], "running");
    QVERIFY2(result["backup"].toString().startsWith(folder + "/config-"), qPrintable(repaired.out));
    QCOMPARE(result["restored"], result["backup"]);
    const Run bare = run({"repair", "--sim", "--no-config", "--json"});
    QCOMPARE(bare.exitCode, 0);
    QCOMPARE(jsonObjects(bare.out).last()["restored"], QJsonValue(QJsonValue::Null));
    const Run unknown = run({"repair", "--sim", "--verbose", "--backup", "config-19990101.yaml"});
    QCOMPARE(unknown.exitCode, 15);
    QVERIFY(!unknown.out.contains("Opening port"));
    QVERIFY(run({"repair", "--help"}).out.contains("18 nothing is known to put back"));
    qputenv("XDG_DATA_HOME", file("home-data").toUtf8());
}

// Each run has a simulated plotter of its own, so the command named after one run
// puts its snapshot on the next run's plotter, which starts from the same flash.
void CliTest::aFailedUpdateIsUndoneByItselfOrByItsCommand() {
    const QString data = file("undo-data");
    qputenv("XDG_DATA_HOME", data.toUtf8());
    const QString folder = data + "/teskal-firmware-updater/backups";
    const Run failed = run({"flash", "--sim", "--sim-startup", "boot-loop", "--snapshot"});
    QCOMPARE(failed.exitCode, 13);
    const QRegularExpression named("run: teskal-flash restore-machine (\\S+machine-\\S+\\.bin)\n$");
    const auto match = named.match(failed.err);
    QVERIFY2(match.hasMatch(), qPrintable(failed.err));
    const QString snapshot = match.captured(1);
    QCOMPARE(QFileInfo(snapshot).absolutePath(), folder);
    QCOMPARE(QFileInfo(snapshot).size(), 4 * 1024 * 1024);

    const Run restored = run({"restore-machine", "--sim", "--json", snapshot});
    QCOMPARE(restored.exitCode, 0);
    QCOMPARE(jsonObjects(restored.out).last()["machine"], "running");

    const Run undone = run({"flash", "--sim", "--sim-startup", "boot-loop", "--snapshot",
                            "--undo-on-failure", "--json"});
    QCOMPARE(undone.exitCode, 13);
    const QList<QJsonObject> lines = jsonObjects(undone.out);
    QCOMPARE(lines.last()["machine"], "boot-loop");
    QCOMPARE(lines.last()["undone"], true);
    QVERIFY(std::any_of(lines.begin(), lines.end(), [](const QJsonObject& line) {
        return line["line"].toString().startsWith("Machine put back as it was on ");
    }));

    // What is not a whole-flash snapshot is refused with nothing sent; the backups
    // list names each snapshot's reason.
    const Run refused = run({"restore-machine", "--sim", "--verbose", file("text.bin")});
    QCOMPARE(refused.exitCode, 11);
    QVERIFY(!refused.out.contains("Opening port"));
    const QJsonArray kept = jsonObjects(run({"backups", "--json"}).out).last()["backups"].toArray();
    QCOMPARE(kept.size(), 2);
    QCOMPARE(kept[0].toObject()["reason"], "before-update");
    QVERIFY(run({"flash", "--help"}).out.contains("20 no snapshot of the whole flash"));
    qputenv("XDG_DATA_HOME", file("home-data").toUtf8());
}

QTEST_GUILESS_MAIN(CliTest)
#include "CliTest.moc"
