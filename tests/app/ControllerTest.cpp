#include <QDirIterator>

#include "ControllerHarness.h"
#include "tests/support/FreePty.h"
#include "tests/support/TestImages.h"

namespace {

const QString kMissingPort = QStringLiteral("/dev/tfu-no-such-port");
const QString kShipped = QStringLiteral("Updating firmware v2.10.6\u2026");
const QString kGone = QStringLiteral(
    "PORT does not answer: its device has gone. Unplug the plotter, plug it in again and try "
    "again.");
const QByteArray kNotes = "{\"name\": \"plotter\", \"pens\": 12}\n";

/// A copy of the development resources without the named files.
struct ResourcesWithout {
    explicit ResourcesWithout(const QStringList& missing) {
        const QDir source(TFU_DEV_RESOURCES_DIR);
        QDir(dir.path()).mkpath(QStringLiteral("configs"));
        QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString relative = source.relativeFilePath(files.next());
            if (!missing.contains(relative)) {
                QFile::copy(files.filePath(), dir.filePath(relative));
            }
        }
    }
    QTemporaryDir dir;
};

/// The development application made into one the real program takes.
inline QByteArray unmarkedApplication() {
    const QByteArray image = readFile(TFU_DEV_RESOURCES_DIR "/firmware.bin");
    const auto bytes = testimg::unmarked(std::vector<uint8_t>(image.begin(), image.end()));
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size()));
}

}  // namespace

class ControllerTest : public QObject {
    Q_OBJECT

  private slots:
    void followsTheConnectionAndRefusesStartsWithoutIt();
    void failures_data();
    void failures();
    void customFirmwareChoice();
};

void ControllerTest::followsTheConnectionAndRefusesStartsWithoutIt() {
    ControllerHarness harness;
    auto& controller = harness.controller;
    QCOMPARE(controller.state(), UpdateState::idle());
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));

    QVERIFY(harness.plug(kMissingPort));
    QCOMPARE(controller.statusMessage(), QStringLiteral("Device connected"));

    QVERIFY(harness.plug({}));
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));
    controller.log("earlier line");
    controller.updateFirmware();
    controller.uploadConfig("Halcot.yaml", "Corvane Halcot");
    controller.uploadConfigFromFile(TFU_DEV_RESOURCES_DIR "/configs/mrv.yaml");
    QStringList log{"earlier line"};
    log << QStringList(3, "ERROR: No device connected");
    QTRY_COMPARE(controller.logMessages(), log);

    // With a device, a file that is no machine configuration is refused before any
    // job starts, and nothing else changes.
    QVERIFY(harness.plug(kMissingPort));
    controller.uploadConfigFromFile("/nonexistent/folder/machine.yaml");
    log << "ERROR: Could not read file: machine.yaml";
    const std::pair<QString, QByteArray> configs[] = {
        {"line 2, column 1: not valid UTF-8", "name: a\n\xff\xfe: b\n"},
        {"line 3, column 1: end of sequence flow not found", "axes:\n  x: [1, 2\n"},
        {"line 1, column 1: unexpected ','", ",a: 1\n"},  // the parser would start over and over
        {"larger than 1 MiB", QByteArray(1024 * 1024 + 1, '#')},
        {"the top level is not a mapping of settings", "- just\n- a list\n"},
    };
    QTemporaryDir dir;
    for (const auto& [problem, bytes] : configs) {
        controller.uploadConfigFromFile(writeFile(dir, "machine.yaml", bytes));
        log << "ERROR: machine.yaml is not a valid machine configuration: " + problem;
    }
    QTRY_COMPARE(controller.logMessages(), log);
    QTest::qWait(300);
    QVERIFY(!controller.jobRunning());
    QCOMPARE(harness.states.count(UpdateState::ready()), harness.states.size());
}

void ControllerTest::failures_data() {
    // The plotter's port: "gone" for a pseudo-terminal that looks free but fails every
    // open, as a USB node does once its device has gone; its path replaces PORT.
    QTest::addColumn<QString>("port");
    QTest::addColumn<QStringList>("missing");
    // "update" or "config"; an update may ask the console first ("probe"), log in detail
    // ("detailed"), use a chosen image ("custom=gone.bin", which does not exist, or
    // "custom=unmarked.bin") or run as the real program, which refuses development
    // images ("real").
    QTest::addColumn<QString>("job");
    QTest::addColumn<QStringList>("busy");  // the state the job set before it failed, if any
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("logBeforeError");

    using L = QStringList;
    QTest::newRow("custom image unreadable")
        << QString("gone") << L{} << "update custom=gone.bin" << L{}
        << "Failed to load custom firmware: No such file or directory" << L{};
    QTest::newRow("real program, development boot images")
        << QString("gone") << L{} << "update probe real custom=unmarked.bin" << L{}
        << "Bundled bootloader.bin refused: a development image, not firmware"
        << L{"Updating firmware (custom: unmarked.bin)\u2026"};
    QTest::newRow("stub missing") << QString("gone") << L{"esp32s3_stub.bin"} << "update" << L{}
                                  << "Flash stub not found in bundle" << L{kShipped};
    QTest::newRow("no answer, partition table missing")
        << QString("gone") << L{"partitions.bin"} << "update probe" << L{}
        << "Missing bootloader resources for full flash"
        << L{kShipped, "Checking device status\u2026",
             "Device not responding \u2014 writing boot partitions + firmware."};
    QTest::newRow("library fails, detailed log")
        << QString("gone") << L{} << "update detailed" << L{"flashing(0)"} << kGone
        << L{kShipped, "Opening port: PORT", "Failed to open port"};
    QTest::newRow("configuration missing")
        << QString("gone") << L{"configs/Halcot.yaml"} << "config" << L{"uploadingConfig(0)"}
        << "Config file not found in bundle: Halcot.yaml" << L{};
    QTest::newRow("configuration, library fails")
        << QString("gone") << L{} << "config" << L{"uploadingConfig(0)"} << kGone
        << L{"Preparing Corvane Halcot config v1.2.0-devset"};
    // A port that cannot be used ends the job before anything is sent or logged.
    QTest::newRow("port missing")
        << kMissingPort << L{} << "update probe" << L{}
        << kMissingPort + " does not exist. Plug the plotter in, or name another port." << L{};
}

void ControllerTest::failures() {
    QFETCH(QString, port);
    QFETCH(QStringList, missing);
    QFETCH(QString, job);
    QFETCH(QStringList, busy);
    QFETCH(QString, message);
    QFETCH(QStringList, logBeforeError);
    const FreePty gone(false);
    if (port == "gone") {
        port = QString::fromStdString(gone.path);
        message.replace("PORT", port);
        logBeforeError.replaceInStrings("PORT", port);
    }

    const ResourcesWithout resources(missing);
    ControllerHarness harness(resources.dir.path(),
                              job.contains("real") ? UpdateController::DevelopmentImages::refuse
                                                   : UpdateController::DevelopmentImages::accept);
    auto& controller = harness.controller;
    controller.setWriteBootPartitionsEnabled(!job.contains("probe"));
    controller.setDetailedLogging(job.contains("detailed"));
    if (const QString custom = job.section("custom=", 1).section(' ', 0, 0); !custom.isEmpty()) {
        controller.setCustomFirmwareURL(QUrl::fromLocalFile(
            custom == "gone.bin" ? resources.dir.filePath(custom)
                                 : writeFile(resources.dir, custom, unmarkedApplication())));
    }
    controller.log("line of an earlier job");
    QVERIFY(harness.plug(port));

    if (job == "config") {
        controller.uploadConfig("Halcot.yaml", "Corvane Halcot");
    } else {
        controller.updateFirmware();
    }
    QCOMPARE(harness.waitForOutcome(5000), std::optional(UpdateState::error(message)));
    QCOMPARE(controller.logMessages(), logBeforeError + QStringList{"ERROR: " + message});
    const QStringList published =
        busy + QStringList{"error(" + message + ")", "status: " + message};
    QCOMPARE(harness.publishedByJob().mid(0, published.size()), published);

    // The next poll brings the controller back to ready; the log keeps the outcome.
    QTRY_COMPARE_WITH_TIMEOUT(controller.state(), UpdateState::ready(), 2000);
    QCOMPARE(controller.statusMessage(), QStringLiteral("Device connected"));
    QCOMPARE(controller.logMessages().last(), "ERROR: " + message);
}

void ControllerTest::customFirmwareChoice() {
    ControllerHarness harness;
    auto& controller = harness.controller;
    const QString application = TFU_DEV_RESOURCES_DIR "/firmware.bin";
    controller.chooseCustomFirmware(application);
    QStringList log{"Custom firmware: firmware.bin",
                    "Firmware image: version 0.0.0-devset, project teskal-devset, built Jan  1 "
                    "2000 00:00:00"};

    // Refused files leave the accepted choice in place. The reasons are the image
    // check's, which teskal-flash's inspect cases check at the partition's size.
    QTemporaryDir dir;
    controller.chooseCustomFirmware(writeFile(dir, "notes.bin", kNotes));
    controller.chooseCustomFirmware(dir.filePath("gone.bin"));
    log << "ERROR: notes.bin cannot be used: not a firmware image (first byte 0x7B, expected 0xE9)"
        << "ERROR: gone.bin cannot be used: it could not be read (No such file or directory)";
    QTRY_COMPARE(controller.logMessages(), log);
    QCOMPARE(controller.customFirmwareURL(), QUrl::fromLocalFile(application));
    QCOMPARE(controller.firmwareLabel(), QStringLiteral("firmware.bin"));

    controller.chooseCustomFirmware(std::nullopt);
    QVERIFY(controller.customFirmwareURL().isEmpty());
    QCOMPARE(controller.firmwareLabel(), QStringLiteral("Firmware version 2.10.6"));
    QTRY_COMPARE(controller.logMessages().last(), QStringLiteral("Custom firmware: unknown"));

    ControllerHarness real(TFU_DEV_RESOURCES_DIR, UpdateController::DevelopmentImages::refuse);
    real.controller.chooseCustomFirmware(application);
    const QString unmarked = writeFile(dir, "unmarked.bin", unmarkedApplication());
    real.controller.chooseCustomFirmware(unmarked);
    QTRY_COMPARE(
        real.controller.logMessages(),
        QStringList({"ERROR: firmware.bin cannot be used: a development image, not firmware",
                     "Custom firmware: unmarked.bin", log[1]}));
    QCOMPARE(real.controller.customFirmwareURL(), QUrl::fromLocalFile(unmarked));
}

QTEST_GUILESS_MAIN(ControllerTest)
#include "ControllerTest.moc"
