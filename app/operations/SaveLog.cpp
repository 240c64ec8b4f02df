#include "app/operations/SaveLog.h"

#include "app/LogExport.h"
#include "app/Texts.h"

SaveLog::SaveLog(QString path, QStringList lines, std::optional<QString> port, QDateTime time)
    : path_(std::move(path)),
      lines_(std::move(lines)),
      port_(std::move(port)),
      time_(std::move(time)) {}

Outcome SaveLog::run(const OperationSink&) {
    if (const auto failure = LogExport::save(path_, LogExport::document(lines_, port_, time_))) {
        return Outcome::make(Outcome::Kind::notWritten, Texts::logNotSaved(*failure));
    }
    return Outcome::success(QString());
}
