#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

#include "app/FirmwareCheck.h"
#include "app/Outcome.h"
#include "app/ResourceBundle.h"
#include "app/catalogue/CatalogueClient.h"
#include "app/operations/Operation.h"

/// A release of a firmware catalogue, chosen by its version, to be written in
/// place of the bundled firmware. A plain value.
struct CatalogueRelease {
    /// The catalogue the owner named; none: the one `catalogue-url` of the
    /// resources names.
    std::optional<QString> catalogue;
    QString version;          ///< as the catalogue lists it
    bool allowOlder = false;  ///< it may be older than the firmware the machine runs
    CatalogueClientOptions client;
};

/// The image of `release`: the catalogue is fetched and trusted (signature,
/// content, not older than one accepted), the release found (listed, not revoked),
/// its image fetched (from the cache when it holds it) to its declared size and its
/// SHA-256 checked; see `CatalogueClient`. Logs where it fetches from, and that
/// the catalogue is the cached one when its source could not be reached; reports
/// the download's progress as the stage "Downloading". Otherwise the outcome that
/// refuses it (`catalogueOutcome`). Blocks; call it on an operation's worker.
std::variant<QByteArray, Outcome> fetchRelease(const CatalogueRelease& release,
                                               const ResourceBundle& resources,
                                               DevelopmentImages developmentKey,
                                               const OperationSink& sink);

/// Refuses `release` when it is older than `running`, the version the machine
/// answered, unless it is allowed; the outcome is `refused` and carries
/// `OlderRelease`. None also when the machine did not answer.
std::optional<Outcome> olderRefusal(const CatalogueRelease& release,
                                    const std::optional<QString>& running,
                                    Texts::Audience audience);
