#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

/// Why a copy of the machine's config.yaml was kept.
enum class BackupReason {
    save,          ///< Save Machine Config, teskal-flash save-config
    compare,       ///< Compare With Machine, teskal-flash diff-config
    beforeUpload,  ///< the backup before a configuration upload
    beforeErase,   ///< the save before Erase All Flash
};

/// One kept copy of a machine's config.yaml, as its sidecar describes it. A plain
/// value; see `BackupIndex`.
struct Backup {
    QString path;  ///< absolute path of the copy
    QDateTime time;
    BackupReason reason = BackupReason::save;
    QString machine;  ///< the machine's USB serial number, or its port's name
    std::optional<QString> firmwareVersion;  ///< as it answered ("v3.7.8"); none when it did not
    qint64 size = 0;                         ///< bytes
    QString sha256;                          ///< of the copy, lower-case hexadecimal

    friend bool operator==(const Backup&, const Backup&) = default;
};

/// The backups an operation found, newest first.
struct BackupListing {
    QList<Backup> backups;

    friend bool operator==(const BackupListing&, const BackupListing&) = default;
};
