#pragma once

#include <QString>
#include <optional>
#include <variant>

#include "app/FirmwareCheck.h"
#include "app/Outcome.h"
#include "app/ResourceBundle.h"
#include "app/catalogue/CatalogueClient.h"

/// The catalogue client a program may use: for the source the owner named
/// (`named`: --catalogue, the window's File > "Firmware Catalogue…"), else for the
/// address in `catalogue-url` of `resources`; none when neither names one, so that
/// nothing is ever fetched. The key is catalogue.pub of `resources`, the
/// development key only where `developmentKey` accepts it. Any thread.
std::optional<std::variant<CatalogueClient, CatalogueFailure>> catalogueClientFor(
    const ResourceBundle& resources, const std::optional<QString>& named,
    DevelopmentImages developmentKey, const CatalogueClientOptions& options = {});

/// The outcome of `failure`, which travels as its cause: a release the catalogue
/// refuses (not listed, revoked, an image larger than declared or not matching
/// its SHA-256) is `refused`, like any image refused before it is sent; every
/// other problem leaves the catalogue unusable (`catalogueUnusable`).
Outcome catalogueOutcome(const CatalogueFailure& failure);
