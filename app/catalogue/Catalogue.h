#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

#include "app/catalogue/CatalogueFailure.h"

/// Whom a release is meant for: every owner, or those who asked for betas.
enum class FirmwareChannel { stable, beta };

/// A release's image as the catalogue declares it.
struct CatalogueImage {
    QString url;      ///< relative to the catalogue's own address
    qint64 size = 0;  ///< bytes, 1 to Catalogue::kMaxImageSize
    QString sha256;   ///< lower-case hexadecimal

    friend bool operator==(const CatalogueImage&, const CatalogueImage&) = default;
};

/// One release of the catalogue.
struct CatalogueEntry {
    QString version;  ///< as listed; see FirmwareVersion
    FirmwareChannel channel = FirmwareChannel::stable;
    QDate date;     ///< of the release
    QString notes;  ///< plain text
    CatalogueImage image;

    friend bool operator==(const CatalogueEntry&, const CatalogueEntry&) = default;
};

/// A firmware catalogue (catalogue.json, schema 1), as `parseCatalogue` reads it.
/// Revoked versions are not among its entries, so nothing taken from it offers or
/// installs them. A plain value.
struct Catalogue {
    static constexpr int kSchema = 1;
    static constexpr qint64 kMaxFileSize = 1 << 20;    ///< bytes of catalogue.json
    static constexpr qint64 kMaxImageSize = 16 << 20;  ///< bytes of one image

    QDateTime published;  ///< UTC
    QStringList revoked;  ///< versions withdrawn by the publisher
    QList<CatalogueEntry> entries;

    /// The releases to offer, newest first; beta ones only when `beta`.
    QList<CatalogueEntry> offered(bool beta) const;

    /// The newest stable release when it is newer than `version` (the bundled
    /// firmware's, for instance); none otherwise.
    std::optional<CatalogueEntry> newerStableThan(const QString& version) const;

    /// The release of `version` (with or without a leading "v"), or why there is
    /// none: `revoked` or `notListed`, with its sentence.
    std::variant<CatalogueEntry, CatalogueFailure> find(const QString& version) const;

    /// Whether the publisher withdrew `version`.
    bool isRevoked(const QString& version) const;

    friend bool operator==(const Catalogue&, const Catalogue&) = default;
};

/// The catalogue held by `bytes`, or what is wrong with it in words that read
/// after "cannot be used: " (Texts::catalogueMalformed). Strict: every field of
/// schema 1 must be there with its type and nothing else; `published` must be
/// UTC; versions must read as versions and appear once; an image's `url` must
/// be relative without a host of its own.
std::variant<Catalogue, QString> parseCatalogue(const QByteArray& bytes);
