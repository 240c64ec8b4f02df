#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "app/BackupIndex.h"
#include "app/OutcomeTable.h"
#include "app/SimulatedPlotter.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/RestoreMachine.h"
#include "app/operations/SnapshotFirst.h"
#include "app/operations/TakeSnapshot.h"
#include "tests/support/SimTranscript.h"

namespace {

constexpr qsizetype kMiB = 1024 * 1024;
const ResourceBundle kResources(TFU_DEV_RESOURCES_DIR);

QByteArray devImage(const char* name) {
    return kResources.read(QString::fromLatin1(name), QStringLiteral("bin")).value();
}

/// A flash of `size` bytes that holds the development bootloader at 0x0 and the
/// partition table at 0x8000, as a snapshot of a simulated plotter does.
QByteArray flashImage(qsizetype size) {
    QByteArray flash(size, '\xFF');
    const QByteArray bootloader = devImage("bootloader");
    const QByteArray table = devImage("partitions");
    flash.replace(0, bootloader.size(), bootloader);
    flash.replace(0x8000, table.size(), table);
    return flash;
}

bool wroteFlash(const QStringList& entries) {
    return std::any_of(entries.begin(), entries.end(), [](const QString& entry) {
        return entry.startsWith("FLASH_BEGIN") || entry.startsWith("ERASE");
    });
}

}  // namespace

/// The snapshot and restore operations against a simulated plotter on a
/// pseudo-terminal: what each refuses before anything is sent, and a snapshot that
/// fails leaving nothing behind and writing nothing after it.
class SnapshotTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", dir_->filePath("data").toUtf8());
    }
    void restoreRefusesWhatIsNotThisMachinesSnapshot_data();
    void restoreRefusesWhatIsNotThisMachinesSnapshot();
    void aFailedSnapshotLeavesNoFileAndNothingIsWritten_data();
    void aFailedSnapshotLeavesNoFileAndNothingIsWritten();

  private:
    QString backups() const { return BackupIndex().folder(); }
    std::unique_ptr<QTemporaryDir> dir_;
};

void SnapshotTest::restoreRefusesWhatIsNotThisMachinesSnapshot_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("development");
    QTest::addColumn<QString>("owner");  // the machine its sidecar names; empty: no sidecar
    QTest::addColumn<bool>("otherMachineAllowed");
    QTest::addColumn<bool>("refused");

    const QByteArray flash = flashImage(4 * kMiB);
    QByteArray otherChip = flash;
    otherChip[12] = '\0';  // the extended header's chip id: 0 is the ESP32
    QByteArray noHeader = flash;
    noHeader[0] = '\xFF';
    QTest::newRow("3 MiB") << flashImage(3 * kMiB) << true << QString() << false << true;
    QTest::newRow("one byte past 16 MiB")
        << flashImage(16 * kMiB + 1) << true << QString() << false << true;
    QTest::newRow("no image header at 0x0") << noHeader << true << QString() << false << true;
    QTest::newRow("a header for another chip") << otherChip << true << QString() << false << true;
    QTest::newRow("development marker, not allowed")
        << flash << false << QString() << false << true;
    QTest::newRow("another machine's") << flash << true << "SN-OTHER" << false << true;
    QTest::newRow("another machine's, allowed") << flash << true << "SN-OTHER" << true << false;
    QTest::newRow("a file of this machine's size") << flash << true << QString() << false << false;
}

void SnapshotTest::restoreRefusesWhatIsNotThisMachinesSnapshot() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, development);
    QFETCH(QString, owner);
    QFETCH(bool, otherMachineAllowed);
    QFETCH(bool, refused);
    const auto plotter = startSimulatedPlotter(kResources, SimulatedPace::instant);
    const QString port = QString::fromStdString(plotter->path());
    QString path = dir_->filePath("chosen.bin");
    if (owner.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    } else {
        BackupIndex::Source source{BackupReason::snapshot, owner, std::nullopt,
                                   QDateTime::currentDateTime(), SnapshotFacts{}};
        const auto kept = BackupIndex().keep(bytes, source);
        QVERIFY(std::holds_alternative<Backup>(kept));
        path = QFileInfo(std::get<Backup>(kept).path).fileName();
    }
    RestoreMachine::Options options;
    options.snapshot = path;
    options.otherMachineAllowed = otherMachineAllowed;
    options.developmentImages = development ? DevelopmentImages::accept : DevelopmentImages::refuse;
    RestoreMachine restore(port, kResources, options);
    const auto refusal = restore.refusal();
    QCOMPARE(refusal.has_value(), refused);
    if (!refused) {
        return;
    }
    QCOMPARE(refusal->kind, Outcome::Kind::refused);
    QCOMPARE(OutcomeTable::exitStatus(*refusal), 11);
    QVERIFY2(refusal->message.contains(owner.isEmpty() ? "chosen.bin cannot be used: " : owner),
             qPrintable(refusal->message));
    // Run without asking first, it checks by itself, and nothing reaches the plotter.
    const Outcome ran = RestoreMachine(port, kResources, options).run({});
    QCOMPARE(ran.message, refusal->message);
    QCOMPARE(transcript(*plotter), QStringList());
}

void SnapshotTest::aFailedSnapshotLeavesNoFileAndNothingIsWritten_data() {
    QTest::addColumn<int>("wrongDigestAt");
    QTest::addColumn<int>("stallAfter");
    QTest::addColumn<esp_error_t>("code");
    QTest::newRow("the stub's MD5 differs") << 1 << -1 << esp_error_t{ESP_RESULT_VERIFY_FAILED};
    QTest::newRow("the read stalls") << -1 << 40 << esp_error_t{ESP_RESULT_TIMED_OUT};
}

void SnapshotTest::aFailedSnapshotLeavesNoFileAndNothingIsWritten() {
    QFETCH(int, wrongDigestAt);
    QFETCH(int, stallAfter);
    QFETCH(esp_error_t, code);
    sim::Config config;
    if (wrongDigestAt >= 0) {
        config.wrongReadDigestAt = wrongDigestAt;
    }
    if (stallAfter >= 0) {
        config.readStallAfterPackets = stallAfter;
    }
    const auto plotter = startSimulatedPlotter(kResources, SimulatedPace::instant, config);
    const QString port = QString::fromStdString(plotter->path());
    FlashFirmware::Options flash;
    flash.developmentImages = DevelopmentImages::accept;
    SnapshotFirst::Options options;
    options.developmentImages = DevelopmentImages::accept;
    SnapshotFirst write(port, kResources, std::make_shared<FlashFirmware>(port, kResources, flash),
                        options);
    const Outcome outcome = write.run({});
    QCOMPARE(outcome.kind, Outcome::Kind::snapshotFailed);
    QCOMPARE(outcome.code, code);
    QCOMPARE(OutcomeTable::exitStatus(outcome), 20);
    QVERIFY2(outcome.message.endsWith(" Nothing was written."), qPrintable(outcome.message));
    QVERIFY(!wroteFlash(transcript(*plotter)));
    QVERIFY(!transcript(*plotter).filter(QRegularExpression("^READ_FLASH 0x0+ ")).isEmpty());
    // Not even a temporary file is left in the backups folder.
    QCOMPARE(QDir(backups()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

QTEST_GUILESS_MAIN(SnapshotTest)
#include "SnapshotTest.moc"
