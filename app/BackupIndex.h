#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

#include "app/Backup.h"

/// The backups folder: every copy of a machine's config.yaml that the updater read,
/// each with a JSON sidecar ("config-yyyyMMdd-HHmmss.yaml" beside
/// "config-yyyyMMdd-HHmmss.json") that tells its time, reason, machine, firmware
/// version, size and SHA-256; and every snapshot of a machine's whole flash
/// ("machine-yyyyMMdd-HHmmss.bin" beside "machine-yyyyMMdd-HHmmss.json"), whose
/// sidecar also tells the machine's start, its partition table in words and the
/// application's version. Only the newest `kKeptPerMachine` copies of each machine
/// are kept, and its newest `kSnapshotsPerMachine` snapshots together with the newest
/// one taken while it ran. A configuration and a flash can hold network credentials,
/// so the folder is the owner's alone (0700) and so is every file in it (0600).
///
/// Reads and writes the folder on every call and keeps nothing in memory, so
/// several processes may share it. Any thread.
class BackupIndex {
  public:
    static constexpr int kKeptPerMachine = 50;
    static constexpr int kSnapshotsPerMachine = 5;

    /// What is known of a copy before it is kept; a snapshot's reason is one of
    /// the snapshot reasons and its facts are set.
    struct Source {
        BackupReason reason = BackupReason::save;
        QString machine;
        std::optional<QString> firmwareVersion;
        QDateTime time = QDateTime::currentDateTime();
        std::optional<SnapshotFacts> snapshot;
    };

    /// A copy being received piece by piece (a whole flash of up to 16 MiB), written
    /// to a private temporary file in the folder as it comes, so that it never needs
    /// to be held in memory. Nothing of it stays unless `keep` takes it. Move-only;
    /// one thread at a time.
    class Incoming {
      public:
        Incoming(Incoming&&) noexcept;
        Incoming& operator=(Incoming&&) noexcept;
        ~Incoming();

        /// Appends `size` bytes; false once a write failed (see `error`).
        bool append(const char* data, qint64 size);
        /// The bytes received so far.
        qint64 size() const;
        /// The temporary file, to read back what came before it is kept.
        QString fileName() const;
        /// Why a write failed; empty while none did.
        QString error() const;

      private:
        friend class BackupIndex;
        struct Impl;
        explicit Incoming(std::unique_ptr<Impl> impl);
        std::unique_ptr<Impl> impl_;
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

    /// Makes the folder private and opens a temporary file in it for a copy that
    /// arrives piece by piece; or why it cannot.
    std::variant<Incoming, QString> receive() const;

    /// Keeps what `incoming` received as a new copy with its sidecar, as
    /// `keep(bytes, source)` does; the temporary file is gone on every return.
    std::variant<Backup, QString> keep(Incoming incoming, const Source& source) const;

    /// Which copies a listing holds.
    enum class Family { configurations, snapshots, all };

    /// Every backup and snapshot, newest first.
    QList<Backup> list(const Skipped& skipped = {}) const;
    /// Those of `family`, newest first.
    QList<Backup> list(Family family, const Skipped& skipped = {}) const;

    /// The newest configuration backup of `machine`.
    std::optional<Backup> newestOf(const QString& machine, const Skipped& skipped = {}) const;
    /// The newest snapshot of `machine`.
    std::optional<Backup> newestSnapshotOf(const QString& machine,
                                           const Skipped& skipped = {}) const;

    /// The configuration backup whose copy is `nameOrPath`: a file name in the
    /// folder, or a path.
    std::optional<Backup> find(const QString& nameOrPath, const Skipped& skipped = {}) const;
    /// The snapshot whose file is `nameOrPath`, as `find` looks.
    std::optional<Backup> findSnapshot(const QString& nameOrPath,
                                       const Skipped& skipped = {}) const;

    /// "save", "compare", "before-upload", "before-erase", "snapshot",
    /// "before-update", "before-repair": the sidecar's words.
    static QString reasonName(BackupReason reason);
    static std::optional<BackupReason> reasonNamed(const QString& name);

    /// The backup as the sidecar holds it, with "path" in place of the file name:
    /// for teskal-flash backups --json.
    static QJsonObject toJson(const Backup& backup);

  private:
    std::optional<Backup> found(const QString& nameOrPath, Family family,
                                const Skipped& skipped) const;
    void prune(const QString& machine, bool snapshots) const;

    QString folder_;
};
