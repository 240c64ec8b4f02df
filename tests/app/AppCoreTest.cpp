#include <QDir>

#include "ControllerHarness.h"
#include "app/BuildConfig.h"
#include "app/LogExport.h"
#include "app/MachineConfigCheck.h"
#include "app/SaveMachineConfigJob.h"

class AppCoreTest : public QObject {
    Q_OBJECT

  private slots:
    void developmentSetIsNeverTheShippedFirmware();
    void resourcesAreFoundBesideOrInstalled();
    void errorMessagesVersionCleanUpAndFileNames();
    void metaVersion_data();
    void metaVersion();
};

void AppCoreTest::developmentSetIsNeverTheShippedFirmware() {
    const ResourceBundle dev(TFU_DEV_RESOURCES_DIR);
    for (const char* name : {"bootloader", "firmware", "esp32s3_stub"}) {
        const QByteArray image = dev.read(name, "bin").value_or("");
        QVERIFY2(image.contains("TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE"), name);
        QVERIFY2(!image.contains("2.10.6"), name);
    }
    QCOMPARE(BuildConfig::firmwareVersion(), QStringLiteral("2.10.6"));
    for (const auto& product : BuildConfig::products()) {
        const QByteArray config = dev.readConfig(product.configFile).value_or("");
        const auto version = UpdateController::extractMetaVersion(config);
        QVERIFY2(version && version->endsWith("-devset"), qPrintable(product.configFile));
        QCOMPARE(machineConfigProblem(config).value_or("valid"), QStringLiteral("valid"));
    }
}

void AppCoreTest::resourcesAreFoundBesideOrInstalled() {
    QTemporaryDir prefix;
    const QDir root(prefix.path());
    const QString bin = root.filePath("bin");
    QVERIFY(root.mkpath("bin") && root.mkpath("share/teskal-firmware-updater/resources/configs"));
    writeFile(prefix, "share/teskal-firmware-updater/resources/firmware.bin", "installed");
    writeFile(prefix, "share/teskal-firmware-updater/resources/configs/Halcot", "bare");
    const ResourceBundle installed = ResourceBundle::forExecutableDir(bin);
    QCOMPARE(installed.read("firmware", "bin"), QByteArray("installed"));
    QVERIFY(!installed.read("firmware", "").has_value());
    QVERIFY(!installed.read("bootloader", "bin").has_value());
    QCOMPARE(installed.readConfig("Halcot"), QByteArray("bare"));  // no dot: empty extension
    QVERIFY(!installed.readConfig("Halcot.yaml").has_value());

    QVERIFY(root.mkpath("bin/resources"));
    writeFile(prefix, "bin/resources/firmware.bin", "beside");
    QCOMPARE(ResourceBundle::forExecutableDir(bin).read("firmware", "bin"), QByteArray("beside"));
}

void AppCoreTest::errorMessagesVersionCleanUpAndFileNames() {
    QCOMPARE(UpdateController::errorMessage(7),
             QStringLiteral("Verification failed. Flash may be corrupted \u2014 try again."));
    QCOMPARE(UpdateController::errorMessage(0), QStringLiteral("Unknown error (code 0)"));
    QCOMPARE(UpdateController::errorMessage(0xFFFFFFFFu),
             QStringLiteral("Unknown error (code 4294967295)"));
    for (const auto& [reply, version] : {
             std::pair{" \tFluidNC v3.7.8 (main-abc)\t ", "v3.7.8"},
             std::pair{"fluidnc 2.10.6", "2.10.6"},  // any case
             std::pair{"FluidNCv1", "FluidNCv1"},    // the prefix needs its blank
             std::pair{"v1 (a) (b)", "v1"},          // cut at the first " ("
             std::pair{"v1(a)", "v1(a)"},
         }) {
        QCOMPARE(UpdateController::cleanFirmwareVersion(reply), QString(version));
    }
    const QDateTime when(QDate(2025, 3, 7), QTime(9, 5, 4));
    QCOMPARE(SaveMachineConfigJob::defaultFileName(when), "machine-config-20250307-0905.yaml");
    QCOMPARE(LogExport::defaultFileName(when), "teskal-updater-log-20250307-090504.txt");
}

void AppCoreTest::metaVersion_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("version");  // empty: none
    QTest::newRow("double quotes") << QByteArray("name: x\nmeta: \"1.4.2\"\n") << "1.4.2";
    QTest::newRow("apostrophes, indented, tab") << QByteArray("  meta:\t'2.0' \n") << "2.0";
    QTest::newRow("CR line ends") << QByteArray("a: 1\rmeta: 7\r") << "7";
    QTest::newRow("empty values skipped")
        << QByteArray("meta:\nmeta: \"\"\nmeta: '\"'\nmeta: v5\nmeta: v6\n") << "v5";
    QTest::newRow("key must start the line") << QByteArray("x meta: 1\n# meta: 2\n") << "";
    QTest::newRow("invalid UTF-8") << QByteArray("meta: 1.0\n\xff\xfe\n") << "";
    QTest::newRow("UTF-8 text") << QByteArray("meta: \"caf\xc3\xa9\"\n") << "caf\u00e9";
}

void AppCoreTest::metaVersion() {
    QFETCH(QByteArray, file);
    QFETCH(QString, version);
    const auto found = UpdateController::extractMetaVersion(file);
    QCOMPARE(found.value_or(QString()), version);
    QCOMPARE(found.has_value(), !version.isEmpty());
}

QTEST_GUILESS_MAIN(AppCoreTest)
#include "AppCoreTest.moc"
