#include <sys/stat.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "app/BackupIndex.h"
#include "app/Texts.h"
#include "tests/support/Unprivileged.h"

namespace {

// SHA-256 of "abc", from FIPS 180-2's examples.
const QString kAbcSha256 =
    QStringLiteral("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
const QDateTime kTime(QDate(2024, 5, 1), QTime(14, 3, 22, 250), Qt::OffsetFromUTC, 7200);

unsigned modeOf(const QString& path) {
    struct stat info {};
    return ::stat(path.toLocal8Bit().constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

BackupIndex::Source source(const QString& machine, const QDateTime& time,
                           BackupReason reason = BackupReason::save) {
    return {reason, machine, QStringLiteral("v3.7.8"), time, std::nullopt};
}

Backup kept(const BackupIndex& index, const QByteArray& bytes, const BackupIndex::Source& from) {
    auto result = index.keep(bytes, from);
    if (const auto* reason = std::get_if<QString>(&result)) {
        qFatal("not kept: %s", qPrintable(*reason));
    }
    return std::get<Backup>(result);
}

bool write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// True when `index` refuses to keep a copy with the folder's message and leaves nothing.
bool refusesToKeep(const BackupIndex& index) {
    const auto result = index.keep("abc", source("SN1", kTime));
    const auto* reason = std::get_if<QString>(&result);
    return reason != nullptr && *reason == Texts::backupFolderUnusable(index.folder()) &&
           QDir(index.folder()).entryList(QDir::Files | QDir::Hidden).isEmpty();
}

}  // namespace

class BackupIndexTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
    }
    void aCopyAndItsSidecarAreTheOwnersAlone();
    void onlyTheNewestFiftyOfEachMachineAreKept();
    void snapshotsKeepTheNewestFiveAndTheNewestThatRan();
    void unreadableRecordsAreSkippedWithALine();
    void aFolderThatCannotBeUsedKeepsNothing();

  private:
    QString folder() const { return dir_->filePath(QStringLiteral("backups")); }
    std::unique_ptr<QTemporaryDir> dir_;
};

void BackupIndexTest::aCopyAndItsSidecarAreTheOwnersAlone() {
    // A folder left readable to others by an earlier version is closed up.
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(::chmod(folder().toLocal8Bit().constData(), 0755) == 0);
    const BackupIndex index(folder());
    const Backup first = kept(index, "abc", source("SN1", kTime, BackupReason::beforeErase));
    const QString copy = folder() + QStringLiteral("/config-20240501-140322.yaml");
    QCOMPARE(first.path, copy);
    QCOMPARE(first.sha256, kAbcSha256);
    QFile sidecar(folder() + QStringLiteral("/config-20240501-140322.json"));
    QVERIFY(sidecar.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(sidecar.readAll()).object(),
             QJsonObject({{"file", "config-20240501-140322.yaml"},
                          {"time", "2024-05-01T14:03:22.250+02:00"},
                          {"reason", "before-erase"},
                          {"machine", "SN1"},
                          {"firmware", "v3.7.8"},
                          {"size", 3},
                          {"sha256", kAbcSha256}}));
    QCOMPARE(modeOf(folder()), 0700u);
    QCOMPARE(modeOf(copy), 0600u);
    QCOMPARE(modeOf(sidecar.fileName()), 0600u);

    // Read in the same second (another plotter), without an answered version: a name
    // of its own, nothing replaced, no temporary file left behind.
    BackupIndex::Source silent = source("SN2", kTime.addMSecs(100), BackupReason::compare);
    silent.firmwareVersion.reset();
    const Backup second = kept(index, "abcd", silent);
    QCOMPARE(second.path, folder() + QStringLiteral("/config-20240501-140322-2.yaml"));
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 4);
    QCOMPARE(index.list(), QList<Backup>({second, first}));
    QCOMPARE(index.list().first().firmwareVersion, std::nullopt);
    QCOMPARE(index.newestOf("SN1"), first);
    QCOMPARE(index.find("config-20240501-140322.yaml"), first);
    QCOMPARE(index.find(second.path), second);
    QCOMPARE(index.find("config-20240501-140323.yaml"), std::nullopt);
}

void BackupIndexTest::onlyTheNewestFiftyOfEachMachineAreKept() {
    const BackupIndex index(folder());
    const Backup other = kept(index, "other", source("SN2", kTime.addDays(-1)));
    QList<Backup> all;
    for (int minute = 0; minute < 52; ++minute) {
        all.append(kept(index, "mine", source("SN1", kTime.addSecs(60 * minute))));
    }
    QCOMPARE(index.list().size(), 51);
    QCOMPARE(index.list().first(), all.last());
    QCOMPARE(index.newestOf("SN2"), other);
    for (const Backup& gone : all.mid(0, 2)) {
        QVERIFY(!QFile::exists(gone.path));
        QVERIFY(!QFile::exists(gone.path.chopped(5) + ".json"));
    }
    QVERIFY(QFile::exists(all[2].path));
}

// Eight snapshots of SN1, only the second oldest taken while the machine ran: the
// newest five stay, and that one, whatever its age. Its configuration copies and
// another machine's snapshots are left alone.
void BackupIndexTest::snapshotsKeepTheNewestFiveAndTheNewestThatRan() {
    const BackupIndex index(folder());
    const Backup config = kept(index, "abc", source("SN1", kTime.addDays(-2)));
    const auto snapshot = [&](const QString& machine, int minute, int verdict) {
        BackupIndex::Source from =
            source(machine, kTime.addSecs(60 * minute),
                   minute % 2 ? BackupReason::beforeUpdate : BackupReason::snapshot);
        from.snapshot = SnapshotFacts{verdict, {"app0 (application 0x10) at 0x10000"}, "2.10.5"};
        return kept(index, QByteArray(64, char(minute)), from);
    };
    const Backup otherMachine = snapshot("SN2", -10, ESP_STARTUP_RUNNING);
    QList<Backup> mine;
    for (int minute = 0; minute < 8; ++minute) {
        mine.append(
            snapshot("SN1", minute, minute == 1 ? ESP_STARTUP_RUNNING : ESP_STARTUP_BOOT_LOOP));
    }
    QCOMPARE(mine[1].path, folder() + "/machine-20240501-140422.bin");
    QCOMPARE(modeOf(mine[1].path), 0600u);
    const QList<Backup> snapshots = index.list(BackupIndex::Family::snapshots);
    QCOMPARE(snapshots,
             QList<Backup>({mine[7], mine[6], mine[5], mine[4], mine[3], mine[1], otherMachine}));
    QVERIFY(!QFile::exists(mine[0].path) && !QFile::exists(mine[2].path));
    QVERIFY(!QFile::exists(folder() + "/machine-20240501-140322.json"));
    // The sidecar brings the snapshot's own facts back; the configuration roads never
    // see a snapshot.
    QCOMPARE(snapshots[5].snapshot->startup, std::optional<int>(ESP_STARTUP_RUNNING));
    QCOMPARE(snapshots[5].snapshot->application, std::optional<QString>("2.10.5"));
    QCOMPARE(index.list(BackupIndex::Family::configurations), QList<Backup>({config}));
    QCOMPARE(index.newestOf("SN1"), config);
    QCOMPARE(index.newestSnapshotOf("SN1"), mine[7]);
    QCOMPARE(index.find(QFileInfo(mine[7].path).fileName()), std::nullopt);
    QCOMPARE(index.findSnapshot(QFileInfo(mine[7].path).fileName()), mine[7]);
}

void BackupIndexTest::unreadableRecordsAreSkippedWithALine() {
    const BackupIndex index(folder());
    const Backup good = kept(index, "abc", source("SN1", kTime));
    const Backup missing = kept(index, "abc", source("SN1", kTime.addSecs(1)));
    const Backup changed = kept(index, "abc", source("SN1", kTime.addSecs(2)));
    QVERIFY(QFile::remove(missing.path));
    QVERIFY(write(changed.path, "abcdef"));
    const QString sidecar = folder() + "/config-20240501-140325.json";
    QVERIFY(write(sidecar, "{\"file\": \"config-20240501-140325.yaml\", \"reason\": "));
    // A record that names another record's copy would take it along when pruned.
    const QString foreign = folder() + "/config-20240501-140326.json";
    QFile::copy(good.path.chopped(5) + ".json", foreign);

    QStringList skipped;
    QCOMPARE(index.list([&](const QString& line) { skipped << line; }), QList<Backup>{good});
    QCOMPARE(
        skipped,
        QStringList(
            {Texts::backupRecordSkipped(missing.path.chopped(5) + ".json",
                                        Texts::backupCopyMissing("config-20240501-140323.yaml")),
             Texts::backupRecordSkipped(changed.path.chopped(5) + ".json",
                                        Texts::backupCopyChanged("config-20240501-140324.yaml")),
             Texts::backupRecordSkipped(sidecar, Texts::notABackupRecord()),
             Texts::backupRecordSkipped(foreign, Texts::notABackupRecord())}));
    QCOMPARE(skipped.first(), "Skipped the backup record " + missing.path.chopped(5) +
                                  ".json: its copy config-20240501-140323.yaml is missing");
}

void BackupIndexTest::aFolderThatCannotBeUsedKeepsNothing() {
    // A file where the folder should be: nobody can make the folder there.
    QVERIFY(write(dir_->filePath("data"), "not a folder"));
    QVERIFY(refusesToKeep(BackupIndex(dir_->filePath("data/backups"))));
    QVERIFY(!QFile::exists(dir_->filePath("data/backups")));

    // A folder that belongs to someone else cannot be made the owner's alone.
    QVERIFY(QDir().mkpath(folder()));
    QVERIFY(::chmod(dir_->path().toLocal8Bit().constData(), 0755) == 0);
    const QString other = ::geteuid() == 0 ? folder() : QStringLiteral("/proc/1/backups");
    const auto refused = [&] { return std::string(refusesToKeep(BackupIndex(other)) ? "y" : "n"); };
    QCOMPARE(runUnprivileged(refused), std::string("y"));
    QVERIFY(QDir(folder()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

QTEST_GUILESS_MAIN(BackupIndexTest)
#include "BackupIndexTest.moc"
