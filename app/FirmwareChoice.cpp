#include "app/FirmwareChoice.h"

#include "app/BuildConfig.h"
#include "app/Texts.h"
#include "app/catalogue/CatalogueSource.h"
#include "app/operations/ListFirmware.h"

FirmwareChoice::FirmwareChoice(ResourceBundle resources, DevelopmentImages developmentKey,
                               QObject* parent)
    : QObject(parent), resources_(std::move(resources)), developmentKey_(developmentKey) {
    FirmwareRelease bundled;
    bundled.version = BuildConfig::firmwareVersion();
    listing_ = Outcome::success(Texts::firmwareListed(1));
    listing_.cause = FirmwareListing{{bundled}, std::nullopt, std::nullopt};
    connect(&reader_, &OperationRunner::finished, this, [this](const Outcome& outcome) {
        listing_ = outcome;
        emit listed(listing_);
    });
}

void FirmwareChoice::setCatalogue(const QString& text) {
    catalogue_ = text;
    choose(std::nullopt);
    refresh();
}

void FirmwareChoice::refresh() {
    ListFirmware::Options options;
    options.catalogue = catalogue_;
    options.beta = true;
    options.developmentKey = developmentKey_;
    reader_.start(std::make_shared<ListFirmware>(resources_, options));
}

bool FirmwareChoice::hasCatalogue() const {
    return catalogue_ || CatalogueSource::configuredIn(resources_);
}

void FirmwareChoice::choose(const std::optional<QString>& version) {
    if (chosen_ != version) {
        chosen_ = version;
        emit chosenChanged();
    }
}

std::optional<CatalogueRelease> FirmwareChoice::release(bool allowOlder) const {
    if (!chosen_) {
        return std::nullopt;
    }
    CatalogueRelease release;
    release.catalogue = catalogue_;
    release.version = *chosen_;
    release.allowOlder = allowOlder;
    return release;
}
