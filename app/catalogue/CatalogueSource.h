#pragma once

#include <QString>
#include <QUrl>
#include <optional>
#include <variant>

#include "app/ResourceBundle.h"
#include "app/catalogue/CatalogueFailure.h"

/// Where a firmware catalogue is read from: an http or https address, a
/// catalogue.json file, or a folder that holds catalogue.json (for instance on a
/// USB stick, to work offline). The signature is always beside the catalogue, at
/// its address with ".sig" appended. A plain value; any thread.
class CatalogueSource {
  public:
    enum class Kind { url, file, folder };

    /// The optional one-line file of the resources that names the catalogue's address.
    static constexpr const char* kConfigFile = "catalogue-url";
    static constexpr const char* kCatalogueName = "catalogue.json";
    static constexpr const char* kSignatureSuffix = ".sig";

    /// The source `text` names: an http(s) address (one that ends in "/" names the
    /// folder of catalogue.json), a folder, or else a catalogue file (a relative
    /// path is taken from the current folder). Any other scheme is refused.
    static std::variant<CatalogueSource, CatalogueFailure> fromText(const QString& text);

    /// The address in `catalogue-url` of `resources`; none when the file is absent
    /// or blank, so that nothing is ever fetched. Only http(s) is accepted there.
    static std::optional<std::variant<CatalogueSource, CatalogueFailure>> configuredIn(
        const ResourceBundle& resources);

    Kind kind() const { return kind_; }
    /// The address of catalogue.json: http(s), or a local file.
    const QUrl& catalogueUrl() const { return catalogue_; }
    /// The address of its signature, catalogue.json.sig.
    QUrl signatureUrl() const;
    /// The address as texts show it: the URL, or the local path.
    QString address() const;

  private:
    CatalogueSource(Kind kind, QUrl catalogue) : kind_(kind), catalogue_(std::move(catalogue)) {}

    Kind kind_;
    QUrl catalogue_;
};

/// `url` as texts show it: a local file's path, else the address without a password.
QString displayAddress(const QUrl& url);
