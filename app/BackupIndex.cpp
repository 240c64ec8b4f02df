#include "app/BackupIndex.h"

#include <openssl/evp.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <algorithm>

#include "app/Outcome.h"
#include "app/Texts.h"

namespace {

constexpr QFileDevice::Permissions kPrivateFolder =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
// Copies read within the same second (several plotters at once) get "-2", "-3", ...
constexpr int kNameAttempts = 1000;

const QString kYaml = QStringLiteral(".yaml");
const QString kBin = QStringLiteral(".bin");
const QString kJson = QStringLiteral(".json");

QString extensionOf(BackupReason reason) {
    return isSnapshotReason(reason) ? kBin : kYaml;
}

QString sidecarOf(const QString& copyPath) {
    return copyPath.left(copyPath.lastIndexOf(QLatin1Char('.'))) + kJson;
}

enum class Written { yes, nameTaken, failed };

// Linked to its name without replacing a file that is already there, so that a
// reader sees the whole file or none; the temporary name goes with `file`.
Written renameNew(QTemporaryFile& file, const QString& target, QString* reason) {
    if (::link(QFile::encodeName(file.fileName()).constData(),
               QFile::encodeName(target).constData()) == 0) {
        return Written::yes;
    }
    const int error = errno;
    *reason = QString::fromLocal8Bit(std::strerror(error));
    return error == EEXIST ? Written::nameTaken : Written::failed;
}

// A temporary file (created 0600) renamed to `name`.
Written writeNew(const QDir& folder, const QString& name, const QByteArray& bytes,
                 QString* reason) {
    QTemporaryFile file(folder.filePath(QStringLiteral(".incoming-XXXXXX")));
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        *reason = file.errorString();
        return Written::failed;
    }
    return renameNew(file, folder.filePath(name), reason);
}

QJsonValue orNull(const std::optional<QString>& text) {
    return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null);
}

QJsonObject describe(const Backup& backup) {
    QJsonObject record{
        {"time",
         backup.time.toOffsetFromUtc(backup.time.offsetFromUtc()).toString(Qt::ISODateWithMs)},
        {"reason", BackupIndex::reasonName(backup.reason)},
        {"machine", backup.machine},
        {"firmware", orNull(backup.firmwareVersion)},
        {"size", backup.size},
        {"sha256", backup.sha256}};
    if (const auto& facts = backup.snapshot) {
        record.insert(QStringLiteral("startup"), facts->startup
                                                     ? QJsonValue(verdictName(*facts->startup))
                                                     : QJsonValue(QJsonValue::Null));
        record.insert(QStringLiteral("partitions"), QJsonArray::fromStringList(facts->partitions));
        record.insert(QStringLiteral("application"), orNull(facts->application));
    }
    return record;
}

bool optionalText(const QJsonValue& value) {
    return value.isString() || value.isNull() || value.isUndefined();
}

std::optional<QString> textOrNone(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

// A snapshot's own facts, none when the record does not hold them readably.
std::optional<SnapshotFacts> snapshotFacts(const QJsonObject& record) {
    const QJsonValue startup = record.value(QStringLiteral("startup"));
    const QJsonValue partitions = record.value(QStringLiteral("partitions"));
    const QJsonValue application = record.value(QStringLiteral("application"));
    const auto verdict = verdictNamed(startup.toString());
    if (!(startup.isNull() || startup.isUndefined() || verdict) ||
        !(partitions.isArray() || partitions.isUndefined()) || !optionalText(application)) {
        return std::nullopt;
    }
    SnapshotFacts facts;
    facts.startup = startup.isString() ? verdict : std::nullopt;
    for (const QJsonValue line : partitions.toArray()) {
        facts.partitions << line.toString();
    }
    facts.application = textOrNone(application);
    return facts;
}

// The backup a sidecar describes, or why it cannot be used.
std::variant<Backup, QString> readSidecar(const QDir& folder, const QString& sidecarName) {
    QFile file(folder.filePath(sidecarName));
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    const QJsonObject record = QJsonDocument::fromJson(file.readAll()).object();
    const QString copyName = record.value(QStringLiteral("file")).toString();
    const QJsonValue firmware = record.value(QStringLiteral("firmware"));
    Backup backup;
    backup.path = folder.filePath(copyName);
    backup.time =
        QDateTime::fromString(record.value(QStringLiteral("time")).toString(), Qt::ISODateWithMs);
    const auto reason = BackupIndex::reasonNamed(record.value(QStringLiteral("reason")).toString());
    backup.machine = record.value(QStringLiteral("machine")).toString();
    backup.size = record.value(QStringLiteral("size")).toInteger(-1);
    backup.sha256 = record.value(QStringLiteral("sha256")).toString();
    if (reason && isSnapshotReason(*reason)) {
        backup.snapshot = snapshotFacts(record);
    }
    static const QRegularExpression hex(QStringLiteral("^[0-9a-f]{64}$"));
    // A sidecar describes the copy of its own name, so the two are removed together.
    if (!reason || copyName != sidecarName.chopped(kJson.size()) + extensionOf(*reason) ||
        !backup.time.isValid() || backup.machine.isEmpty() || backup.size < 0 ||
        !hex.match(backup.sha256).hasMatch() || !optionalText(firmware) ||
        (isSnapshotReason(*reason) && !backup.snapshot)) {
        return Texts::notABackupRecord();
    }
    backup.reason = *reason;
    backup.firmwareVersion = textOrNone(firmware);
    const QFileInfo copy(backup.path);
    if (!copy.isFile()) {
        return Texts::backupCopyMissing(copyName);
    }
    if (copy.size() != backup.size) {
        return Texts::backupCopyChanged(copyName);
    }
    return backup;
}

bool inFamily(const Backup& backup, BackupIndex::Family family) {
    switch (family) {
        case BackupIndex::Family::configurations:
            return !backup.isSnapshot();
        case BackupIndex::Family::snapshots:
            return backup.isSnapshot();
        case BackupIndex::Family::all:
            break;
    }
    return true;
}

bool newerFirst(const Backup& a, const Backup& b) {
    return a.time != b.time ? a.time > b.time : a.path > b.path;
}

}  // namespace

BackupIndex::BackupIndex() : BackupIndex(defaultFolder()) {}

BackupIndex::BackupIndex(QString folder) : folder_(std::move(folder)) {}

QString BackupIndex::defaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/teskal-firmware-updater/backups");
}

struct BackupIndex::Incoming::Impl {
    std::unique_ptr<QTemporaryFile> file;
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> sha{EVP_MD_CTX_new(), &EVP_MD_CTX_free};
    qint64 size = 0;
    QString error;
};

BackupIndex::Incoming::Incoming(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
BackupIndex::Incoming::Incoming(Incoming&&) noexcept = default;
BackupIndex::Incoming& BackupIndex::Incoming::operator=(Incoming&&) noexcept = default;
BackupIndex::Incoming::~Incoming() = default;

bool BackupIndex::Incoming::append(const char* data, qint64 size) {
    if (!impl_->error.isEmpty()) {
        return false;
    }
    if (impl_->file->write(data, size) != size) {
        impl_->error = impl_->file->errorString();
        return false;
    }
    EVP_DigestUpdate(impl_->sha.get(), data, static_cast<size_t>(size));
    impl_->size += size;
    return true;
}

qint64 BackupIndex::Incoming::size() const {
    return impl_->size;
}

QString BackupIndex::Incoming::fileName() const {
    return impl_->file->fileName();
}

QString BackupIndex::Incoming::error() const {
    return impl_->error;
}

std::variant<BackupIndex::Incoming, QString> BackupIndex::receive() const {
    if (!QDir().mkpath(folder_) || !QFile::setPermissions(folder_, kPrivateFolder)) {
        return Texts::backupFolderUnusable(folder_);
    }
    auto impl = std::make_unique<Incoming::Impl>();
    impl->file = std::make_unique<QTemporaryFile>(
        QDir(folder_).filePath(QStringLiteral(".incoming-XXXXXX")));
    if (!impl->file->open() || EVP_DigestInit_ex(impl->sha.get(), EVP_sha256(), nullptr) != 1) {
        return Texts::backupNotWritten(impl->file->fileTemplate(), impl->file->errorString());
    }
    return Incoming(std::move(impl));
}

std::variant<Backup, QString> BackupIndex::keep(const QByteArray& bytes,
                                                const Source& source) const {
    auto received = receive();
    if (auto* incoming = std::get_if<Incoming>(&received)) {
        incoming->append(bytes.constData(), bytes.size());
        return keep(std::move(*incoming), source);
    }
    return std::get<QString>(received);
}

std::variant<Backup, QString> BackupIndex::keep(Incoming incoming, const Source& source) const {
    QTemporaryFile& file = *incoming.impl_->file;
    const QDir folder(folder_);
    const QString extension = extensionOf(source.reason);
    if (!incoming.error().isEmpty() || !file.flush()) {
        return Texts::backupNotWritten(
            file.fileName(), incoming.error().isEmpty() ? file.errorString() : incoming.error());
    }
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_DigestFinal_ex(incoming.impl_->sha.get(), digest, &length);
    const QString stem =
        (isSnapshotReason(source.reason) ? QStringLiteral("machine-") : QStringLiteral("config-")) +
        source.time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString reason;
    QString name;
    Written written = Written::nameTaken;
    for (int attempt = 1; attempt <= kNameAttempts && written == Written::nameTaken; ++attempt) {
        name = attempt == 1 ? stem : stem + QStringLiteral("-%1").arg(attempt);
        written = renameNew(file, folder.filePath(name + extension), &reason);
    }
    if (written != Written::yes) {
        return Texts::backupNotWritten(folder.filePath(name + extension), reason);
    }
    const QByteArray hash(reinterpret_cast<const char*>(digest), static_cast<qsizetype>(length));
    Backup backup{folder.filePath(name + extension),
                  source.time,
                  source.reason,
                  source.machine,
                  source.firmwareVersion,
                  incoming.size(),
                  QString::fromLatin1(hash.toHex()),
                  source.snapshot};
    QJsonObject record = describe(backup);
    record.insert(QStringLiteral("file"), name + extension);
    if (writeNew(folder, name + kJson, QJsonDocument(record).toJson(), &reason) != Written::yes) {
        QFile::remove(backup.path);
        return Texts::backupNotWritten(folder.filePath(name + kJson), reason);
    }
    prune(source.machine, backup.isSnapshot());
    return backup;
}

QList<Backup> BackupIndex::list(const Skipped& skipped) const {
    const QDir folder(folder_);
    QList<Backup> backups;
    for (const QString& name : folder.entryList({QStringLiteral("*") + kJson}, QDir::Files)) {
        auto read = readSidecar(folder, name);
        if (auto* backup = std::get_if<Backup>(&read)) {
            backups.append(std::move(*backup));
        } else if (skipped) {
            skipped(Texts::backupRecordSkipped(folder.filePath(name), std::get<QString>(read)));
        }
    }
    std::sort(backups.begin(), backups.end(), newerFirst);
    return backups;
}

QList<Backup> BackupIndex::list(Family family, const Skipped& skipped) const {
    QList<Backup> backups = list(skipped);
    backups.removeIf([family](const Backup& backup) { return !inFamily(backup, family); });
    return backups;
}

std::optional<Backup> BackupIndex::newestOf(const QString& machine, const Skipped& skipped) const {
    for (const Backup& backup : list(Family::configurations, skipped)) {
        if (backup.machine == machine) {
            return backup;
        }
    }
    return std::nullopt;
}

std::optional<Backup> BackupIndex::newestSnapshotOf(const QString& machine,
                                                    const Skipped& skipped) const {
    for (const Backup& backup : list(Family::snapshots, skipped)) {
        if (backup.machine == machine) {
            return backup;
        }
    }
    return std::nullopt;
}

std::optional<Backup> BackupIndex::find(const QString& nameOrPath, const Skipped& skipped) const {
    return found(nameOrPath, Family::configurations, skipped);
}

std::optional<Backup> BackupIndex::findSnapshot(const QString& nameOrPath,
                                                const Skipped& skipped) const {
    return found(nameOrPath, Family::snapshots, skipped);
}

std::optional<Backup> BackupIndex::found(const QString& nameOrPath, Family family,
                                         const Skipped& skipped) const {
    const QString wanted = QFileInfo(QDir(folder_), nameOrPath).absoluteFilePath();
    for (const Backup& backup : list(family, skipped)) {
        if (QFileInfo(backup.path).absoluteFilePath() == wanted) {
            return backup;
        }
    }
    return std::nullopt;
}

QString BackupIndex::reasonName(BackupReason reason) {
    switch (reason) {
        case BackupReason::save:
            return QStringLiteral("save");
        case BackupReason::compare:
            return QStringLiteral("compare");
        case BackupReason::beforeUpload:
            return QStringLiteral("before-upload");
        case BackupReason::beforeErase:
            return QStringLiteral("before-erase");
        case BackupReason::snapshot:
            return QStringLiteral("snapshot");
        case BackupReason::beforeUpdate:
            return QStringLiteral("before-update");
        case BackupReason::beforeRepair:
            return QStringLiteral("before-repair");
    }
    return QString();
}

std::optional<BackupReason> BackupIndex::reasonNamed(const QString& name) {
    for (const BackupReason reason :
         {BackupReason::save, BackupReason::compare, BackupReason::beforeUpload,
          BackupReason::beforeErase, BackupReason::snapshot, BackupReason::beforeUpdate,
          BackupReason::beforeRepair}) {
        if (reasonName(reason) == name) {
            return reason;
        }
    }
    return std::nullopt;
}

QJsonObject BackupIndex::toJson(const Backup& backup) {
    QJsonObject object = describe(backup);
    object.insert(QStringLiteral("path"), backup.path);
    return object;
}

// The newest snapshot taken while the machine ran is the way back to a machine
// that works, however many later ones were taken of it broken.
void BackupIndex::prune(const QString& machine, bool snapshots) const {
    const int limit = snapshots ? kSnapshotsPerMachine : kKeptPerMachine;
    int kept = 0;
    bool keptOneThatRan = false;
    for (const Backup& backup : list(snapshots ? Family::snapshots : Family::configurations)) {
        if (backup.machine != machine) {
            continue;
        }
        const bool newestThatRan = snapshots && backup.ran() && !keptOneThatRan;
        keptOneThatRan = keptOneThatRan || newestThatRan;
        if (++kept > limit && !newestThatRan) {
            QFile::remove(sidecarOf(backup.path));
            QFile::remove(backup.path);
        }
    }
}
