#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

#include "app/operations/Operation.h"

/// Saves the log as a file for support, headed by the program, build date, bundled
/// firmware, system, Qt version, time and port (see `LogExport`). Needs no machine.
class SaveLog : public Operation {
  public:
    /// `lines`: the log as shown; `port`: the plotter's, if any; `time`: now.
    SaveLog(QString path, QStringList lines, std::optional<QString> port, QDateTime time);

    /// Writes the file whole or not at all: `notWritten` with "Could not save log:
    /// REASON". Logs nothing.
    Outcome run(const OperationSink& sink) override;

  private:
    QString path_;
    QStringList lines_;
    std::optional<QString> port_;
    QDateTime time_;
};
