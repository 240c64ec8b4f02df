#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

#include "app/Backup.h"
#include "app/ConfigChoice.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Uploads a machine configuration, as the Config menu does: a product's file from
/// the resources, or a file from disk checked first. It may first keep the
/// machine's own config.yaml in the backups folder, and then does not upload when
/// that fails.
class UploadConfig : public Operation {
  public:
    struct Options {
        /// Keep the machine's config.yaml in the backups folder first.
        bool backUpFirst = false;
        /// The resources are the development set and the port no simulated plotter:
        /// the set's configurations describe no real machine.
        bool developmentConfigsRefused = false;
        /// The name the machine's backups are filed under; empty: found from the port.
        QString machine;
    };

    UploadConfig(QString port, ResourceBundle resources, ConfigChoice choice, Options options);

    /// A file that cannot be read or is no valid machine configuration, or a
    /// product's configuration from the development set for a real port. Keeps
    /// the file's bytes for `run`, so what is uploaded is what was checked.
    std::optional<Outcome> refusal() override;

    /// For a file logs "Preparing NAME" and the version suffix, then backs up when
    /// asked, then enters `uploadingConfig` (with the size; 0 for a product whose
    /// file is missing) and logs "Preparing PRODUCT config" and its suffix, or
    /// "Uploading config file..."; uploads; on success enters `configUploaded` and
    /// logs "Upload successful; restarting machine.", then checks how the machine
    /// started with it (`CheckStartup`, within 8 s). Ends missing a resource, with
    /// the backup's failure, with the library's code, or with the machine's verdict
    /// (a success when it runs with the new configuration); `portUnusable` before it
    /// logs anything, or after the library could not open the port, when the port
    /// cannot be used (see `PortDiagnosis`). A configuration the machine rejects
    /// carries the one it had before as `StartupCause::previous`: the backup kept
    /// before this upload, else the machine's newest, never the file just
    /// uploaded; on the command line the restore-config command for it is logged.
    Outcome run(const OperationSink& sink) override;

  private:
    std::optional<Outcome> backUp(const OperationSink& sink);
    std::optional<QByteArray> productConfig(const OperationSink& sink) const;
    std::optional<Backup> previous(const OperationSink& sink) const;

    QString port_;
    ResourceBundle resources_;
    ConfigChoice choice_;
    Options options_;
    bool checked_ = false;
    QByteArray fileBytes_;
    QString announcement_;
    std::optional<Backup> backup_;
};
