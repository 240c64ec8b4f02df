#pragma once

#include <QString>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Asks the plotter's flash, through the bootloader and the flasher stub, whether
/// it holds a partition table with an application at 0x10000. Writes nothing.
class ProbePartitionTable : public Operation {
  public:
    ProbePartitionTable(QString port, ResourceBundle resources,
                        DevelopmentImages developmentImages);

    /// Logs and ends with "Partition table: present" (a success) or "...: absent"
    /// (`noPartitionTable`); `noAnswer` when the plotter did not answer; missing or
    /// refused when the stub cannot be used; `portUnusable`, before anything, when
    /// the port cannot be used.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    ResourceBundle resources_;
    DevelopmentImages developmentImages_;
};
