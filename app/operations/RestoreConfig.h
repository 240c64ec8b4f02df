#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "app/Backup.h"
#include "app/ResourceBundle.h"
#include "app/operations/UploadConfig.h"

/// Puts a kept copy of a machine's config.yaml back on the machine: the normal
/// configuration upload of the backup's file.
class RestoreConfig : public Operation {
  public:
    /// `backup`: a file name in the backups folder or the path of a backup; empty:
    /// the newest backup of `options.machine` (empty: found from the port).
    RestoreConfig(QString port, ResourceBundle resources, QString backup,
                  UploadConfig::Options options);

    /// `noBackup` when the backup is not in the backups folder (or this machine has
    /// none), or the upload's refusal of its file. Keeps what it found for `run`.
    std::optional<Outcome> refusal() override;

    /// The upload of the backup's file (see `UploadConfig::run`); a success says
    /// "Settings restored from the backup of <date time>.".
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    ResourceBundle resources_;
    QString named_;
    UploadConfig::Options options_;
    bool checked_ = false;
    std::optional<Backup> backup_;
    std::shared_ptr<UploadConfig> upload_;
};
