#include "app/operations/QueryVersion.h"

#include "app/DeviceQueries.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"

QueryVersion::QueryVersion(QString port) : port_(std::move(port)) {}

Outcome QueryVersion::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_)) {
        return *unusable;
    }
    const auto version = DeviceQueries::firmwareVersion(port_);
    if (!version) {
        return Outcome::make(Outcome::Kind::noAnswer, Texts::errorMessage(9));
    }
    sink.info(*version);
    return Outcome::success(*version);
}
