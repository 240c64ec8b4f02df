#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <functional>
#include <optional>
#include <variant>

#include "app/Backup.h"

/// The backups folder: every copy of a machine's config.yaml that the updater read,
/// each with a JSON sidecar ("config-yyyyMMdd-HHmmss.yaml" beside
/// "config-yyyyMMdd-HHmmss.json") that tells its time, reason, machine, firmware
/// version, size and SHA-256. Only the newest `kKeptPerMachine` of each machine are
/// kept. A configuration can hold network credentials, so the folder is the owner's
/// alone (0700) and so is every file in it (0600).
///
/// Reads and writes the folder on every call and keeps nothing in memory, so
/// several processes may share it. Any thread.
class BackupIndex {
  public:
    static constexpr int kKeptPerMachine = 50;

    /// What is known of a copy before it is kept.
    struct Source {
        BackupReason reason = BackupReason::save;
        QString machine;
        std::optional<QString> firmwareVersion;
        QDateTime time = QDateTime::currentDateTime();
    };

    /// Called with one line for each sidecar that cannot be read, which is then
    /// left out; may be empty.
    using Skipped = std::function<void(const QString& line)>;

    /// The index of `defaultFolder()`, or of `folder`.
    BackupIndex();
    explicit BackupIndex(QString folder);

    /// The user's backups folder: "teskal-firmware-updater/backups" below the
    /// generic data location ($XDG_DATA_HOME, else ~/.local/share).
    static QString defaultFolder();

    const QString& folder() const { return folder_; }

    /// Keeps `bytes` as a new copy with its sidecar, each written to a temporary
    /// file that is renamed into place without replacing anything; then removes
    /// this machine's copies beyond the newest `kKeptPerMachine`. The backup, or
    /// why it could not be kept (the folder cannot be made private, a file cannot
    /// be written); nothing is left half written.
    std::variant<Backup, QString> keep(const QByteArray& bytes, const Source& source) const;

    /// Every backup, newest first.
    QList<Backup> list(const Skipped& skipped = {}) const;

    /// The newest backup of `machine`.
    std::optional<Backup> newestOf(const QString& machine, const Skipped& skipped = {}) const;

    /// The backup whose copy is `nameOrPath`: a file name in the folder, or a path.
    std::optional<Backup> find(const QString& nameOrPath, const Skipped& skipped = {}) const;

    /// "save", "compare", "before-upload", "before-erase": the sidecar's words.
    static QString reasonName(BackupReason reason);
    static std::optional<BackupReason> reasonNamed(const QString& name);

    /// The backup as the sidecar holds it, with "path" in place of the file name:
    /// for teskal-flash backups --json.
    static QJsonObject toJson(const Backup& backup);

  private:
    void prune(const QString& machine) const;

    QString folder_;
};
