#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "app/operations/Operation.h"

/// Checks a configuration file on disk as an upload checks it: read whole, UTF-8,
/// YAML, a mapping of settings, at most 1 MiB. Needs no machine; quick enough for
/// the GUI thread.
class CheckConfigFile : public Operation {
  public:
    explicit CheckConfigFile(QString path);

    /// Refused with "Could not read file: NAME" or "NAME is not a valid machine
    /// configuration: PROBLEM"; else a success whose message is the line that
    /// announces its upload ("Preparing NAME" and the version suffix). Logs nothing.
    Outcome run(const OperationSink& sink) override;

    /// The file's bytes once `run` accepted it.
    const std::optional<QByteArray>& bytes() const { return bytes_; }

  private:
    QString path_;
    std::optional<QByteArray> bytes_;
};
