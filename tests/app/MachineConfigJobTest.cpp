#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <functional>
#include <memory>

#include "app/CompareMachineConfigJob.h"
#include "app/ResourceBundle.h"
#include "app/SaveMachineConfigJob.h"
#include "sim/PtyPlotter.h"

namespace {

const QByteArray kHalcot =
    ResourceBundle(TFU_DEV_RESOURCES_DIR).readConfig("Halcot.yaml").value_or("");

// A plotter whose config.yaml is `machineConfig`, behind a pseudo-terminal.
std::unique_ptr<sim::PtyPlotter> plotterWith(const QByteArray& machineConfig,
                                             const std::function<void(sim::Config&)>& faults = {}) {
    sim::Config config;
    config.machineConfig = machineConfig.toStdString();
    if (faults) {
        faults(config);
    }
    return std::make_unique<sim::PtyPlotter>(config);
}

// Runs `job` on a worker thread, as the window and the command line do, and keeps
// the lines it logged.
std::optional<QString> runOnWorker(const std::function<std::optional<QString>(const JobSink&)>& job,
                                   QStringList& log) {
    const JobSink sink{{}, [&log](const QString& line) { log << line; }};
    std::optional<QString> error;
    std::unique_ptr<QThread> worker(QThread::create([&] { error = job(sink); }));
    worker->start();
    worker->wait();
    return error;
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

}  // namespace

/// The two jobs against the simulated plotter over a pseudo-terminal, real time.
class MachineConfigJobTest : public QObject {
    Q_OBJECT

  private slots:
    void saveReplacesTheFileWholeOrNotAtAll();
    void compareNamesTheKeysAnUploadWouldChange();
};

void MachineConfigJobTest::saveReplacesTheFileWholeOrNotAtAll() {
    QCOMPARE(SaveMachineConfigJob::defaultFileName(QDateTime(QDate(2025, 3, 7), QTime(9, 5))),
             QStringLiteral("machine-config-20250307-0905.yaml"));
    QTemporaryDir folder;
    const QString path = QDir(folder.path()).filePath("machine.yaml");
    QFile existing(path);
    QVERIFY(existing.open(QIODevice::WriteOnly) && existing.write("earlier copy\n") == 13);
    existing.close();

    const auto cancelling = plotterWith(kHalcot, [](auto& c) { c.xmodemSendCanBlock = 2; });
    QStringList log;
    const SaveMachineConfigJob failing(QString::fromStdString(cancelling->path()), path);
    QCOMPARE(runOnWorker([&](const JobSink& sink) { return failing.run(sink); }, log),
             QStringLiteral("Could not read config.yaml from the machine: XModem download: "
                            "cancelled by the device"));
    QCOMPARE(log, QStringList{});
    QCOMPARE(contents(path), QByteArray("earlier copy\n"));

    const auto healthy = plotterWith(kHalcot);
    const SaveMachineConfigJob saving(QString::fromStdString(healthy->path()), path);
    QCOMPARE(runOnWorker([&](const JobSink& sink) { return saving.run(sink); }, log), std::nullopt);
    QCOMPARE(contents(path), kHalcot);
    QCOMPARE(
        log,
        QStringList{
            QStringLiteral("Machine config saved to %1 (%2 bytes)").arg(path).arg(kHalcot.size())});
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"machine.yaml"});
}

void MachineConfigJobTest::compareNamesTheKeysAnUploadWouldChange() {
    QByteArray tuned = kHalcot;
    tuned.replace("  x:\n    steps_per_mm: 80.000", "  x:\n    steps_per_mm: 78.750");
    QVERIFY(tuned != kHalcot);
    const auto plotter = plotterWith(tuned);
    CompareMachineConfigJob job(QString::fromStdString(plotter->path()),
                                {"Corvane Halcot", kHalcot});
    QStringList log;
    QCOMPARE(runOnWorker([&](const JobSink& sink) { return job.run(sink); }, log), std::nullopt);
    QCOMPARE(job.comparison().keyDifferences,
             QStringList{QStringLiteral("axes/x/steps_per_mm: 78.750 → 80.000")});
    QVERIFY(job.comparison().lineDiff.contains(
        "-    steps_per_mm: 78.750\n+    steps_per_mm: 80.000\n"));
    QCOMPARE(log,
             QStringList{QStringLiteral("Machine config differs from Corvane Halcot in 1 key")});
}

QTEST_GUILESS_MAIN(MachineConfigJobTest)
#include "MachineConfigJobTest.moc"
