#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "esp_flasher.h"

/// Why a copy of the machine's config.yaml, or a snapshot of its whole flash, was
/// kept.
enum class BackupReason {
    save,          ///< Save Machine Config, teskal-flash save-config
    compare,       ///< Compare With Machine, teskal-flash diff-config
    beforeUpload,  ///< the backup before a configuration upload
    beforeErase,   ///< the save before Erase All Flash
    snapshot,      ///< a whole-flash snapshot the owner asked for
    beforeUpdate,  ///< the snapshot before a firmware write
    beforeRepair,  ///< the snapshot before a repair erases the machine
};

/// True for the reasons of a whole-flash snapshot.
inline bool isSnapshotReason(BackupReason reason) {
    return reason == BackupReason::snapshot || reason == BackupReason::beforeUpdate ||
           reason == BackupReason::beforeRepair;
}

/// What a whole-flash snapshot's sidecar tells besides what every copy's does.
struct SnapshotFacts {
    /// How the machine started after the read (enum esp_startup_verdict); none when
    /// it was not listened to.
    std::optional<int> startup;
    QStringList partitions;              ///< the partition table in words, one entry a line
    std::optional<QString> application;  ///< the version the application image describes

    friend bool operator==(const SnapshotFacts&, const SnapshotFacts&) = default;
};

/// One kept copy of a machine's config.yaml, or a snapshot of its whole flash
/// (`snapshot` set), as its sidecar describes it. A plain value; see `BackupIndex`.
struct Backup {
    QString path;  ///< absolute path of the copy
    QDateTime time;
    BackupReason reason = BackupReason::save;
    QString machine;  ///< the machine's USB serial number, or its port's name
    std::optional<QString> firmwareVersion;  ///< as it answered ("v3.7.8"); none when it did not
    qint64 size = 0;                         ///< bytes
    QString sha256;                          ///< of the copy, lower-case hexadecimal
    std::optional<SnapshotFacts> snapshot;   ///< set for a whole-flash snapshot

    bool isSnapshot() const { return snapshot.has_value(); }
    /// A snapshot taken while the machine ran.
    bool ran() const;

    friend bool operator==(const Backup&, const Backup&) = default;
};

inline bool Backup::ran() const {
    return snapshot && snapshot->startup == ESP_STARTUP_RUNNING;
}

/// The backups an operation found, newest first.
struct BackupListing {
    QList<Backup> backups;

    friend bool operator==(const BackupListing&, const BackupListing&) = default;
};
