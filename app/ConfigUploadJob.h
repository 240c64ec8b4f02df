#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "app/BuildConfig.h"
#include "app/JobOutcome.h"
#include "app/JobSink.h"
#include "app/ResourceBundle.h"

/// A machine configuration read from disk for upload, or why it may not be sent.
struct ConfigFile {
    std::optional<QByteArray> bytes;  ///< the file, read and checked; none when refused
    /// When refused, the log line after "ERROR: ": "Could not read file: NAME" or
    /// "NAME is not a valid machine configuration: PROBLEM".
    QString refusal;
    /// When accepted, the line that announces the upload: "Preparing NAME" and the
    /// version suffix.
    QString announcement;
};

/// Reads the configuration at `path` whole and checks it with
/// `machineConfigProblem`. Any thread.
ConfigFile readConfigFile(const QString& path);

/// Uploads a machine configuration, as the Config menu does: a product's file from
/// the resources, or one read from disk with `readConfigFile`.
///
/// A plain object: build it with its inputs, then `run` it on a worker thread.
class ConfigUploadJob {
  public:
    /// The configuration of `product`, looked up in the resources' "configs"
    /// folder when the job runs.
    ConfigUploadJob(QString port, ResourceBundle resources, ProductConfig product);
    /// Bytes already read and checked; the caller has logged their announcement.
    ConfigUploadJob(QString port, QByteArray configData);

    /// Calls `started` at once (with the size, 0 when the file is missing), then for a product
    /// logs "Preparing PRODUCT config" and the version suffix, for a file
    /// "Uploading config file..."; uploads, and on success calls `succeeded` and logs
    /// "Upload successful; restarting machine.". A failure is returned, not logged:
    /// the product's file missing from the resources, or the library's code. Blocks
    /// the calling thread; one library job at a time.
    JobOutcome run(const JobSink& sink) const;

  private:
    QString port_;
    std::optional<ResourceBundle> resources_;
    ProductConfig product_;
    QByteArray configData_;
};
