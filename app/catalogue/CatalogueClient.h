#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <functional>
#include <optional>
#include <variant>

#include "app/catalogue/AcceptedCatalogues.h"
#include "app/catalogue/Catalogue.h"
#include "app/catalogue/CatalogueCache.h"
#include "app/catalogue/CatalogueFailure.h"
#include "app/catalogue/CatalogueKey.h"
#include "app/catalogue/CatalogueSource.h"
#include "app/catalogue/Download.h"

/// A catalogue whose signature, content and freshness were checked.
struct VerifiedCatalogue {
    Catalogue catalogue;
    QUrl origin;  ///< where its file came from; its images are found relative to it
    /// Set when the source could not be reached and this is the last catalogue
    /// accepted from it, read back from the cache and verified again: why the source
    /// failed. Show it marked as such (Texts::catalogueFromCache).
    std::optional<CatalogueFailure> offline;
};

/// A release's image, of the size and SHA-256 the catalogue declares. Only the
/// image checks (chip, checksum, appended SHA-256, partition, development marker:
/// `imagesRefusal`) remain before it may be written.
struct VerifiedImage {
    QByteArray bytes;
    std::optional<QString> cachedPath;  ///< the cache's copy; none when it could not be kept
};

/// Where a client keeps what it accepted, and how long it waits.
struct CatalogueClientOptions {
    QString stateFolder = AcceptedCatalogues::defaultFolder();
    QString cacheFolder = CatalogueCache::defaultFolder();
    int catalogueTimeoutMs = 20000;  ///< for the catalogue and its signature together
    int imageStallMs = 30000;        ///< an image download given up without a byte for this long
};

/// Fetches a firmware catalogue and the images of its releases, and hands them out
/// only once trusted. A catalogue is checked in this order, each step refusing with
/// a problem of its own and nothing written: its Ed25519 signature by `key` over
/// the file's exact bytes; its content (schema 1); its publication time against
/// the newest catalogue accepted for the key. An accepted catalogue is remembered
/// (state folder) and kept with its signature (cache folder). Revoked releases are
/// neither offered nor handed out. An image is read to its declared size and no
/// further, its SHA-256 checked, then kept in the cache by that SHA-256.
///
/// Only an http(s) source, or a catalogue that came from one, opens a network
/// connection. Threading: each call blocks and spins an event loop of its own on
/// the calling thread (an operation's worker; never a thread a window waits on);
/// it needs a QCoreApplication. Several clients may run at once.
class CatalogueClient {
  public:
    /// Bytes received so far of `size`.
    using Progress = std::function<void(qint64 received, qint64 size)>;

    CatalogueClient(CatalogueSource source, CatalogueKey key, CatalogueClientOptions options = {});

    /// The verified catalogue, or why it cannot be used. When an http(s) source
    /// cannot be reached (or does not answer in time), the last catalogue accepted
    /// for the key is given from the cache, marked `offline`, if it still verifies.
    std::variant<VerifiedCatalogue, CatalogueFailure> fetchCatalogue() const;

    /// The verified image of `entry`, a release of `catalogue`: from the cache when
    /// it holds it, else from its address relative to the catalogue's. `progress`
    /// is called on the calling thread as bytes arrive.
    std::variant<VerifiedImage, CatalogueFailure> fetchImage(const VerifiedCatalogue& catalogue,
                                                             const CatalogueEntry& entry,
                                                             const Progress& progress = {}) const;

  private:
    std::variant<CatalogueCache::Stored, CatalogueFailure> fetchFiles() const;
    CatalogueFailure refusal(const DownloadFailure& failure, const QUrl& url) const;
    std::variant<VerifiedCatalogue, CatalogueFailure> verify(
        const CatalogueCache::Stored& stored) const;
    std::optional<VerifiedCatalogue> fromCache(const CatalogueFailure& unreachable) const;
    std::optional<VerifiedImage> cachedImage(const CatalogueImage& image) const;
    std::variant<QByteArray, CatalogueFailure> downloadImage(const QUrl& origin,
                                                             const CatalogueEntry& entry,
                                                             const Progress& progress) const;

    CatalogueSource source_;
    CatalogueKey key_;
    CatalogueClientOptions options_;
    AcceptedCatalogues accepted_;
    CatalogueCache cache_;
};
