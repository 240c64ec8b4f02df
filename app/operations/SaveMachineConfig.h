#pragma once

#include <QDateTime>
#include <QString>

#include "app/operations/Operation.h"

/// Saves the machine's own config.yaml to a file on this computer.
class SaveMachineConfig : public Operation {
  public:
    /// `port`: the machine's serial port; `destination`: the file to write;
    /// `machine`: the name its backups are filed under (empty: found from the port).
    SaveMachineConfig(QString port, QString destination, QString machine = {});

    /// "machine-config-yyyyMMdd-HHmm.yaml" for `when`, as its clock shows it.
    static QString defaultFileName(const QDateTime& when);

    /// Reads config.yaml (keeping a copy in the backups folder, or logging why not)
    /// and writes it with `MachineConfigFile::write`: an existing file is replaced
    /// whole or left as it was. Ends `portUnusable`, without reading, when the port
    /// cannot be used.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    QString destination_;
    QString machine_;
};
