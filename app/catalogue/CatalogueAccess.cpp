#include "app/catalogue/CatalogueAccess.h"

std::optional<std::variant<CatalogueClient, CatalogueFailure>> catalogueClientFor(
    const ResourceBundle& resources, const std::optional<QString>& named,
    DevelopmentImages developmentKey, const CatalogueClientOptions& options) {
    auto source = named ? std::optional(CatalogueSource::fromText(*named))
                        : CatalogueSource::configuredIn(resources);
    if (!source) {
        return std::nullopt;
    }
    if (const auto* failure = std::get_if<CatalogueFailure>(&*source)) {
        return *failure;
    }
    auto key = CatalogueKey::fromResources(resources, developmentKey);
    if (const auto* failure = std::get_if<CatalogueFailure>(&key)) {
        return *failure;
    }
    return CatalogueClient(std::get<CatalogueSource>(*source), std::get<CatalogueKey>(key),
                           options);
}

Outcome catalogueOutcome(const CatalogueFailure& failure) {
    using Problem = CatalogueProblem;
    const bool releaseRefused =
        failure.problem == Problem::notListed || failure.problem == Problem::revoked ||
        failure.problem == Problem::imageOversize || failure.problem == Problem::imageTampered;
    Outcome outcome =
        Outcome::make(releaseRefused ? Outcome::Kind::refused : Outcome::Kind::catalogueUnusable,
                      failure.message);
    outcome.cause = failure;
    return outcome;
}
