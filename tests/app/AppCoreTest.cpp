#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "TestSupport.h"
#include "app/BuildConfig.h"
#include "app/ResourceBundle.h"
#include "app/UpdateController.h"
#include "app/UpdateState.h"

class AppCoreTest : public QObject {
    Q_OBJECT

  private slots:
    void productTableIsFixed();
    void buildDateIsStableEightDigits();
    void resourceNamesSplitAtTheLastDot_data();
    void resourceNamesSplitAtTheLastDot();
    void resourcesAreFoundBesideOrInstalled();
    void configWithoutExtensionIsLookedUpWithEmptyExtension();
    void errorMessages_data();
    void errorMessages();
    void metaVersion_data();
    void metaVersion();
    void firmwareVersionCleanUp_data();
    void firmwareVersionCleanUp();
    void statesCompareByCaseAndPayload();
    void busyStates();
};

void AppCoreTest::productTableIsFixed() {
    const QList<ProductConfig> expected{
        {"Corvane Plotvale Broadmere", "Plotvale3090.yaml"},
        {"Corvane Plotvale Broadmere (Rev D)", "Plotvale3090-KestonD.yaml"},
        {"Corvane Plotvale 3060", "Plotvale3060.yaml"},
        {"Corvane Plotvale 3060 (Rev D)", "Plotvale3060-KestonD.yaml"},
        {"Corvane Plotvale 2040", "Plotvale2040.yaml"},
        {"Corvane Plotvale 2040 (Rev D)", "Plotvale2040-KestonD.yaml"},
        {"Corvane Halcot", "Halcot.yaml"},
        {"Corvane Miravel", "mrv.yaml"},
    };
    QCOMPARE(BuildConfig::products(), expected);
    QCOMPARE(BuildConfig::firmwareVersion(), QStringLiteral("2.10.6"));

    // Every product's configuration exists in the development set.
    const ResourceBundle dev(QStringLiteral(TFU_DEV_RESOURCES_DIR));
    for (const auto& product : expected) {
        QVERIFY2(dev.readConfig(product.configFile).has_value(), qPrintable(product.configFile));
    }
}

void AppCoreTest::buildDateIsStableEightDigits() {
    const QString first = BuildConfig::buildDate();
    QCOMPARE(first.size(), 8);
    QVERIFY(first.toULongLong() > 20000000);
    QCOMPARE(&BuildConfig::buildDate(), &BuildConfig::buildDate());
    QCOMPARE(BuildConfig::buildDate(), first);
}

void AppCoreTest::resourceNamesSplitAtTheLastDot_data() {
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("extension");
    QTest::newRow("plain") << "Halcot.yaml"
                           << "Halcot"
                           << "yaml";
    QTest::newRow("dash") << "Plotvale3090-KestonD.yaml"
                          << "Plotvale3090-KestonD"
                          << "yaml";
    QTest::newRow("two dots") << "mrv.v2.yml"
                              << "mrv.v2"
                              << "yml";
    QTest::newRow("no dot") << "Halcot"
                            << "Halcot"
                            << "";
}

void AppCoreTest::resourceNamesSplitAtTheLastDot() {
    QFETCH(QString, fileName);
    QFETCH(QString, base);
    QFETCH(QString, extension);
    const auto [gotBase, gotExtension] = splitResourceName(fileName);
    QCOMPARE(gotBase, base);
    QCOMPARE(gotExtension, extension);
}

void AppCoreTest::resourcesAreFoundBesideOrInstalled() {
    QTemporaryDir prefix;
    const QDir root(prefix.path());
    QVERIFY(root.mkpath("bin"));
    const QString bin = root.filePath("bin");

    // Neither folder: the build-tree location, where every lookup comes back empty.
    QCOMPARE(ResourceBundle::forExecutableDir(bin).root(), root.filePath("bin/resources"));

    QVERIFY(root.mkpath("share/teskal-firmware-updater/resources"));
    writeFile(root.filePath("share/teskal-firmware-updater/resources/firmware.bin"), "installed");
    const ResourceBundle installed = ResourceBundle::forExecutableDir(bin);
    QCOMPARE(installed.read("firmware", "bin"), QByteArray("installed"));
    QVERIFY(!installed.read("firmware", "").has_value());
    QVERIFY(!installed.read("bootloader", "bin").has_value());

    QVERIFY(root.mkpath("bin/resources"));
    writeFile(root.filePath("bin/resources/firmware.bin"), "beside");
    QCOMPARE(ResourceBundle::forExecutableDir(bin).read("firmware", "bin"), QByteArray("beside"));
}

void AppCoreTest::configWithoutExtensionIsLookedUpWithEmptyExtension() {
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath("configs"));
    writeFile(dir.filePath("configs/Halcot"), "bare");
    writeFile(dir.filePath("configs/Halcot.yaml"), "yaml");
    const ResourceBundle bundle(dir.path());
    QCOMPARE(bundle.readConfig("Halcot"), QByteArray("bare"));
    QCOMPARE(bundle.readConfig("Halcot.yaml"), QByteArray("yaml"));
    QVERIFY(!bundle.readConfig("mrv.yaml").has_value());
    QVERIFY(!bundle.read("Halcot", "yaml").has_value());  // configurations live in configs/
}

void AppCoreTest::errorMessages_data() {
    QTest::addColumn<uint>("code");
    QTest::addColumn<QString>("message");
    QTest::newRow("1") << 1u << "No device found. Is it connected?";
    QTest::newRow("2") << 2u << "Could not open serial port. Is another app using it?";
    QTest::newRow("3") << 3u << "Failed to sync with device. Try unplugging and reconnecting.";
    QTest::newRow("4") << 4u << "Unexpected chip detected. Verify hardware.";
    QTest::newRow("5") << 5u << "Failed to upload communication stub.";
    QTest::newRow("6") << 6u << "Flash write failed. Try again.";
    QTest::newRow("7") << 7u << "Verification failed. Flash may be corrupted \u2014 try again.";
    QTest::newRow("8") << 8u << "Config upload failed.";
    QTest::newRow("9") << 9u << "Operation timed out. Try unplugging and reconnecting.";
    QTest::newRow("10") << 10u << "Device disconnected during operation.";
    QTest::newRow("0") << 0u << "Unknown error (code 0)";
    QTest::newRow("11") << 11u << "Unknown error (code 11)";
    QTest::newRow("max") << 0xFFFFFFFFu << "Unknown error (code 4294967295)";
}

void AppCoreTest::errorMessages() {
    QFETCH(uint, code);
    QFETCH(QString, message);
    QCOMPARE(UpdateController::errorMessage(code), message);
}

void AppCoreTest::metaVersion_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("version");  // empty: none
    QTest::newRow("double quotes") << QByteArray("name: x\nmeta: \"1.4.2\"\n") << "1.4.2";
    QTest::newRow("apostrophes, indented, tab") << QByteArray("  meta:\t'2.0' \n") << "2.0";
    QTest::newRow("bare") << QByteArray("meta: 3.1-rc1") << "3.1-rc1";
    QTest::newRow("CR line ends") << QByteArray("a: 1\rmeta: 7\r") << "7";
    QTest::newRow("empty values skipped")
        << QByteArray("meta:\nmeta: \"\"\nmeta: '\"'\nmeta: v5\nmeta: v6\n") << "v5";
    QTest::newRow("key must start the line") << QByteArray("x meta: 1\n# meta: 2\n") << "";
    QTest::newRow("no meta line") << QByteArray("name: \"Corvane\"\n") << "";
    QTest::newRow("empty file") << QByteArray() << "";
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

void AppCoreTest::firmwareVersionCleanUp_data() {
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("version");
    QTest::newRow("full") << "FluidNC v3.7.8 (main-abc)"
                          << "v3.7.8";
    QTest::newRow("blanks") << " \tFluidNC v3.7.8 (abc)\t "
                            << "v3.7.8";
    QTest::newRow("case") << "fluidnc 2.10.6"
                          << "2.10.6";
    QTest::newRow("prefix needs its blank") << "FluidNCv1"
                                            << "FluidNCv1";
    QTest::newRow("first parenthesis") << "v1 (a) (b)"
                                       << "v1";
    QTest::newRow("parenthesis needs a blank") << "v1(a)"
                                               << "v1(a)";
    QTest::newRow("line break kept") << "v1\n"
                                     << "v1\n";
    QTest::newRow("empty") << ""
                           << "";
}

void AppCoreTest::firmwareVersionCleanUp() {
    QFETCH(QString, reply);
    QFETCH(QString, version);
    QCOMPARE(UpdateController::cleanFirmwareVersion(reply), version);
}

void AppCoreTest::statesCompareByCaseAndPayload() {
    QCOMPARE(UpdateState(), UpdateState::idle());
    QCOMPARE(UpdateState::flashing(0.5f), UpdateState::flashing(0.5f));
    QVERIFY(!(UpdateState::flashing(0.5f) == UpdateState::flashing(0.25f)));
    QVERIFY(!(UpdateState::flashing(0.5f) == UpdateState::uploadingConfig(0.5f)));
    QCOMPARE(UpdateState::error("a"), UpdateState::error("a"));
    QVERIFY(!(UpdateState::error("a") == UpdateState::error("b")));
    QVERIFY(!(UpdateState::ready() == UpdateState::idle()));
}

void AppCoreTest::busyStates() {
    using K = UpdateState::Kind;
    const QList<std::pair<UpdateState, bool>> cases{
        {UpdateState::flashing(0), true},      {UpdateState::uploadingConfig(1), true},
        {UpdateState::error("x"), false},      {UpdateState::idle(), false},
        {UpdateState::ready(), false},         {UpdateState::enteringBootloader(), true},
        {UpdateState::syncing(), true},        {UpdateState::uploadingStub(), true},
        {UpdateState::probing(), true},        {UpdateState::verifying(), true},
        {UpdateState::flashComplete(), false}, {UpdateState::configComplete(), false},
    };
    for (int i = 0; i < cases.size(); ++i) {
        QCOMPARE(int(cases[i].first.kind()), i);  // declared order
        QVERIFY2(cases[i].first.isBusy() == cases[i].second, qPrintable(cases[i].first.toString()));
    }
    QCOMPARE(cases.size(), int(K::configComplete) + 1);
}

QTEST_GUILESS_MAIN(AppCoreTest)
#include "AppCoreTest.moc"
