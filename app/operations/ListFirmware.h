#pragma once

#include <QString>
#include <optional>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/catalogue/CatalogueClient.h"
#include "app/operations/Operation.h"

/// Lists the firmware versions that may be installed: the bundled one first, then
/// the firmware catalogue's (when one is named or configured), newest first,
/// betas only when asked for; revoked ones never. Opens no port.
class ListFirmware : public Operation {
  public:
    struct Options {
        /// The catalogue the owner named; none: `catalogue-url` of the resources, if any.
        std::optional<QString> catalogue;
        bool beta = false;  ///< list the beta channel too
        DevelopmentImages developmentKey = DevelopmentImages::refuse;
        CatalogueClientOptions client;
    };

    ListFirmware(ResourceBundle resources, Options options);

    /// Logs one line per version (version, channel, date, source, notes) and, for a
    /// catalogue shown from the cache because its source could not be reached, a
    /// line that says so with its date. Succeeds with a `FirmwareListing`; a
    /// catalogue that cannot be used ends `catalogueUnusable` with its reason as
    /// the message, still listing the bundled version.
    Outcome run(const OperationSink& sink) override;

  private:
    ResourceBundle resources_;
    Options options_;
};
