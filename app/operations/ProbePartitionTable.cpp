#include "app/operations/ProbePartitionTable.h"

#include "app/DeviceQueries.h"
#include "app/OutcomeTable.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"

ProbePartitionTable::ProbePartitionTable(QString port, ResourceBundle resources,
                                         DevelopmentImages developmentImages)
    : port_(std::move(port)),
      resources_(std::move(resources)),
      developmentImages_(developmentImages) {}

Outcome ProbePartitionTable::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    const QString stubName = QStringLiteral("esp32s3_stub");
    const auto stub = resources_.read(stubName, QStringLiteral("bin"));
    if (!stub) {
        return Outcome::make(Outcome::Kind::missingResource, Texts::stubMissing());
    }
    if (const auto refusal = bundledImageRefusal(resources_, stubName, developmentImages_)) {
        return Outcome::make(Outcome::Kind::refused, *refusal);
    }
    switch (DeviceQueries::partitionTable(port_, *stub)) {
        case DeviceQueries::PartitionTable::present:
            sink.info(Texts::partitionTablePresent());
            return Outcome::success(Texts::partitionTablePresent());
        case DeviceQueries::PartitionTable::absent:
            sink.info(Texts::partitionTableAbsent());
            return Outcome::make(Outcome::Kind::noPartitionTable, Texts::partitionTableAbsent());
        case DeviceQueries::PartitionTable::unreadable:
            break;
    }
    return Outcome::make(Outcome::Kind::noAnswer,
                         OutcomeTable::libraryMessage(ESP_RESULT_TIMED_OUT));
}
