#include "app/operations/QueryVersion.h"

#include "app/DeviceQueries.h"
#include "app/OutcomeTable.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"

QueryVersion::QueryVersion(QString port) : port_(std::move(port)) {}

Outcome QueryVersion::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    const auto version = DeviceQueries::firmwareVersion(port_);
    if (!version) {
        return Outcome::make(Outcome::Kind::noAnswer,
                             OutcomeTable::libraryMessage(ESP_RESULT_TIMED_OUT));
    }
    sink.info(*version);
    return Outcome::success(*version);
}
