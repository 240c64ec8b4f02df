#pragma once

#include <QDateTime>
#include <QString>

#include "app/operations/Operation.h"

/// Saves the machine's own config.yaml to a file on this computer.
class SaveMachineConfig : public Operation {
  public:
    /// `port`: the machine's serial port; `destination`: the file to write.
    SaveMachineConfig(QString port, QString destination);

    /// "machine-config-yyyyMMdd-HHmm.yaml" for `when`, as its clock shows it.
    static QString defaultFileName(const QDateTime& when);

    /// Reads config.yaml and writes it with `MachineConfigFile::write`: an existing
    /// file is replaced whole or left as it was. Ends `portUnusable`, without
    /// reading, when the port cannot be used.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    QString destination_;
};
