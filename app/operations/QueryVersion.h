#pragma once

#include <QString>

#include "app/operations/Operation.h"

/// Asks the running firmware for its version.
class QueryVersion : public Operation {
  public:
    explicit QueryVersion(QString port);

    /// Logs the version, cleaned as the window shows it ("FluidNC v3.7.8 (main)"
    /// gives "v3.7.8"), and succeeds with it; `noAnswer` when none came;
    /// `portUnusable`, without asking, when the port cannot be used.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
};
