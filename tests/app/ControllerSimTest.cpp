#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "ControllerHarness.h"
#include "TestSupport.h"
#include "sim/PtyPlotter.h"

namespace {

const QString kDev = QStringLiteral(TFU_DEV_RESOURCES_DIR);
const QString kComplete = QStringLiteral("Firmware update complete.");
const QString kUploaded = QStringLiteral("Upload successful; restarting machine.");
constexpr int kJobTimeoutMs = 60000;

QByteArray devImage(const QString& name) {
    return ResourceBundle(kDev).read(name, "bin").value_or("");
}

QByteArray flashAt(const sim::PtyPlotter& plotter, uint32_t address, qsizetype size) {
    QByteArray bytes;
    plotter.inspect([&](const sim::Plotter& p) {
        bytes = QByteArray(reinterpret_cast<const char*>(p.flash().data()) + address, size);
    });
    return bytes;
}

QByteArray storedConfig(const sim::PtyPlotter& plotter) {
    QByteArray bytes;
    plotter.inspect([&](const sim::Plotter& p) {
        if (const auto stored = p.storedConfig()) {
            bytes = QByteArray(reinterpret_cast<const char*>(stored->data()), stored->size());
        }
    });
    return bytes;
}

QStringList transcript(const sim::PtyPlotter& plotter) {
    QStringList entries;
    plotter.inspect([&](const sim::Plotter& p) {
        for (const auto& entry : p.transcript()) {
            entries << QString::fromStdString(entry);
        }
    });
    return entries;
}

bool reached(const QList<UpdateState>& states, UpdateState::Kind kind, float atLeast) {
    return std::any_of(states.begin(), states.end(), [&](const UpdateState& s) {
        return s.kind() == kind && s.progress() >= atLeast;
    });
}

UpdateState firstBusy(const QList<UpdateState>& states) {
    const auto it =
        std::find_if(states.begin(), states.end(), [](const UpdateState& s) { return s.isBusy(); });
    return it == states.end() ? UpdateState::ready() : *it;
}

}  // namespace

/// Whole jobs through the controller, the library and a pseudo-terminal to the
/// simulated plotter. Protocol waits are real, so the cases are few.
class ControllerSimTest : public QObject {
    Q_OBJECT

  private slots:
    void applicationOnlyWhenTheConsoleAnswers();
    void fullFlashWithEraseAll();
    void fullFlashOfCustomImageWhenTheConsoleIsSilent();
    void configurationFromTheProductTable();
    void configurationFromDisk();
    void wrongChipIsReported();
};

void ControllerSimTest::applicationOnlyWhenTheConsoleAnswers() {
    sim::PtyPlotter plotter;
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    controller.setDetailedLogging(true);
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));
    harness.clearHistory();

    controller.updateFirmware();
    QTRY_VERIFY_WITH_TIMEOUT(firstBusy(harness.states()).isBusy(), 10000);
    controller.updateFirmware();  // refused; the running job goes on

    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::flashComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kComplete);
    const QStringList log = controller.logMessages();
    QCOMPARE(log.mid(0, 3),
             QStringList({"Updating firmware v2.10.6\u2026", "Checking device status\u2026",
                          "Device running firmware v3.7.8 \u2014 updating firmware only."}));
    QCOMPARE(log.count("ERROR: Another operation is already running"), 1);
    QVERIFY(log.contains("Flash plan: 2 entries (app only)"));
    QVERIFY(log.contains("Verifying firmware version..."));  // the shipped version is expected

    QCOMPARE(firstBusy(harness.states()), UpdateState::flashing(0));
    QVERIFY(reached(harness.states(), UpdateState::Kind::flashing, 0.84f));
    QVERIFY(harness.statuses().contains("Flashing"));
    const QByteArray firmware = devImage("firmware");
    QVERIFY(flashAt(plotter, 0x10000, firmware.size()) == firmware);
    QCOMPARE(flashAt(plotter, 0x0, 16), QByteArray(16, char(0xFF)));

    QTRY_COMPARE_WITH_TIMEOUT(controller.state(), UpdateState::ready(), 2000);
    QCOMPARE(controller.statusMessage(), QStringLiteral("Device connected"));
}

void ControllerSimTest::fullFlashWithEraseAll() {
    sim::PtyPlotter plotter;
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    controller.setEraseAllFlashEnabled(true);
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));

    controller.updateFirmware();
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::flashComplete()));
    const QString note = QStringLiteral(
        "NOTE: Flash was erased. Use Config > Update Config to upload the configuration for "
        "your machine.");
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"Updating firmware v2.10.6\u2026", kComplete, "", note}));

    const QStringList received = transcript(plotter);
    QVERIFY(received.contains("ERASE_FLASH"));
    QVERIFY(received.indexOf("$I") > received.indexOf("FLASH_END"));  // no probe before
    for (const auto& [address, name] :
         {std::pair(0x0u, "bootloader"), std::pair(0x8000u, "partitions"),
          std::pair(0xE000u, "boot_app0"), std::pair(0x10000u, "firmware")}) {
        const QByteArray image = devImage(name);
        QVERIFY2(flashAt(plotter, address, image.size()) == image, name);
    }
}

void ControllerSimTest::fullFlashOfCustomImageWhenTheConsoleIsSilent() {
    sim::Config config;
    config.silentConsole = true;
    sim::PtyPlotter plotter(config);
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    controller.setDetailedLogging(true);
    controller.chooseCustomFirmware(kDev + "/firmware.bin");
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));

    controller.updateFirmware();
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::flashComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kComplete);
    const QStringList log = controller.logMessages();
    QCOMPARE(log.mid(0, 3),
             QStringList({"Updating firmware (custom: firmware.bin)\u2026",
                          "Checking device status\u2026",
                          "Device not responding \u2014 writing boot partitions + firmware."}));
    QVERIFY(log.contains("Flash plan: 4 entries (FULL)"));
    QVERIFY(!log.contains("Verifying firmware version..."));  // no version expected
}

void ControllerSimTest::configurationFromTheProductTable() {
    sim::PtyPlotter plotter;
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));

    controller.uploadConfig("Halcot.yaml", "Corvane Halcot");
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::configComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kUploaded);
    const QStringList log = controller.logMessages();
    QCOMPARE(log.first(), QStringLiteral("Preparing Corvane Halcot config v1.2.0-devset"));
    QVERIFY(log.size() > 2);  // the upload's stages
    for (qsizetype i = 1; i < log.size(); ++i) {
        QVERIFY2(log[i] != log[i - 1], qPrintable(log[i]));  // a repeated stage is logged once
    }
    QCOMPARE(firstBusy(harness.states()), UpdateState::uploadingConfig(0));
    QCOMPARE(storedConfig(plotter), ResourceBundle(kDev).readConfig("Halcot.yaml").value());
}

void ControllerSimTest::configurationFromDisk() {
    sim::PtyPlotter plotter;
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));

    QTemporaryDir dir;
    QByteArray config("name: \"Workshop plotter\"\nmeta: '9.9'\n");
    while (config.size() < 40 * 1024) {
        config += "# padding line for a configuration of several XModem blocks\n";
    }
    writeFile(dir.filePath("workshop.yml"), config);

    controller.uploadConfigFromFile(dir.filePath("workshop.yml"));
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::configComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kUploaded);
    QCOMPARE(controller.logMessages().mid(0, 2),
             QStringList({"Preparing workshop.yml v9.9", "Uploading config file..."}));
    QVERIFY(storedConfig(plotter) == config);
}

void ControllerSimTest::wrongChipIsReported() {
    sim::Config config;
    config.chipId = 5;
    sim::PtyPlotter plotter(config);
    ControllerHarness harness(kDev);
    auto& controller = harness.controller();
    controller.setWriteBootPartitionsEnabled(true);
    controller.setDetailedLogging(true);
    harness.setPort(QString::fromStdString(plotter.path()));
    QVERIFY(harness.waitForConnection(true));

    controller.updateFirmware();
    const QString message = QStringLiteral("Unexpected chip detected. Verify hardware.");
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::error(message)));
    const QStringList log = controller.logMessages();
    QVERIFY(log.contains("Wrong chip! Expected ESP32-S3 (0x0009)"));
    QCOMPARE(log.last(), "ERROR: " + message);
    QVERIFY(harness.statuses().contains(message));
    QCOMPARE(flashAt(plotter, 0x10000, 16), QByteArray(16, char(0xFF)));
}

QTEST_GUILESS_MAIN(ControllerSimTest)
#include "ControllerSimTest.moc"
