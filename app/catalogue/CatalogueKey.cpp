#include "app/catalogue/CatalogueKey.h"

#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <QDir>

#include "app/texts/CatalogueTexts.h"

namespace {

const unsigned char* bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

std::shared_ptr<EVP_PKEY> readPublicKey(const QByteArray& pem) {
    const std::unique_ptr<BIO, decltype(&BIO_free)> bio(
        BIO_new_mem_buf(pem.constData(), static_cast<int>(pem.size())), &BIO_free);
    std::shared_ptr<EVP_PKEY> key(
        bio ? PEM_read_bio_PUBKEY(bio.get(), nullptr, nullptr, nullptr) : nullptr, &EVP_PKEY_free);
    // A refused file leaves its parse errors on this thread's queue, where they would
    // be blamed on the next OpenSSL call.
    ERR_clear_error();
    return key;
}

}  // namespace

QString sha256Hex(const QByteArray& bytes) {
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(bytes.constData(), static_cast<size_t>(bytes.size()), digest, &length, EVP_sha256(),
               nullptr);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest), static_cast<qsizetype>(length)).toHex());
}

CatalogueKey::CatalogueKey(std::shared_ptr<evp_pkey_st> key, QString id)
    : key_(std::move(key)), id_(std::move(id)) {}

std::optional<CatalogueKey> CatalogueKey::fromPem(const QByteArray& pem) {
    const std::shared_ptr<EVP_PKEY> key = readPublicKey(pem);
    if (!key || EVP_PKEY_get_id(key.get()) != EVP_PKEY_ED25519) {
        return std::nullopt;
    }
    unsigned char* der = nullptr;
    const int length = i2d_PUBKEY(key.get(), &der);
    if (length <= 0) {
        return std::nullopt;
    }
    const QString id = sha256Hex(QByteArray(reinterpret_cast<const char*>(der), length));
    OPENSSL_free(der);
    return CatalogueKey(key, id);
}

std::variant<CatalogueKey, CatalogueFailure> CatalogueKey::fromResources(
    const ResourceBundle& resources, DevelopmentImages developmentKey) {
    const QString path = QDir(resources.root()).filePath(QLatin1String(kFileName));
    const auto [base, extension] = splitResourceName(QLatin1String(kFileName));
    const auto pem = resources.read(base, extension);
    if (!pem) {
        return CatalogueFailure{CatalogueProblem::keyMissing, Texts::catalogueKeyMissing(path)};
    }
    if (developmentKey == DevelopmentImages::refuse && pem->contains(kDevelopmentMarker)) {
        return CatalogueFailure{CatalogueProblem::keyUnusable,
                                Texts::catalogueKeyDevelopment(path)};
    }
    auto key = fromPem(*pem);
    if (!key) {
        return CatalogueFailure{CatalogueProblem::keyUnusable, Texts::catalogueKeyUnusable(path)};
    }
    return std::move(*key);
}

bool CatalogueKey::verifies(const QByteArray& message, const QByteArray& signature) const {
    if (signature.size() != kSignatureSize) {
        return false;
    }
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free);
    const bool valid =
        context &&
        EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key_.get()) == 1 &&
        EVP_DigestVerify(context.get(), bytesOf(signature), kSignatureSize, bytesOf(message),
                         static_cast<size_t>(message.size())) == 1;
    ERR_clear_error();
    return valid;
}
