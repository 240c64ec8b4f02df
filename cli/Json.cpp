#include "cli/Json.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace {

const QString kErrorPrefix = QStringLiteral("ERROR: ");

QJsonObject objectFor(const Event& event) {
    return std::visit(
        [](const auto& e) -> QJsonObject {
            using T = std::decay_t<decltype(e)>;
            if constexpr (std::is_same_v<T, event::Log>) {
                return {{"type", "log"}, {"line", e.line}};
            } else if constexpr (std::is_same_v<T, event::Error>) {
                return {{"type", "log"}, {"line", kErrorPrefix + e.message}};
            } else if constexpr (std::is_same_v<T, event::Progress>) {
                QJsonObject progress{{"type", "progress"},
                                     {"fraction", static_cast<double>(e.fraction)},
                                     {"stage", e.stage}};
                if (e.bytes >= 0) {
                    progress.insert(QStringLiteral("bytes"), e.bytes);
                }
                return progress;
            } else {
                return {{"type", "result"}, {"code", e.code}, {"message", e.message}};
            }
        },
        event);
}

}  // namespace

QByteArray toJsonLine(const QString& port, const Event& event) {
    QJsonObject object = objectFor(event);
    if (!port.isEmpty()) {
        object.insert(QStringLiteral("port"), port);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<Event> eventFromJsonLine(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString type = object.value(QStringLiteral("type")).toString();
    if (type == QLatin1String("log")) {
        const QString text = object.value(QStringLiteral("line")).toString();
        if (text.startsWith(kErrorPrefix)) {
            return event::Error{text.mid(kErrorPrefix.size())};
        }
        return event::Log{text};
    }
    if (type == QLatin1String("progress")) {
        return event::Progress{
            static_cast<float>(object.value(QStringLiteral("fraction")).toDouble()),
            object.value(QStringLiteral("stage")).toString(),
            object.value(QStringLiteral("bytes")).toInteger(-1)};
    }
    if (type == QLatin1String("result")) {
        const int code = object.value(QStringLiteral("code")).toInt();
        return event::Result{code, object.value(QStringLiteral("message")).toString(), code != 0};
    }
    return std::nullopt;
}

void JsonReporter::report(const QString& port, const Event& event) {
    const QByteArray line = toJsonLine(withPorts_ ? port : QString(), event) + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

void JsonReporter::notice(const QString& text) {
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}
