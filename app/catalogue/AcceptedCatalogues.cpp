#include "app/catalogue/AcceptedCatalogues.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QJsonObject readRecords(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll()).object();
}

std::optional<QDateTime> timeOf(const QJsonObject& records, const QString& keyId) {
    const QDateTime time =
        QDateTime::fromString(records.value(keyId).toString(), Qt::ISODateWithMs);
    return time.isValid() ? std::optional<QDateTime>(time) : std::nullopt;
}

}  // namespace

QString AcceptedCatalogues::defaultFolder() {
    // Qt 6.4 has no standard location for state. As for the other XDG folders, a
    // relative value does not count.
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base =
        QDir::isAbsolutePath(state) ? state : QDir::homePath() + QStringLiteral("/.local/state");
    return base + QStringLiteral("/teskal-firmware-updater");
}

std::optional<QDateTime> AcceptedCatalogues::newest(const QString& keyId) const {
    return timeOf(readRecords(filePath()), keyId);
}

bool AcceptedCatalogues::remember(const QString& keyId, const QDateTime& published) const {
    QJsonObject records = readRecords(filePath());
    if (const auto known = timeOf(records, keyId); known && *known >= published) {
        return true;
    }
    records.insert(keyId, published.toUTC().toString(Qt::ISODateWithMs));
    QSaveFile file(filePath());
    return QDir().mkpath(folder_) && file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(records).toJson()) >= 0 && file.commit();
}

QString AcceptedCatalogues::filePath() const {
    return QDir(folder_).filePath(QStringLiteral("catalogues.json"));
}
