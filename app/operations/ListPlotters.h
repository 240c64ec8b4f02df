#pragma once

#include <QStringList>

#include "app/operations/Operation.h"

/// Names every connected plotter, one log line each.
class ListPlotters : public Operation {
  public:
    /// `plotters`: the ports found (or the simulated plotters' names).
    explicit ListPlotters(QStringList plotters);

    /// Succeeds with "N plotters connected"; `noDevice` when there is none (on the
    /// command line, pointing to teskal-flash doctor).
    Outcome run(const OperationSink& sink) override;

  private:
    QStringList plotters_;
};
