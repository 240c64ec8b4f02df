#include "app/catalogue/CatalogueCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "app/catalogue/CatalogueSource.h"

namespace {

const QString kOriginFile = QStringLiteral("origin");

bool writeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

std::optional<QByteArray> readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

}  // namespace

QString CatalogueCache::defaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/teskal-firmware-updater");
}

bool CatalogueCache::keepCatalogue(const QString& keyId, const Stored& stored) const {
    const QDir folder(catalogueFolder(keyId));
    const QString name = QLatin1String(CatalogueSource::kCatalogueName);
    return QDir().mkpath(folder.path()) && writeFile(folder.filePath(name), stored.catalogue) &&
           writeFile(folder.filePath(name + QLatin1String(CatalogueSource::kSignatureSuffix)),
                     stored.signature) &&
           writeFile(folder.filePath(kOriginFile), stored.origin.toEncoded());
}

std::optional<CatalogueCache::Stored> CatalogueCache::catalogue(const QString& keyId) const {
    const QDir folder(catalogueFolder(keyId));
    const QString name = QLatin1String(CatalogueSource::kCatalogueName);
    const auto catalogue = readFile(folder.filePath(name));
    const auto signature =
        readFile(folder.filePath(name + QLatin1String(CatalogueSource::kSignatureSuffix)));
    const auto origin = readFile(folder.filePath(kOriginFile));
    if (!catalogue || !signature || !origin) {
        return std::nullopt;
    }
    return Stored{*catalogue, *signature, QUrl::fromEncoded(*origin)};
}

std::optional<QString> CatalogueCache::keepImage(const QString& sha256,
                                                 const QByteArray& bytes) const {
    const QString path = imagePath(sha256);
    if (!QDir().mkpath(QFileInfo(path).path()) || !writeFile(path, bytes)) {
        return std::nullopt;
    }
    return path;
}

QString CatalogueCache::imagePath(const QString& sha256) const {
    return QDir(folder_).filePath(QStringLiteral("images/") + sha256 + QStringLiteral(".bin"));
}

QString CatalogueCache::catalogueFolder(const QString& keyId) const {
    return QDir(folder_).filePath(QStringLiteral("catalogues/") + keyId);
}
