#include "app/LogEntry.h"

namespace {

const QString kErrorPrefix = QStringLiteral("ERROR: ");

}  // namespace

QString LogEntry::line() const {
    return isError() ? kErrorPrefix + text : text;
}

LogEntry LogEntry::fromLine(Severity severity, const QString& line) {
    const bool prefixed = severity == Severity::error && line.startsWith(kErrorPrefix);
    return {severity, prefixed ? line.mid(kErrorPrefix.size()) : line};
}
