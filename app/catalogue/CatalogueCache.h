#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>

/// The catalogues and images that were accepted, kept for working offline below a
/// cache folder ($XDG_CACHE_HOME/teskal-firmware-updater): per signing key the
/// last catalogue with its signature and the address it came from, and images
/// named by their SHA-256. Everything read back from it is verified again. Each
/// file is written to a temporary file and renamed into place. Any thread.
class CatalogueCache {
  public:
    /// A catalogue as it was fetched.
    struct Stored {
        QByteArray catalogue;  ///< catalogue.json's exact bytes
        QByteArray signature;
        QUrl origin;  ///< where catalogue.json came from
    };

    explicit CatalogueCache(QString folder) : folder_(std::move(folder)) {}

    /// "teskal-firmware-updater" below the generic cache location ($XDG_CACHE_HOME,
    /// else ~/.cache).
    static QString defaultFolder();

    /// Keeps `stored` as the last catalogue of `keyId`; false when it cannot.
    bool keepCatalogue(const QString& keyId, const Stored& stored) const;
    /// The last catalogue kept for `keyId`, unverified.
    std::optional<Stored> catalogue(const QString& keyId) const;

    /// Keeps an image under its SHA-256; its path, or none when it cannot.
    std::optional<QString> keepImage(const QString& sha256, const QByteArray& bytes) const;
    /// Where the image of `sha256` is kept, whether it is there or not.
    QString imagePath(const QString& sha256) const;

  private:
    QString catalogueFolder(const QString& keyId) const;

    QString folder_;
};
