#include "app/operations/ListPlotters.h"

#include "app/Texts.h"

ListPlotters::ListPlotters(QStringList plotters) : plotters_(std::move(plotters)) {}

Outcome ListPlotters::run(const OperationSink& sink) {
    for (const QString& plotter : plotters_) {
        sink.info(plotter);
    }
    if (plotters_.isEmpty()) {
        return Outcome::make(Outcome::Kind::noDevice, sink.audience == Texts::Audience::window
                                                          ? Texts::noDeviceFound()
                                                          : Texts::noDeviceFoundDoctor());
    }
    return Outcome::success(Texts::plottersConnected(plotters_.size()));
}
