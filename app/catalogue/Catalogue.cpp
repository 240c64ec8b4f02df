#include "app/catalogue/Catalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <cmath>

#include "app/catalogue/FirmwareVersion.h"
#include "app/texts/CatalogueTexts.h"

namespace {

bool sameVersion(const QString& a, const QString& b) {
    return FirmwareVersion::compare(a, b) == 0;
}

QString fieldPath(const QString& parent, const QString& key) {
    return parent.isEmpty() ? key : parent + QLatin1Char('.') + key;
}

// Every one of `keys` is present and nothing else is.
std::optional<QString> exactKeys(const QJsonObject& object, const QStringList& keys,
                                 const QString& path) {
    for (const QString& key : keys) {
        if (!object.contains(key)) {
            return Texts::catalogueFieldMissing(fieldPath(path, key));
        }
    }
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!keys.contains(it.key())) {
            return Texts::catalogueFieldUnknown(fieldPath(path, it.key()));
        }
    }
    return std::nullopt;
}

std::optional<QDateTime> utcTime(const QJsonValue& value) {
    const QDateTime time = QDateTime::fromString(value.toString(), Qt::ISODate);
    // A time without an offset is the publisher's local time, which nobody else knows.
    if (!time.isValid() || time.timeSpec() == Qt::LocalTime || time.offsetFromUtc() != 0) {
        return std::nullopt;
    }
    return time.toUTC();
}

std::optional<qint64> imageSize(const QJsonValue& value) {
    const double size = value.toDouble(-1);
    if (!value.isDouble() || size < 1 || size > Catalogue::kMaxImageSize ||
        std::floor(size) != size) {
        return std::nullopt;
    }
    return static_cast<qint64>(size);
}

// A relative reference only: an address of its own would send the updater to a
// host its owner never configured.
bool relativeReference(const QString& text) {
    const QUrl url(text, QUrl::StrictMode);
    return !text.isEmpty() && url.isValid() && url.isRelative() && url.host().isEmpty();
}

std::variant<CatalogueImage, QString> readImage(const QJsonValue& value, const QString& path) {
    const QJsonObject object = value.toObject();
    if (!value.isObject()) {
        return Texts::catalogueFieldInvalid(path);
    }
    if (auto problem = exactKeys(object, {"url", "size", "sha256"}, path)) {
        return *problem;
    }
    static const QRegularExpression hex(QStringLiteral("^[0-9A-Fa-f]{64}$"));
    CatalogueImage image;
    image.url = object.value(QLatin1String("url")).toString();
    const auto size = imageSize(object.value(QLatin1String("size")));
    image.sha256 = object.value(QLatin1String("sha256")).toString().toLower();
    if (!relativeReference(image.url)) {
        return Texts::catalogueFieldInvalid(fieldPath(path, QStringLiteral("url")));
    }
    if (!size) {
        return Texts::catalogueFieldInvalid(fieldPath(path, QStringLiteral("size")));
    }
    if (!hex.match(image.sha256).hasMatch()) {
        return Texts::catalogueFieldInvalid(fieldPath(path, QStringLiteral("sha256")));
    }
    image.size = *size;
    return image;
}

std::variant<CatalogueEntry, QString> readEntry(const QJsonValue& value, const QString& path) {
    const QJsonObject object = value.toObject();
    if (!value.isObject()) {
        return Texts::catalogueFieldInvalid(path);
    }
    if (auto problem = exactKeys(object, {"version", "channel", "date", "notes", "image"}, path)) {
        return *problem;
    }
    CatalogueEntry entry;
    entry.version = object.value(QLatin1String("version")).toString();
    const QString channel = object.value(QLatin1String("channel")).toString();
    entry.date = QDate::fromString(object.value(QLatin1String("date")).toString(), Qt::ISODate);
    const QJsonValue notes = object.value(QLatin1String("notes"));
    const auto field = [&path](const char* key) {
        return Texts::catalogueFieldInvalid(fieldPath(path, QLatin1String(key)));
    };
    if (!FirmwareVersion::isValid(entry.version)) {
        return field("version");
    }
    if (channel != QLatin1String("stable") && channel != QLatin1String("beta")) {
        return field("channel");
    }
    if (!entry.date.isValid()) {
        return field("date");
    }
    if (!notes.isString()) {
        return field("notes");
    }
    entry.channel =
        channel == QLatin1String("beta") ? FirmwareChannel::beta : FirmwareChannel::stable;
    entry.notes = notes.toString();
    auto image =
        readImage(object.value(QLatin1String("image")), fieldPath(path, QStringLiteral("image")));
    if (const auto* problem = std::get_if<QString>(&image)) {
        return *problem;
    }
    entry.image = std::get<CatalogueImage>(image);
    return entry;
}

std::optional<QString> readRevoked(const QJsonValue& value, QStringList* revoked) {
    if (!value.isArray()) {
        return Texts::catalogueFieldInvalid(QStringLiteral("revoked"));
    }
    for (const QJsonValue& version : value.toArray()) {
        if (!FirmwareVersion::isValid(version.toString())) {
            return Texts::catalogueFieldInvalid(QStringLiteral("revoked"));
        }
        revoked->append(version.toString());
    }
    return std::nullopt;
}

std::optional<QString> readEntries(const QJsonValue& value, Catalogue* catalogue) {
    if (!value.isArray()) {
        return Texts::catalogueFieldInvalid(QStringLiteral("firmware"));
    }
    QList<CatalogueEntry> listed;
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        auto read = readEntry(array[i], QStringLiteral("firmware[%1]").arg(i));
        if (const auto* problem = std::get_if<QString>(&read)) {
            return *problem;
        }
        const auto& entry = std::get<CatalogueEntry>(read);
        const bool twice = std::any_of(listed.begin(), listed.end(), [&](const auto& other) {
            return sameVersion(other.version, entry.version);
        });
        if (twice) {
            return Texts::catalogueVersionTwice(entry.version);
        }
        listed.append(entry);
    }
    for (const CatalogueEntry& entry : listed) {
        if (!catalogue->isRevoked(entry.version)) {
            catalogue->entries.append(entry);
        }
    }
    return std::nullopt;
}

}  // namespace

QList<CatalogueEntry> Catalogue::offered(bool beta) const {
    QList<CatalogueEntry> shown;
    std::copy_if(
        entries.begin(), entries.end(), std::back_inserter(shown),
        [beta](const auto& entry) { return beta || entry.channel == FirmwareChannel::stable; });
    std::sort(shown.begin(), shown.end(), [](const auto& a, const auto& b) {
        return FirmwareVersion::compare(a.version, b.version) > 0;
    });
    return shown;
}

std::optional<CatalogueEntry> Catalogue::newerStableThan(const QString& version) const {
    const QList<CatalogueEntry> stable = offered(false);
    if (stable.isEmpty() || !(FirmwareVersion::compare(stable.first().version, version) > 0)) {
        return std::nullopt;
    }
    return stable.first();
}

std::variant<CatalogueEntry, CatalogueFailure> Catalogue::find(const QString& version) const {
    if (isRevoked(version)) {
        return CatalogueFailure{CatalogueProblem::revoked, Texts::catalogueVersionRevoked(version)};
    }
    for (const CatalogueEntry& entry : entries) {
        if (sameVersion(entry.version, version)) {
            return entry;
        }
    }
    return CatalogueFailure{CatalogueProblem::notListed, Texts::catalogueVersionNotListed(version)};
}

bool Catalogue::isRevoked(const QString& version) const {
    return std::any_of(revoked.begin(), revoked.end(),
                       [&](const QString& withdrawn) { return sameVersion(withdrawn, version); });
}

std::variant<Catalogue, QString> parseCatalogue(const QByteArray& bytes) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return Texts::catalogueNotJson(error.errorString());
    }
    if (!document.isObject()) {
        return Texts::catalogueFieldInvalid(QStringLiteral("catalogue"));
    }
    const QJsonObject root = document.object();
    const QJsonValue schema = root.value(QLatin1String("schema"));
    if (!schema.isDouble()) {
        return schema.isUndefined() ? Texts::catalogueFieldMissing(QStringLiteral("schema"))
                                    : Texts::catalogueFieldInvalid(QStringLiteral("schema"));
    }
    // Checked before the fields: another schema may well have other fields.
    if (schema.toDouble() != Catalogue::kSchema) {
        return Texts::catalogueSchemaUnsupported(QString::number(schema.toDouble()));
    }
    if (auto problem = exactKeys(root, {"schema", "published", "revoked", "firmware"}, {})) {
        return *problem;
    }
    Catalogue catalogue;
    const auto published = utcTime(root.value(QLatin1String("published")));
    if (!published) {
        return Texts::catalogueFieldInvalid(QStringLiteral("published"));
    }
    catalogue.published = *published;
    if (auto problem = readRevoked(root.value(QLatin1String("revoked")), &catalogue.revoked)) {
        return *problem;
    }
    if (auto problem = readEntries(root.value(QLatin1String("firmware")), &catalogue)) {
        return *problem;
    }
    return catalogue;
}
