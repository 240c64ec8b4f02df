#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

#include "app/JobSink.h"

/// Saves the machine's own config.yaml to a file on this computer.
///
/// A plain object: build it with its inputs, then `run` it on a worker thread.
class SaveMachineConfigJob {
  public:
    /// `port`: the machine's serial port; `destination`: the file to write.
    SaveMachineConfigJob(QString port, QString destination);

    /// "machine-config-yyyyMMdd-HHmm.yaml" for `when`, as its clock shows it.
    static QString defaultFileName(const QDateTime& when);

    /// Downloads config.yaml and writes it through a temporary file in the same
    /// folder that is then renamed over the destination, so an existing file is
    /// replaced whole or left as it was. On success logs "Machine config saved to
    /// <absolute path> (<n> bytes)" and returns nothing; otherwise returns the
    /// user message and logs nothing. Blocks the calling thread; one library job at
    /// a time.
    std::optional<QString> run(const JobSink& sink) const;

  private:
    QString port_;
    QString destination_;
};
