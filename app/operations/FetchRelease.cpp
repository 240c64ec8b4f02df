#include "app/operations/FetchRelease.h"

#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/catalogue/CatalogueAccess.h"
#include "app/catalogue/FirmwareVersion.h"

std::variant<QByteArray, Outcome> fetchRelease(const CatalogueRelease& release,
                                               const ResourceBundle& resources,
                                               DevelopmentImages developmentKey,
                                               const OperationSink& sink) {
    const auto client =
        catalogueClientFor(resources, release.catalogue, developmentKey, release.client);
    if (!client) {
        return Outcome::make(Outcome::Kind::catalogueUnusable,
                             Texts::noCatalogueConfigured(sink.audience));
    }
    if (const auto* failure = std::get_if<CatalogueFailure>(&*client)) {
        return catalogueOutcome(*failure);
    }
    const CatalogueClient& catalogues = std::get<CatalogueClient>(*client);
    const auto fetched = catalogues.fetchCatalogue();
    if (const auto* failure = std::get_if<CatalogueFailure>(&fetched)) {
        return catalogueOutcome(*failure);
    }
    const auto& catalogue = std::get<VerifiedCatalogue>(fetched);
    if (catalogue.offline) {
        sink.info(Texts::catalogueFromCache(catalogue.catalogue.published));
    }
    const auto listed = catalogue.catalogue.find(release.version);
    if (const auto* failure = std::get_if<CatalogueFailure>(&listed)) {
        return catalogueOutcome(*failure);
    }
    const auto& entry = std::get<CatalogueEntry>(listed);
    sink.info(Texts::fetchingRelease(VersionText::shown(entry.version),
                                     displayAddress(catalogue.origin)));
    const auto image =
        catalogues.fetchImage(catalogue, entry, [&sink](qint64 received, qint64 size) {
            if (sink.progress && size > 0) {
                sink.progress(static_cast<float>(received) / static_cast<float>(size),
                              Texts::downloadingStage());
            }
        });
    if (const auto* failure = std::get_if<CatalogueFailure>(&image)) {
        return catalogueOutcome(*failure);
    }
    return std::get<VerifiedImage>(image).bytes;
}

std::optional<Outcome> olderRefusal(const CatalogueRelease& release,
                                    const std::optional<QString>& running,
                                    Texts::Audience audience) {
    if (release.allowOlder || !running ||
        FirmwareVersion::compare(release.version, *running) != std::partial_ordering::less) {
        return std::nullopt;
    }
    const QString chosen = VersionText::shown(release.version);
    const QString runs = VersionText::shown(*running);
    Outcome refused = Outcome::make(Outcome::Kind::refused,
                                    Texts::releaseOlderThanRunning(chosen, runs, audience));
    refused.cause = OlderRelease{chosen, runs};
    return refused;
}
