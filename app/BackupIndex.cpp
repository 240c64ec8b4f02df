#include "app/BackupIndex.h"

#include <openssl/evp.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <algorithm>

#include "app/Texts.h"

namespace {

constexpr QFileDevice::Permissions kPrivateFolder =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
// Copies read within the same second (several plotters at once) get "-2", "-3", ...
constexpr int kNameAttempts = 1000;

const QString kYaml = QStringLiteral(".yaml");
const QString kJson = QStringLiteral(".json");

QString sha256Hex(const QByteArray& bytes) {
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(bytes.constData(), static_cast<size_t>(bytes.size()), digest, &length, EVP_sha256(),
               nullptr);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest), static_cast<qsizetype>(length)).toHex());
}

QString sidecarOf(const QString& copyPath) {
    return copyPath.chopped(kYaml.size()) + kJson;
}

enum class Written { yes, nameTaken, failed };

// A temporary file (created 0600) renamed to `name` without replacing a file that
// is already there, so that a reader sees the whole file or none.
Written writeNew(const QDir& folder, const QString& name, const QByteArray& bytes,
                 QString* reason) {
    QTemporaryFile file(folder.filePath(QStringLiteral(".incoming-XXXXXX")));
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        *reason = file.errorString();
        return Written::failed;
    }
    const QString target = folder.filePath(name);
    if (file.rename(target)) {
        file.setAutoRemove(false);
        return Written::yes;
    }
    *reason = file.errorString();
    return QFileInfo::exists(target) ? Written::nameTaken : Written::failed;
}

QJsonObject describe(const Backup& backup) {
    return {{"time",
             backup.time.toOffsetFromUtc(backup.time.offsetFromUtc()).toString(Qt::ISODateWithMs)},
            {"reason", BackupIndex::reasonName(backup.reason)},
            {"machine", backup.machine},
            {"firmware", backup.firmwareVersion ? QJsonValue(*backup.firmwareVersion)
                                                : QJsonValue(QJsonValue::Null)},
            {"size", backup.size},
            {"sha256", backup.sha256}};
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
    static const QRegularExpression hex(QStringLiteral("^[0-9a-f]{64}$"));
    // A sidecar describes the copy of its own name, so the two are removed together.
    if (copyName != sidecarName.chopped(kJson.size()) + kYaml || !backup.time.isValid() ||
        !reason || backup.machine.isEmpty() || backup.size < 0 ||
        !hex.match(backup.sha256).hasMatch() ||
        !(firmware.isString() || firmware.isNull() || firmware.isUndefined())) {
        return Texts::notABackupRecord();
    }
    backup.reason = *reason;
    if (firmware.isString()) {
        backup.firmwareVersion = firmware.toString();
    }
    const QFileInfo copy(backup.path);
    if (!copy.isFile()) {
        return Texts::backupCopyMissing(copyName);
    }
    if (copy.size() != backup.size) {
        return Texts::backupCopyChanged(copyName);
    }
    return backup;
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

std::variant<Backup, QString> BackupIndex::keep(const QByteArray& bytes,
                                                const Source& source) const {
    if (!QDir().mkpath(folder_) || !QFile::setPermissions(folder_, kPrivateFolder)) {
        return Texts::backupFolderUnusable(folder_);
    }
    const QDir folder(folder_);
    const QString stem =
        QStringLiteral("config-") + source.time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString reason;
    QString name;
    Written written = Written::nameTaken;
    for (int attempt = 1; attempt <= kNameAttempts && written == Written::nameTaken; ++attempt) {
        name = attempt == 1 ? stem : stem + QStringLiteral("-%1").arg(attempt);
        written = writeNew(folder, name + kYaml, bytes, &reason);
    }
    if (written != Written::yes) {
        return Texts::backupNotWritten(folder.filePath(name + kYaml), reason);
    }
    Backup backup{folder.filePath(name + kYaml), source.time,  source.reason,   source.machine,
                  source.firmwareVersion,        bytes.size(), sha256Hex(bytes)};
    QJsonObject record = describe(backup);
    record.insert(QStringLiteral("file"), name + kYaml);
    if (writeNew(folder, name + kJson, QJsonDocument(record).toJson(), &reason) != Written::yes) {
        QFile::remove(backup.path);
        return Texts::backupNotWritten(folder.filePath(name + kJson), reason);
    }
    prune(source.machine);
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

std::optional<Backup> BackupIndex::newestOf(const QString& machine, const Skipped& skipped) const {
    for (const Backup& backup : list(skipped)) {
        if (backup.machine == machine) {
            return backup;
        }
    }
    return std::nullopt;
}

std::optional<Backup> BackupIndex::find(const QString& nameOrPath, const Skipped& skipped) const {
    const QString wanted = QFileInfo(QDir(folder_), nameOrPath).absoluteFilePath();
    for (const Backup& backup : list(skipped)) {
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
    }
    return QString();
}

std::optional<BackupReason> BackupIndex::reasonNamed(const QString& name) {
    for (const BackupReason reason : {BackupReason::save, BackupReason::compare,
                                      BackupReason::beforeUpload, BackupReason::beforeErase}) {
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

void BackupIndex::prune(const QString& machine) const {
    int kept = 0;
    for (const Backup& backup : list()) {
        if (backup.machine == machine && ++kept > kKeptPerMachine) {
            QFile::remove(sidecarOf(backup.path));
            QFile::remove(backup.path);
        }
    }
}
