#include "app/catalogue/CatalogueClient.h"

#include <QDeadlineTimer>
#include <QFile>

#include "app/catalogue/Download.h"
#include "app/texts/CatalogueTexts.h"

namespace {

using Kind = DownloadFailure::Kind;

int wholeSeconds(int ms) {
    return (ms + 999) / 1000;
}

bool leavesTheCache(CatalogueProblem problem) {
    return problem == CatalogueProblem::unreachable || problem == CatalogueProblem::timedOut;
}

}  // namespace

CatalogueClient::CatalogueClient(CatalogueSource source, CatalogueKey key,
                                 CatalogueClientOptions options)
    : source_(std::move(source)),
      key_(std::move(key)),
      options_(std::move(options)),
      accepted_(options_.stateFolder),
      cache_(options_.cacheFolder) {}

std::variant<VerifiedCatalogue, CatalogueFailure> CatalogueClient::fetchCatalogue() const {
    auto fetched = fetchFiles();
    if (const auto* failure = std::get_if<CatalogueFailure>(&fetched)) {
        if (source_.kind() == CatalogueSource::Kind::url && leavesTheCache(failure->problem)) {
            if (auto cached = fromCache(*failure)) {
                return std::move(*cached);
            }
        }
        return *failure;
    }
    const auto& stored = std::get<CatalogueCache::Stored>(fetched);
    auto verified = verify(stored);
    if (const auto* accepted = std::get_if<VerifiedCatalogue>(&verified)) {
        // Not being able to remember does not make a verified catalogue less true.
        accepted_.remember(key_.id(), accepted->catalogue.published);
        cache_.keepCatalogue(key_.id(), stored);
    }
    return verified;
}

std::variant<CatalogueCache::Stored, CatalogueFailure> CatalogueClient::fetchFiles() const {
    const QDeadlineTimer deadline(options_.catalogueTimeoutMs);
    auto catalogue = download(source_.catalogueUrl(), {Catalogue::kMaxFileSize, deadline});
    if (const auto* failure = std::get_if<DownloadFailure>(&catalogue)) {
        return refusal(*failure, source_.catalogueUrl());
    }
    auto signature = download(source_.signatureUrl(), {CatalogueKey::kSignatureSize, deadline});
    if (const auto* failure = std::get_if<DownloadFailure>(&signature)) {
        // A signature longer than one is no signature.
        if (failure->kind == Kind::tooLarge) {
            return CatalogueFailure{CatalogueProblem::badSignature,
                                    Texts::catalogueBadSignature(source_.address())};
        }
        return refusal(*failure, source_.signatureUrl());
    }
    return CatalogueCache::Stored{std::get<QByteArray>(catalogue), std::get<QByteArray>(signature),
                                  source_.catalogueUrl()};
}

CatalogueFailure CatalogueClient::refusal(const DownloadFailure& failure, const QUrl& url) const {
    const QString address = displayAddress(url);
    switch (failure.kind) {
        case Kind::unreachable:
            break;
        case Kind::timedOut:
        case Kind::stalled:
            return {CatalogueProblem::timedOut,
                    Texts::catalogueTimedOut(address, wholeSeconds(options_.catalogueTimeoutMs))};
        case Kind::tooLarge:
            return {CatalogueProblem::tooLarge,
                    Texts::catalogueTooLarge(address, Catalogue::kMaxFileSize)};
    }
    return {CatalogueProblem::unreachable, Texts::catalogueUnreachable(address, failure.reason)};
}

std::variant<VerifiedCatalogue, CatalogueFailure> CatalogueClient::verify(
    const CatalogueCache::Stored& stored) const {
    const QString address = source_.address();
    if (!key_.verifies(stored.catalogue, stored.signature)) {
        return CatalogueFailure{CatalogueProblem::badSignature,
                                Texts::catalogueBadSignature(address)};
    }
    auto parsed = parseCatalogue(stored.catalogue);
    if (const auto* problem = std::get_if<QString>(&parsed)) {
        return CatalogueFailure{CatalogueProblem::malformed,
                                Texts::catalogueMalformed(address, *problem)};
    }
    auto& catalogue = std::get<Catalogue>(parsed);
    if (const auto newest = accepted_.newest(key_.id()); newest && catalogue.published < *newest) {
        return CatalogueFailure{CatalogueProblem::replayed,
                                Texts::catalogueReplayed(address, catalogue.published, *newest)};
    }
    return VerifiedCatalogue{std::move(catalogue), stored.origin, std::nullopt};
}

std::optional<VerifiedCatalogue> CatalogueClient::fromCache(
    const CatalogueFailure& unreachable) const {
    const auto stored = cache_.catalogue(key_.id());
    if (!stored) {
        return std::nullopt;
    }
    auto verified = verify(*stored);
    auto* catalogue = std::get_if<VerifiedCatalogue>(&verified);
    if (catalogue == nullptr) {
        return std::nullopt;
    }
    catalogue->offline = unreachable;
    return std::move(*catalogue);
}

std::variant<VerifiedImage, CatalogueFailure> CatalogueClient::fetchImage(
    const VerifiedCatalogue& catalogue, const CatalogueEntry& entry,
    const Progress& progress) const {
    // Only the catalogue's own entries: a revoked or made-up version is never handed out.
    auto listed = catalogue.catalogue.find(entry.version);
    if (const auto* failure = std::get_if<CatalogueFailure>(&listed)) {
        return *failure;
    }
    if (std::get<CatalogueEntry>(listed) != entry) {
        return CatalogueFailure{CatalogueProblem::notListed,
                                Texts::catalogueVersionNotListed(entry.version)};
    }
    const CatalogueImage& image = entry.image;
    if (auto cached = cachedImage(image)) {
        if (progress) {
            progress(image.size, image.size);
        }
        return std::move(*cached);
    }
    auto fetched = downloadImage(catalogue.origin, entry, progress);
    if (const auto* failure = std::get_if<CatalogueFailure>(&fetched)) {
        return *failure;
    }
    const QByteArray& bytes = std::get<QByteArray>(fetched);
    if (bytes.size() != image.size) {
        return CatalogueFailure{
            CatalogueProblem::imageTruncated,
            Texts::catalogueImageTruncated(entry.version, bytes.size(), image.size)};
    }
    if (sha256Hex(bytes) != image.sha256) {
        return CatalogueFailure{CatalogueProblem::imageTampered,
                                Texts::catalogueImageTampered(entry.version)};
    }
    return VerifiedImage{bytes, cache_.keepImage(image.sha256, bytes)};
}

std::variant<QByteArray, CatalogueFailure> CatalogueClient::downloadImage(
    const QUrl& origin, const CatalogueEntry& entry, const Progress& progress) const {
    const QUrl url = origin.resolved(QUrl(entry.image.url));
    const DownloadLimits limits{entry.image.size, QDeadlineTimer(QDeadlineTimer::Forever),
                                options_.imageStallMs};
    auto fetched = download(url, limits, [&](qint64 received) {
        if (progress) {
            progress(received, entry.image.size);
        }
    });
    const auto* failure = std::get_if<DownloadFailure>(&fetched);
    if (failure == nullptr) {
        return std::get<QByteArray>(std::move(fetched));
    }
    switch (failure->kind) {
        case Kind::unreachable:
            break;
        case Kind::timedOut:
        case Kind::stalled:
            return CatalogueFailure{
                CatalogueProblem::imageStalled,
                Texts::catalogueImageStalled(entry.version, wholeSeconds(options_.imageStallMs))};
        case Kind::tooLarge:
            return CatalogueFailure{CatalogueProblem::imageOversize,
                                    Texts::catalogueImageOversize(entry.version, entry.image.size)};
    }
    return CatalogueFailure{
        CatalogueProblem::imageUnreachable,
        Texts::catalogueImageUnreachable(entry.version, displayAddress(url), failure->reason)};
}

std::optional<VerifiedImage> CatalogueClient::cachedImage(const CatalogueImage& image) const {
    const QString path = cache_.imagePath(image.sha256);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.read(image.size + 1);
    if (bytes.size() != image.size || sha256Hex(bytes) != image.sha256) {
        return std::nullopt;
    }
    return VerifiedImage{bytes, path};
}
