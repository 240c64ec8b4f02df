#include "app/operations/ListFirmware.h"

#include "app/BuildConfig.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/catalogue/CatalogueAccess.h"

namespace {

FirmwareRelease bundled() {
    FirmwareRelease release;
    release.version = BuildConfig::firmwareVersion();
    return release;
}

FirmwareRelease fromCatalogue(const CatalogueEntry& entry) {
    return {VersionText::shown(entry.version), entry.channel, entry.date, entry.notes,
            FirmwareRelease::Source::catalogue};
}

void logListing(const FirmwareListing& listing, const OperationSink& sink) {
    for (const FirmwareRelease& release : listing.releases) {
        const bool fromCatalogue = release.source == FirmwareRelease::Source::catalogue;
        sink.info(Texts::releaseLine(
            release.version,
            release.channel == FirmwareChannel::beta ? Texts::betaChannel()
                                                     : Texts::stableChannel(),
            release.date.isValid() ? release.date.toString(Qt::ISODate) : QString(),
            fromCatalogue ? Texts::catalogueSource() : Texts::bundledSource(), release.notes));
    }
}

}  // namespace

ListFirmware::ListFirmware(ResourceBundle resources, Options options)
    : resources_(std::move(resources)), options_(std::move(options)) {}

Outcome ListFirmware::run(const OperationSink& sink) {
    FirmwareListing listing{{bundled()}, std::nullopt, std::nullopt};
    std::optional<CatalogueFailure> failure;
    const auto client = catalogueClientFor(resources_, options_.catalogue, options_.developmentKey,
                                           options_.client);
    if (client && std::holds_alternative<CatalogueFailure>(*client)) {
        failure = std::get<CatalogueFailure>(*client);
    } else if (client) {
        const auto fetched = std::get<CatalogueClient>(*client).fetchCatalogue();
        if (const auto* verified = std::get_if<VerifiedCatalogue>(&fetched)) {
            for (const CatalogueEntry& entry : verified->catalogue.offered(options_.beta)) {
                listing.releases << fromCatalogue(entry);
            }
            if (const auto newer =
                    verified->catalogue.newerStableThan(BuildConfig::firmwareVersion())) {
                listing.newerStable = VersionText::shown(newer->version);
            }
            if (verified->offline) {
                listing.offlineSince = verified->catalogue.published;
                sink.info(Texts::catalogueFromCache(verified->catalogue.published));
            }
        } else {
            failure = std::get<CatalogueFailure>(fetched);
        }
    }
    logListing(listing, sink);
    Outcome listed = failure ? catalogueOutcome(*failure)
                             : Outcome::success(Texts::firmwareListed(listing.releases.size()));
    listed.cause = std::move(listing);
    return listed;
}
