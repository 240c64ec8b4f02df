#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "app/BuildConfig.h"
#include "app/MachineConfigCheck.h"
#include "app/ResourceBundle.h"
#include "app/UpdateController.h"

namespace {

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

}  // namespace

class AppCoreTest : public QObject {
    Q_OBJECT

  private slots:
    void developmentSetIsNeverTheShippedFirmware();
    void resourcesAreFoundBesideOrInstalled();
    void errorMessagesAndVersionCleanUp();
    void metaVersion_data();
    void metaVersion();
    void statesCompareByCaseAndPayload();
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
    writeFile(root.filePath("share/teskal-firmware-updater/resources/firmware.bin"), "installed");
    writeFile(root.filePath("share/teskal-firmware-updater/resources/configs/Halcot"), "bare");
    const ResourceBundle installed = ResourceBundle::forExecutableDir(bin);
    QCOMPARE(installed.read("firmware", "bin"), QByteArray("installed"));
    QVERIFY(!installed.read("firmware", "").has_value());
    QVERIFY(!installed.read("bootloader", "bin").has_value());
    QCOMPARE(installed.readConfig("Halcot"), QByteArray("bare"));  // no dot: empty extension
    QVERIFY(!installed.readConfig("Halcot.yaml").has_value());

    QVERIFY(root.mkpath("bin/resources"));
    writeFile(root.filePath("bin/resources/firmware.bin"), "beside");
    QCOMPARE(ResourceBundle::forExecutableDir(bin).read("firmware", "bin"), QByteArray("beside"));
}

void AppCoreTest::errorMessagesAndVersionCleanUp() {
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

void AppCoreTest::statesCompareByCaseAndPayload() {
    QVERIFY(UpdateState() == UpdateState::idle());
    QVERIFY(!(UpdateState::flashing(0.5f) == UpdateState::flashing(0.25f)));
    QVERIFY(!(UpdateState::flashing(0.5f) == UpdateState::uploadingConfig(0.5f)));
    QVERIFY(!(UpdateState::error("a") == UpdateState::error("b")));
}

QTEST_GUILESS_MAIN(AppCoreTest)
#include "AppCoreTest.moc"
