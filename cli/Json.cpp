#include "cli/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

#include "app/BackupIndex.h"

namespace {

QJsonObject logObject(const LogEntry& entry) {
    QJsonObject object{{"type", "log"}, {"line", entry.line()}};
    if (entry.isError()) {
        object.insert(QStringLiteral("severity"), QStringLiteral("error"));
    }
    return object;
}

QJsonObject progressObject(const event::Progress& progress) {
    QJsonObject object{{"type", "progress"},
                       {"fraction", static_cast<double>(progress.fraction)},
                       {"stage", progress.stage}};
    if (progress.bytes >= 0) {
        object.insert(QStringLiteral("bytes"), progress.bytes);
    }
    return object;
}

QJsonArray firmwareArray(const FirmwareListing& listing) {
    QJsonArray releases;
    for (const FirmwareRelease& release : listing.releases) {
        const bool bundled = release.source == FirmwareRelease::Source::bundled;
        releases.append(QJsonObject{
            {"version", release.version},
            {"channel", release.channel == FirmwareChannel::beta ? "beta" : "stable"},
            {"date", release.date.isValid() ? QJsonValue(release.date.toString(Qt::ISODate))
                                            : QJsonValue(QJsonValue::Null)},
            {"source", bundled ? "bundled" : "catalogue"},
            {"notes", release.notes}});
    }
    return releases;
}

QJsonObject resultObject(const event::Result& result) {
    const Outcome& outcome = result.outcome;
    QJsonObject object{{"type", "result"},
                       {"code", result.status},
                       {"message", outcome.message},
                       {"kind", kindName(outcome.kind)}};
    if (outcome.kind == Outcome::Kind::failed) {
        object.insert(QStringLiteral("library"), static_cast<qint64>(outcome.code));
    }
    if (const auto* startup = outcome.startup()) {
        object.insert(QStringLiteral("machine"), verdictName(startup->verdict));
        if (startup->snapshot) {
            object.insert(QStringLiteral("snapshot"), *startup->snapshot);
            object.insert(QStringLiteral("undone"), startup->undone);
        }
    }
    if (const auto* snapshot = std::get_if<Backup>(&outcome.cause)) {
        object.insert(QStringLiteral("snapshot"), snapshot->path);
    }
    if (const auto* settings = std::get_if<SettingsCause>(&outcome.cause)) {
        const auto orNull = [](const std::optional<QString>& path) {
            return path ? QJsonValue(*path) : QJsonValue(QJsonValue::Null);
        };
        object.insert(QStringLiteral("restored"), orNull(settings->restored));
        object.insert(QStringLiteral("backup"), orNull(settings->saved));
    }
    if (!result.outcome.evidence.isEmpty() || result.outcome.isVerdict()) {
        object.insert(QStringLiteral("evidence"),
                      QJsonArray::fromStringList(result.outcome.evidence));
    }
    if (const auto* listing = std::get_if<FirmwareListing>(&result.outcome.cause)) {
        object.insert(QStringLiteral("firmware"), firmwareArray(*listing));
    }
    if (const auto* listing = std::get_if<BackupListing>(&result.outcome.cause)) {
        QJsonArray backups;
        for (const Backup& backup : listing->backups) {
            backups.append(BackupIndex::toJson(backup));
        }
        object.insert(QStringLiteral("backups"), backups);
    }
    return object;
}

QJsonObject objectFor(const Event& event) {
    if (const auto* entry = std::get_if<LogEntry>(&event)) {
        return logObject(*entry);
    }
    if (const auto* progress = std::get_if<event::Progress>(&event)) {
        return progressObject(*progress);
    }
    return resultObject(std::get<event::Result>(event));
}

LogEntry entryFrom(const QJsonObject& object) {
    const bool error =
        object.value(QStringLiteral("severity")).toString() == QLatin1String("error");
    return LogEntry::fromLine(error ? LogEntry::Severity::error : LogEntry::Severity::info,
                              object.value(QStringLiteral("line")).toString());
}

// The kind, the library's code and the machine's verdict decide how the result
// reads and what to do next, as they do for the child that sent it.
event::Result resultFrom(const QJsonObject& object) {
    const int status = object.value(QStringLiteral("code")).toInt();
    const auto kind = kindNamed(object.value(QStringLiteral("kind")).toString());
    Outcome outcome =
        Outcome::make(kind.value_or(status == 0 ? Outcome::Kind::succeeded : Outcome::Kind::failed),
                      object.value(QStringLiteral("message")).toString());
    outcome.code = static_cast<esp_error_t>(object.value(QStringLiteral("library")).toInteger());
    for (const auto& line : object.value(QStringLiteral("evidence")).toArray()) {
        outcome.evidence << line.toString();
    }
    if (const auto verdict = verdictNamed(object.value(QStringLiteral("machine")).toString())) {
        StartupCause startup;
        startup.verdict = *verdict;
        if (object.contains(QStringLiteral("snapshot"))) {
            startup.snapshot = object.value(QStringLiteral("snapshot")).toString();
            startup.undone = object.value(QStringLiteral("undone")).toBool();
        }
        outcome.cause = startup;
    }
    return {status, outcome};
}

QByteArray compact(const QString& port, QJsonObject object) {
    if (!port.isEmpty()) {
        object.insert(QStringLiteral("port"), port);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString markName(CheckRow::Mark mark) {
    switch (mark) {
        case CheckRow::Mark::ok:
            return QStringLiteral("ok");
        case CheckRow::Mark::problem:
            return QStringLiteral("problem");
        case CheckRow::Mark::info:
            break;
    }
    return QStringLiteral("info");
}

}  // namespace

QByteArray toJsonLine(const QString& port, const Event& event) {
    return compact(port, objectFor(event));
}

QByteArray toJsonLine(const QString& port, const CheckRow& row) {
    QJsonObject object{{"type", "check"}, {"mark", markName(row.mark)}, {"line", row.line}};
    if (!row.fix.isEmpty()) {
        object.insert(QStringLiteral("fix"), row.fix);
    }
    return compact(port, object);
}

std::optional<Event> eventFromJsonLine(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString type = object.value(QStringLiteral("type")).toString();
    if (type == QLatin1String("log")) {
        return entryFrom(object);
    }
    if (type == QLatin1String("progress")) {
        return event::Progress{
            static_cast<float>(object.value(QStringLiteral("fraction")).toDouble()),
            object.value(QStringLiteral("stage")).toString(),
            object.value(QStringLiteral("bytes")).toInteger(-1)};
    }
    if (type == QLatin1String("result")) {
        return resultFrom(object);
    }
    return std::nullopt;
}

void JsonReporter::report(const QString& port, const Event& event) {
    const QString shown = withPorts_ ? port : QString();
    QByteArray lines;
    if (const auto* result = std::get_if<event::Result>(&event)) {
        if (const auto* checklist = std::get_if<Checklist>(&result->outcome.cause)) {
            for (const CheckRow& row : checklist->rows) {
                lines += toJsonLine(shown, row) + '\n';
            }
        }
    }
    lines += toJsonLine(shown, event) + '\n';
    std::fwrite(lines.constData(), 1, static_cast<size_t>(lines.size()), stdout);
    std::fflush(stdout);
}

void JsonReporter::notice(const QString& text) {
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}
