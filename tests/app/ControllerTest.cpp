#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "ControllerHarness.h"
#include "TestSupport.h"

namespace {

const QString kMissingPort = QStringLiteral("/dev/tfu-no-such-port");
const QString kShipped = QStringLiteral("Updating firmware v2.10.6\u2026");

}  // namespace

class ControllerTest : public QObject {
    Q_OBJECT

  private slots:
    void followsTheConnection();
    void startWithoutDeviceOnlyLogs();
    void unreadableConfigFileOnlyLogs();
    void failures_data();
    void failures();
    void customFirmwareChoice();
};

void ControllerTest::followsTheConnection() {
    ControllerHarness harness(TFU_DEV_RESOURCES_DIR);
    auto& controller = harness.controller();
    QCOMPARE(controller.state(), UpdateState::idle());
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));
    QCOMPARE(controller.firmwareLabel(), QStringLiteral("Firmware version 2.10.6"));

    harness.setPort(kMissingPort);
    QVERIFY(harness.waitForConnection(true));
    QCOMPARE(controller.statusMessage(), QStringLiteral("Device connected"));
    QCOMPARE(controller.deviceMonitor()->portPath(), kMissingPort);

    harness.setPort({});
    QVERIFY(harness.waitForConnection(false));
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));
}

void ControllerTest::startWithoutDeviceOnlyLogs() {
    ControllerHarness harness(TFU_DEV_RESOURCES_DIR);
    auto& controller = harness.controller();
    controller.log("earlier line");
    controller.updateFirmware();
    controller.uploadConfig("Halcot.yaml", "Corvane Halcot");
    controller.uploadConfigFromFile(QStringLiteral(TFU_DEV_RESOURCES_DIR "/configs/mrv.yaml"));
    const QString refused = QStringLiteral("ERROR: No device connected");
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"earlier line", refused, refused, refused}));
    QCOMPARE(controller.state(), UpdateState::idle());
}

void ControllerTest::unreadableConfigFileOnlyLogs() {
    ControllerHarness harness(TFU_DEV_RESOURCES_DIR);
    auto& controller = harness.controller();
    harness.setPort(kMissingPort);
    QVERIFY(harness.waitForConnection(true));
    controller.log("earlier line");
    harness.clearHistory();
    controller.uploadConfigFromFile("/nonexistent/folder/machine.yaml");
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"earlier line", "ERROR: Could not read file: machine.yaml"}));
    QTest::qWait(300);
    for (const auto& state : harness.states()) {
        QCOMPARE(state, UpdateState::ready());
    }
}

void ControllerTest::failures_data() {
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<QString>("customFirmware");
    QTest::addColumn<bool>("writeBootPartitions");
    QTest::addColumn<bool>("detailedLogging");
    QTest::addColumn<QString>("config");  // empty: a firmware update
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<UpdateState>("stateBeforeError");

    const auto error = [](const QString& message) { return QStringLiteral("ERROR: ") + message; };
    const UpdateState none = UpdateState::ready();
    QString message = "Bundled firmware not found";
    QTest::newRow("shipped image missing")
        << QStringList{"firmware.bin"} << QString() << true << false << QString() << message
        << QStringList{error(message)} << none;
    message = "Failed to load custom firmware: No such file or directory";
    QTest::newRow("custom image unreadable")
        << QStringList{} << "/nonexistent/custom.bin" << true << false << QString() << message
        << QStringList{error(message)} << none;
    message = "Flash stub not found in bundle";
    QTest::newRow("stub missing") << QStringList{"esp32s3_stub.bin"} << QString() << true << false
                                  << QString() << message << QStringList{kShipped, error(message)}
                                  << none;
    message = "Missing bootloader resources for full flash";
    QTest::newRow("no answer, partition table missing")
        << QStringList{"partitions.bin"} << QString() << false << false << QString() << message
        << QStringList{kShipped, "Checking device status\u2026",
                       "Device not responding \u2014 writing boot partitions + firmware.",
                       error(message)}
        << none;
    message = "Could not open serial port. Is another app using it?";
    QTest::newRow("library fails, plain log")
        << QStringList{} << QString() << true << false << QString() << message
        << QStringList{kShipped, error(message)} << UpdateState::flashing(0);
    QTest::newRow("library fails, detailed log")
        << QStringList{} << QString() << true << true << QString() << message
        << QStringList{kShipped, "Opening port: " + kMissingPort, "Failed to open port",
                       error(message)}
        << UpdateState::flashing(0);
    message = "Config file not found in bundle: Halcot.yaml";
    QTest::newRow("configuration missing")
        << QStringList{"configs/Halcot.yaml"} << QString() << false << false << "Halcot.yaml"
        << message << QStringList{error(message)} << UpdateState::uploadingConfig(0);
    message = "Could not open serial port. Is another app using it?";
    QTest::newRow("configuration, library fails")
        << QStringList{} << QString() << false << false << "Halcot.yaml" << message
        << QStringList{"Preparing Corvane Halcot config v1.2.0-devset", error(message)}
        << UpdateState::uploadingConfig(0);
}

void ControllerTest::failures() {
    QFETCH(QStringList, missing);
    QFETCH(QString, customFirmware);
    QFETCH(bool, writeBootPartitions);
    QFETCH(bool, detailedLogging);
    QFETCH(QString, config);
    QFETCH(QString, message);
    QFETCH(QStringList, log);
    QFETCH(UpdateState, stateBeforeError);

    const ResourcesWithout resources(missing);
    ControllerHarness harness(resources.root());
    auto& controller = harness.controller();
    controller.setWriteBootPartitionsEnabled(writeBootPartitions);
    controller.setDetailedLogging(detailedLogging);
    if (!customFirmware.isEmpty()) {
        controller.setCustomFirmwareURL(QUrl::fromLocalFile(customFirmware));
    }
    harness.setPort(kMissingPort);
    QVERIFY(harness.waitForConnection(true));
    controller.log("line of an earlier job");
    QTRY_COMPARE(controller.logMessages().size(), 1);
    harness.clearHistory();

    if (config.isEmpty()) {
        controller.updateFirmware();
    } else {
        controller.uploadConfig(config, "Corvane Halcot");
    }
    const auto outcome = harness.waitForOutcome(5000);
    QCOMPARE(outcome, std::optional(UpdateState::error(message)));
    QCOMPARE(controller.logMessages(), log);
    QVERIFY(harness.statuses().contains(message));
    const auto& states = harness.states();
    const qsizetype errorAt = states.indexOf(UpdateState::error(message));
    const auto busyBefore = std::find_if(states.begin(), states.begin() + errorAt,
                                         [](const UpdateState& s) { return s.isBusy(); });
    QCOMPARE(busyBefore == states.begin() + errorAt ? UpdateState::ready() : *busyBefore,
             stateBeforeError);

    // The next poll brings the controller back to ready; the log keeps the outcome.
    QTRY_COMPARE_WITH_TIMEOUT(controller.state(), UpdateState::ready(), 2000);
    QCOMPARE(controller.statusMessage(), QStringLiteral("Device connected"));
    QCOMPARE(controller.logMessages().last(), QStringLiteral("ERROR: ") + message);
}

void ControllerTest::customFirmwareChoice() {
    ControllerHarness harness(TFU_DEV_RESOURCES_DIR);
    auto& controller = harness.controller();
    QSignalSpy changes(&controller, &UpdateController::customFirmwareURLChanged);

    controller.chooseCustomFirmware(QStringLiteral("/home/user/builds/custom-2.11.bin"));
    QCOMPARE(controller.customFirmwareURL(),
             QUrl::fromLocalFile("/home/user/builds/custom-2.11.bin"));
    QCOMPARE(controller.firmwareLabel(), QStringLiteral("custom-2.11.bin"));

    controller.chooseCustomFirmware(std::nullopt);
    QVERIFY(controller.customFirmwareURL().isEmpty());
    QCOMPARE(controller.firmwareLabel(), QStringLiteral("Firmware version 2.10.6"));
    QCOMPARE(changes.count(), 2);
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"Custom firmware: custom-2.11.bin", "Custom firmware: unknown"}));
}

QTEST_GUILESS_MAIN(ControllerTest)
#include "ControllerTest.moc"
