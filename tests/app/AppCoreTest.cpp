#include <QDateTime>
#include <QFileInfo>

#include "ControllerHarness.h"
#include "app/BuildConfig.h"
#include "app/LogExport.h"
#include "app/MachineConfigCheck.h"
#include "app/OutcomeTable.h"
#include "app/VersionText.h"
#include "app/operations/SaveMachineConfig.h"

namespace {

const QByteArray kMachine = R"(# tuned by the owner
name: "Plotter"
axes:
  x:
    steps_per_mm: 80.000
    homing:
      cycle: 2
  y:
    steps_per_mm: 80.000
pins: [gpio.1, gpio.2]
)";

ConfigComparison compare(const QByteArray& machine, const QByteArray& chosen) {
    return compareConfigs({QStringLiteral("machine"), machine}, {QStringLiteral("chosen"), chosen});
}

}  // namespace

class AppCoreTest : public QObject {
    Q_OBJECT

  private slots:
    void developmentSetIsNeverTheShippedFirmware() {
        const ResourceBundle dev(TFU_DEV_RESOURCES_DIR);
        for (const char* name : {"bootloader", "firmware", "esp32s3_stub"}) {
            const QByteArray image = dev.read(name, "bin").value_or("");
            QVERIFY2(image.contains("TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE"), name);
            QVERIFY2(!image.contains("2.10.6"), name);
        }
        for (const auto& product : BuildConfig::products()) {
            const QByteArray config = dev.readConfig(product.configFile).value_or("");
            const auto version = UpdateController::extractMetaVersion(config);
            QVERIFY2(version && version->endsWith("-devset"), qPrintable(product.configFile));
            QCOMPARE(machineConfigProblem(config).value_or("valid"), QStringLiteral("valid"));
        }
    }

    // Every build takes the date again and links this program after it, at most a
    // midnight later; a build under SOURCE_DATE_EPOCH (set here too) carries its date.
    void buildDateIsTheDateOfTheBuild() {
        const QString& date = BuildConfig::buildDate();
        const QByteArray epoch = qgetenv("SOURCE_DATE_EPOCH");
        const QDate built =
            epoch.isEmpty()
                ? QFileInfo(QCoreApplication::applicationFilePath()).lastModified().toUTC().date()
                : QDateTime::fromSecsSinceEpoch(epoch.toLongLong(), Qt::UTC).date();
        QStringList expected{built.toString(QStringLiteral("yyyyMMdd"))};
        if (epoch.isEmpty()) {
            expected << built.addDays(-1).toString(QStringLiteral("yyyyMMdd"));
        }
        QVERIFY2(expected.contains(date), qPrintable(date + " not in " + expected.join(' ')));
    }

    void resourcesAreFoundBesideOrInstalled() {
        QTemporaryDir prefix;
        const QDir root(prefix.path());
        const QString bin = root.filePath("bin");
        QVERIFY(root.mkpath("bin") &&
                root.mkpath("share/teskal-firmware-updater/resources/configs"));
        writeFile(prefix, "share/teskal-firmware-updater/resources/firmware.bin", "installed");
        writeFile(prefix, "share/teskal-firmware-updater/resources/configs/Halcot", "bare");
        const ResourceBundle installed = ResourceBundle::forExecutableDir(bin);
        QCOMPARE(installed.read("firmware", "bin"), QByteArray("installed"));
        QVERIFY(!installed.read("firmware", "").has_value());
        QCOMPARE(installed.readConfig("Halcot"), QByteArray("bare"));  // no dot: empty extension
        QVERIFY(!installed.readConfig("Halcot.yaml").has_value());

        QVERIFY(root.mkpath("bin/resources"));
        writeFile(prefix, "bin/resources/firmware.bin", "beside");
        QCOMPARE(ResourceBundle::forExecutableDir(bin).read("firmware", "bin"),
                 QByteArray("beside"));
    }

    // The one table: a library code's message, what to do next, and the status
    // teskal-flash ends with (the code itself); a code it does not know is passed on.
    void libraryCodesInTheOutcomeTable_data() {
        QTest::addColumn<uint>("code");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("nextStep");
        const QString again =
            QStringLiteral("Try again; if it fails again, use another USB cable or port.");
        const QString replug =
            QStringLiteral("Unplug the machine, plug it in again, and try again.");
        QTest::newRow("2") << 2u << "Could not open serial port. Is another app using it?"
                           << "Close any other program that uses the port, unplug and reconnect "
                              "the machine, and try again.";
        QTest::newRow("3") << 3u << "Failed to sync with device. Try unplugging and reconnecting."
                           << replug;
        QTest::newRow("4") << 4u << "Unexpected chip detected. Verify hardware."
                           << "This controller cannot take this firmware; contact support "
                              "before trying again.";
        QTest::newRow("5") << 5u << "Failed to upload communication stub." << again;
        QTest::newRow("6") << 6u << "Flash write failed. Try again." << again;
        QTest::newRow("7") << 7u << "Verification failed. Flash may be corrupted \u2014 try again."
                           << again;
        QTest::newRow("8") << 8u << "Config upload failed." << again;
        QTest::newRow("10") << 10u << "Device disconnected during operation." << replug;
        QTest::newRow("unknown") << 0xFFFFFFFFu << "Unknown error (code 4294967295)"
                                 << "";
    }

    void libraryCodesInTheOutcomeTable() {
        QFETCH(uint, code);
        QFETCH(QString, message);
        QFETCH(QString, nextStep);
        const Outcome failed = Outcome::library(code);
        QCOMPARE(failed.message, message);
        QCOMPARE(UpdateController::errorMessage(code), message);
        for (const auto audience : {Texts::Audience::window, Texts::Audience::commandLine}) {
            QCOMPARE(OutcomeTable::nextStep(failed, audience), nextStep);
        }
        QCOMPARE(OutcomeTable::exitStatus(failed), static_cast<int>(code));
        QCOMPARE(kindNamed(kindName(failed.kind)), std::optional(Outcome::Kind::failed));
    }

    void errorMessagesVersionCleanUpAndFileNames() {
        // One version style, as the firmware line shows it.
        for (const auto& [version, shown] :
             {std::pair{"v3.7.8", "3.7.8"}, std::pair{"V2", "2"}, std::pair{"2.10.6", "2.10.6"},
              std::pair{"vanilla", "vanilla"}, std::pair{"v", "v"}}) {
            QCOMPARE(VersionText::shown(version), QString(shown));
        }
        for (const auto& [reply, version] : {
                 std::pair{" \tFluidNC v3.7.8 (main-abc)\t ", "v3.7.8"},
                 std::pair{"fluidnc 2.10.6", "2.10.6"},  // any case
                 std::pair{"FluidNCv1", "FluidNCv1"},    // the prefix needs its blank
                 std::pair{"v1 (a) (b)", "v1"},          // cut at the first " ("
                 std::pair{"v1(a)", "v1(a)"},
             }) {
            QCOMPARE(VersionText::cleanFirmwareVersion(reply), QString(version));
        }
        const QDateTime when(QDate(2025, 3, 7), QTime(9, 5, 4));
        QCOMPARE(SaveMachineConfig::defaultFileName(when), "machine-config-20250307-0905.yaml");
        QCOMPARE(LogExport::defaultFileName(when), "teskal-updater-log-20250307-090504.txt");
    }

    void metaVersion() {
        const std::pair<QByteArray, std::optional<QString>> rows[] = {
            {"name: x\nmeta: \"1.4.2\"\n", "1.4.2"},                        // double quotes
            {"  meta:\t'2.0' \n", "2.0"},                                   // apostrophes, indented
            {"a: 1\rmeta: 7\r", "7"},                                       // CR line ends
            {"meta:\nmeta: \"\"\nmeta: '\"'\nmeta: v5\nmeta: v6\n", "v5"},  // empty values skipped
            {"x meta: 1\n# meta: 2\n", std::nullopt},  // the key starts the line
            {"meta: 1.0\n\xff\xfe\n", std::nullopt},   // invalid UTF-8
            {"meta: \"caf\xc3\xa9\"\n", "caf\u00e9"},
        };
        for (const auto& [file, version] : rows) {
            QVERIFY2(UpdateController::extractMetaVersion(file) == version, file.constData());
        }
    }

    void configDiffByKeyPath_data() {
        QTest::addColumn<QByteArray>("machine");
        QTest::addColumn<QByteArray>("chosen");
        QTest::addColumn<QStringList>("differences");
        QTest::addColumn<QString>("error");  // the start of the one expected error

        QByteArray changed = kMachine;
        changed.replace("  x:\n    steps_per_mm: 80.000", "  x:\n    steps_per_mm: 100.000");
        QTest::newRow("changed value")
            << kMachine << changed << QStringList{"axes/x/steps_per_mm: 80.000 → 100.000"} << "";
        QTest::newRow("added key") << kMachine << kMachine + "speed: 3000\n"
                                   << QStringList{"+ speed: 3000"} << "";
        QTest::newRow("removed section")
            << kMachine << QByteArray(kMachine).replace("    homing:\n      cycle: 2\n", "")
            << QStringList{"- axes/x/homing/cycle: 2"} << "";
        QTest::newRow("sequence item by index")
            << kMachine << QByteArray(kMachine).replace("gpio.2]", "gpio.3, gpio.4]")
            << QStringList{"pins/1: gpio.2 → gpio.3", "+ pins/2: gpio.4"} << "";
        const QByteArray reordered =
            "pins: [gpio.1, gpio.2]\naxes: {y: {steps_per_mm: 80.000}, "
            "x: {homing: {cycle: 2}, steps_per_mm: 80.000}}\nname: Plotter\n";
        QTest::newRow("reordered") << kMachine << reordered << QStringList{} << "";
        QTest::newRow("invalid machine")
            << QByteArray("axes: [x\nname: a\n") << kMachine << QStringList{}
            << "machine: not valid YAML (line 2, column ";
        QTest::newRow("invalid chosen") << kMachine << QByteArray("a: b: c\n") << QStringList{}
                                        << "chosen: not valid YAML (line 1, column ";
        QTest::newRow("alias that holds itself")
            << kMachine << QByteArray("loop: &a [1, *a]\n") << QStringList{}
            << "chosen: nested too deeply or too large to compare";
    }

    void configDiffByKeyPath() {
        QFETCH(QByteArray, machine);
        QFETCH(QByteArray, chosen);
        QFETCH(QStringList, differences);
        QFETCH(QString, error);

        const ConfigComparison comparison = compare(machine, chosen);
        QCOMPARE(comparison.keyDifferences, differences);
        QCOMPARE(comparison.errors.size(), error.isEmpty() ? 0 : 1);
        QCOMPARE(comparison.errors.join(QString()).left(error.size()), error);
        QCOMPARE(comparison.equalByKey(), error.isEmpty() && differences.isEmpty());
    }

    void lineDiffShowsWhatKeysDoNot() {
        const QByteArray before = "# old\na: 1\nb: 2\n";
        const ConfigComparison comment = compare(before, "# new\na: 1\nb: 2\n");
        QVERIFY(comment.equalByKey());
        QCOMPARE(comment.lineDiff,
                 QStringLiteral("--- machine\n+++ chosen\n"
                                "@@ -1,3 +1,3 @@\n-# old\n+# new\n a: 1\n b: 2\n"));

        const ConfigComparison lineEndings = compare(before, "# old\r\na: 1\r\nb: 2\r\n");
        QCOMPARE(lineEndings.lineDiff, QString());
    }
};

QTEST_GUILESS_MAIN(AppCoreTest)
#include "AppCoreTest.moc"
