#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

/// What was accepted, per signing key: the publication time of the newest catalogue,
/// kept in "catalogues.json" of a state folder, so that an older catalogue cannot
/// bring back a release withdrawn since. Reads and writes the file on every call
/// and keeps nothing in memory, so several processes may share it. Any thread.
class AcceptedCatalogues {
  public:
    explicit AcceptedCatalogues(QString folder) : folder_(std::move(folder)) {}

    /// "teskal-firmware-updater" below $XDG_STATE_HOME when that is an absolute
    /// path, else below ~/.local/state.
    static QString defaultFolder();

    /// The publication time of the newest catalogue accepted for the key `keyId`;
    /// none when there was none (or the file cannot be read).
    std::optional<QDateTime> newest(const QString& keyId) const;

    /// Remembers `published` for `keyId` unless a later time is remembered already.
    /// The file is written to a temporary file and renamed into place. False when it
    /// cannot be written.
    bool remember(const QString& keyId, const QDateTime& published) const;

  private:
    QString filePath() const;

    QString folder_;
};
