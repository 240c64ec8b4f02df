#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <variant>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/catalogue/CatalogueFailure.h"

struct evp_pkey_st;

/// The public key a firmware catalogue must be signed with: an Ed25519 key from a
/// PEM file, "catalogue.pub" in the resources. A value sharing one immutable key;
/// any thread.
class CatalogueKey {
  public:
    static constexpr const char* kFileName = "catalogue.pub";
    /// A line that the development key's file carries before its PEM block (PEM
    /// readers skip it), so that staging and the real programs can tell that key.
    static constexpr const char* kDevelopmentMarker = "TESKAL DEVELOPMENT KEY - NOT FOR RELEASES";
    static constexpr int kSignatureSize = 64;  ///< bytes of an Ed25519 signature

    /// The Ed25519 public key in `pem`; none for anything else.
    static std::optional<CatalogueKey> fromPem(const QByteArray& pem);

    /// catalogue.pub of `resources`. Refused when missing, when it holds no Ed25519
    /// key, and when it is the development key unless `developmentKey` accepts it.
    static std::variant<CatalogueKey, CatalogueFailure> fromResources(
        const ResourceBundle& resources, DevelopmentImages developmentKey);

    /// The key's name in what is remembered about it: the SHA-256 of its DER
    /// encoding (SubjectPublicKeyInfo), lower-case hexadecimal.
    const QString& id() const { return id_; }

    /// Whether `signature` (64 raw bytes) is this key's signature of exactly `message`.
    bool verifies(const QByteArray& message, const QByteArray& signature) const;

  private:
    CatalogueKey(std::shared_ptr<evp_pkey_st> key, QString id);

    std::shared_ptr<evp_pkey_st> key_;
    QString id_;
};

/// The SHA-256 of `bytes`, lower-case hexadecimal. Any thread.
QString sha256Hex(const QByteArray& bytes);
