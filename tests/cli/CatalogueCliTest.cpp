#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "tests/support/CataloguePublisher.h"

namespace {

const QString kProgram = QStringLiteral(TFU_FLASH_PROGRAM);

struct Run {
    int exitCode = -1;
    QJsonObject result;  // the last line of --json
    QList<QJsonObject> lines;
};

}  // namespace

/// teskal-flash's firmware command and flash --firmware-version against a real
/// HTTP server on 127.0.0.1, with a key made here, onto its simulated plotter
/// (which runs 2.10.5 until it is written). The refusals themselves, and that
/// they write nothing, are the app tests' (app_catalogue_job_tests); here what
/// the command line adds: its options, statuses and JSON.
class CatalogueCliTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void firmwareListsBundledThenTheCatalogues();
    void flashInstallsAReleaseAndItIsConfirmed();
    void refusalsEndWithTheirOwnStatus_data();
    void refusalsEndWithTheirOwnStatus();
    void theBundledFirmwareInstallsWithTheCatalogueUnreachable();

  private:
    /// With `home`, in a state and cache of its own: nothing accepted before.
    Run run(const QStringList& arguments, const QString& home = {}) const;

    QTemporaryDir home_;
    QString resources_;
    CataloguePublisher publisher_;
    HttpServer server_;
    QString catalogue_;
};

void CatalogueCliTest::initTestCase() {
    QVERIFY(home_.isValid());
    resources_ = home_.filePath("resources");
    QVERIFY(publisher_.resourcesIn(TFU_DEV_RESOURCES_DIR, resources_));
    publisher_.serve(server_);
    catalogue_ = server_.url("/fw/catalogue.json").toString();
}

Run CatalogueCliTest::run(const QStringList& arguments, const QString& home) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.insert(folder, (home.isEmpty() ? home_.path() : home) + '/' + folder);
    }
    process.setProcessEnvironment(environment);
    process.start(kProgram, arguments + QStringList{"--json", "--resources", resources_});
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        qFatal("teskal-flash %s did not end", qPrintable(arguments.join(' ')));
    }
    Run done{process.exitCode(), {}, {}};
    for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty()) {
            done.lines << QJsonDocument::fromJson(line).object();
        }
    }
    done.result = done.lines.value(done.lines.size() - 1);
    return done;
}

void CatalogueCliTest::firmwareListsBundledThenTheCatalogues() {
    const Run listed = run({"firmware", "--catalogue", catalogue_, "--beta"});
    QCOMPARE(listed.exitCode, 0);
    const QJsonArray firmware = listed.result.value("firmware").toArray();
    QStringList rows;
    for (const QJsonValue& release : firmware) {
        const QJsonObject row = release.toObject();
        rows << QStringList{row.value("version").toString(), row.value("channel").toString(),
                            row.value("date").toString(), row.value("source").toString()}
                    .join(' ');
    }
    QCOMPARE(rows, QStringList({"2.10.6 stable  bundled", "2.12.0-beta.1 beta 2026-02-20 catalogue",
                                "2.11.0 stable 2026-02-20 catalogue",
                                "2.9.4 stable 2026-02-20 catalogue"}));
    QCOMPARE(firmware[2].toObject().value("notes").toString(), "Release notes of 2.11.0");

    // Unreachable, and nothing accepted before to show offline.
    QTemporaryDir fresh;
    const Run unusable =
        run({"firmware", "--catalogue", "http://127.0.0.1:1/catalogue.json"}, fresh.path());
    QCOMPARE(unusable.exitCode, 19);
    QCOMPARE(unusable.result.value("kind").toString(), "catalogue-unusable");
    QCOMPARE(unusable.result.value("firmware").toArray().size(), 1);
}

void CatalogueCliTest::flashInstallsAReleaseAndItIsConfirmed() {
    const Run flashed =
        run({"flash", "--sim", "--firmware-version", "2.11.0", "--catalogue", catalogue_});
    QCOMPARE(flashed.exitCode, 0);
    QCOMPARE(flashed.result.value("machine").toString(), "running");
    QCOMPARE(flashed.result.value("message").toString(), "Firmware 2.11.0 installed and running.");
}

void CatalogueCliTest::refusalsEndWithTheirOwnStatus_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("named");

    QTest::newRow("older without --allow-older")
        << QStringList{"--firmware-version", "2.9.4"} << 11 << "--allow-older";
    QTest::newRow("revoked") << QStringList{"--firmware-version", "2.10.9"} << 11 << "withdrawn";
    QTest::newRow("not listed") << QStringList{"--firmware-version", "3.0.0"} << 11
                                << "not in the firmware catalogue";
    QTest::newRow("--catalogue without a version")
        << QStringList{"--firmware", "x.bin", "--catalogue", "y"} << 64 << "";
    QTest::newRow("a file and a version")
        << QStringList{"--firmware", "x.bin", "--firmware-version", "2.11.0"} << 64 << "";
}

void CatalogueCliTest::refusalsEndWithTheirOwnStatus() {
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, named);
    if (arguments.contains("--firmware-version") && !arguments.contains("--firmware")) {
        arguments << "--catalogue" << catalogue_;
    }
    const Run refused = run(QStringList{"flash", "--sim"} + arguments);
    QCOMPARE(refused.exitCode, status);
    QVERIFY2(refused.result.value("message").toString().contains(named),
             qPrintable(refused.result.value("message").toString()));
    // Nothing but the download made progress: the library never started.
    for (const QJsonObject& line : refused.lines) {
        if (line.value("type").toString() == "progress") {
            QCOMPARE(line.value("stage").toString(), "Downloading");
        }
    }
}

void CatalogueCliTest::theBundledFirmwareInstallsWithTheCatalogueUnreachable() {
    QVERIFY(CataloguePublisher::write(resources_ + "/catalogue-url",
                                      "http://127.0.0.1:1/fw/catalogue.json\n"));
    const Run bundled = run({"flash", "--sim"});
    QCOMPARE(bundled.exitCode, 0);
    QCOMPARE(bundled.result.value("message").toString(), "Firmware 2.10.6 installed and running.");
    QTemporaryDir fresh;
    const Run release = run({"flash", "--sim", "--firmware-version", "2.11.0"}, fresh.path());
    QCOMPARE(release.exitCode, 19);
    QCOMPARE(release.result.value("kind").toString(), "catalogue-unusable");
    QFile::remove(resources_ + "/catalogue-url");
}

QTEST_GUILESS_MAIN(CatalogueCliTest)
#include "CatalogueCliTest.moc"
