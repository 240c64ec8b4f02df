#pragma once

#include <QString>

/// Why a firmware catalogue, or a release from it, cannot be used. Each step of
/// fetching and trusting a catalogue refuses with a problem of its own.
enum class CatalogueProblem {
    sourceUnsupported,  ///< the address is neither http(s), a file nor a folder
    keyMissing,         ///< the resources hold no catalogue.pub
    keyUnusable,        ///< catalogue.pub is no Ed25519 key, or a development key where refused
    unreachable,        ///< the catalogue or its signature could not be fetched
    timedOut,           ///< the catalogue did not arrive in time
    tooLarge,           ///< the catalogue file is larger than a catalogue may be
    badSignature,       ///< the signature is not the key's over the file's exact bytes
    malformed,          ///< a signed file that is not a catalogue of the known schema
    replayed,           ///< published before the newest catalogue accepted for the key
    notListed,          ///< the catalogue lists no such version
    revoked,            ///< the catalogue withdraws the version
    imageUnreachable,   ///< the image could not be fetched
    imageStalled,       ///< the image download stopped sending bytes
    imageOversize,      ///< the image is larger than the catalogue declares
    imageTruncated,     ///< the image ended before its declared size
    imageTampered,      ///< the image's SHA-256 is not the declared one
};

/// A refusal: the problem as data and the owner-facing sentence that names the
/// cause and the next step. A plain value.
struct CatalogueFailure {
    CatalogueProblem problem = CatalogueProblem::unreachable;
    QString message;

    friend bool operator==(const CatalogueFailure&, const CatalogueFailure&) = default;
};
