#include <QTest>

#include "app/ConfigDiff.h"

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

class ConfigDiffTest : public QObject {
    Q_OBJECT

  private slots:
    void byKeyPath_data();
    void byKeyPath();
    void lineDiffShowsWhatKeysDoNot();
};

void ConfigDiffTest::byKeyPath_data() {
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
    QTest::newRow("removed key") << kMachine + "speed: 3000\n"
                                 << kMachine << QStringList{"- speed: 3000"} << "";
    QTest::newRow("removed section")
        << kMachine << QByteArray(kMachine).replace("    homing:\n      cycle: 2\n", "")
        << QStringList{"- axes/x/homing/cycle: 2"} << "";
    QTest::newRow("sequence item by index")
        << kMachine << QByteArray(kMachine).replace("gpio.2]", "gpio.3, gpio.4]")
        << QStringList{"pins/1: gpio.2 → gpio.3", "+ pins/2: gpio.4"} << "";
    const QByteArray reordered = R"(pins: [gpio.1, gpio.2]
axes:
  y: {steps_per_mm: 80.000}
  x:
    homing: {cycle: 2}
    steps_per_mm: 80.000
name: Plotter
)";
    QTest::newRow("reordered") << kMachine << reordered << QStringList{} << "";
    QTest::newRow("comment only") << kMachine
                                  << QByteArray(kMachine).replace("# tuned by the owner",
                                                                  "# factory settings")
                                  << QStringList{} << "";
    QTest::newRow("invalid machine") << QByteArray("axes: [x\nname: a\n") << kMachine
                                     << QStringList{} << "machine: not valid YAML (line 2, column ";
    QTest::newRow("invalid chosen") << kMachine << QByteArray("a: b: c\n") << QStringList{}
                                    << "chosen: not valid YAML (line 1, column ";
    QTest::newRow("alias that holds itself")
        << kMachine << QByteArray("loop: &a [1, *a]\n") << QStringList{}
        << "chosen: nested too deeply or too large to compare";
}

void ConfigDiffTest::byKeyPath() {
    QFETCH(QByteArray, machine);
    QFETCH(QByteArray, chosen);
    QFETCH(QStringList, differences);
    QFETCH(QString, error);

    const ConfigComparison comparison = compare(machine, chosen);
    QCOMPARE(comparison.keyDifferences, differences);
    if (error.isEmpty()) {
        QCOMPARE(comparison.errors, QStringList{});
    } else {
        QCOMPARE(comparison.errors.size(), 1);
        QVERIFY2(comparison.errors.first().startsWith(error),
                 qPrintable(comparison.errors.first()));
    }
    QCOMPARE(comparison.equalByKey(), error.isEmpty() && differences.isEmpty());
}

void ConfigDiffTest::lineDiffShowsWhatKeysDoNot() {
    const QByteArray before = "# old\na: 1\nb: 2\n";
    const ConfigComparison comment = compare(before, "# new\na: 1\nb: 2\n");
    QVERIFY(comment.equalByKey());
    QCOMPARE(comment.lineDiff, QStringLiteral("--- machine\n+++ chosen\n"
                                              "@@ -1,3 +1,3 @@\n-# old\n+# new\n a: 1\n b: 2\n"));

    const ConfigComparison lineEndings = compare(before, "# old\r\na: 1\r\nb: 2\r\n");
    QCOMPARE(lineEndings.lineDiff, QString());
}

QTEST_GUILESS_MAIN(ConfigDiffTest)
#include "ConfigDiffTest.moc"
