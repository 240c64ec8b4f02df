#pragma once

#include "app/operations/Operation.h"

/// Lists the backups of machine configurations, newest first, one log line each.
class ListBackups : public Operation {
  public:
    /// Logs each backup ("2024-05-01 14:03:22  before-erase  v3.7.8  512 bytes
    /// MACHINE  PATH"), or that there is none, and each unreadable record as an
    /// error; succeeds with "N backups in FOLDER" and the list as its cause.
    Outcome run(const OperationSink& sink) override;
};
