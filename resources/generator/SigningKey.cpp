#include "SigningKey.h"

#include <openssl/evp.h>
#include <openssl/pem.h>

#include <stdexcept>

namespace devset {
namespace {

using Bio = std::unique_ptr<BIO, decltype(&BIO_free)>;

std::string contentOf(BIO* bio) {
    char* data = nullptr;
    const long length = BIO_get_mem_data(bio, &data);
    return std::string(data, static_cast<size_t>(length));
}

}  // namespace

SigningKey SigningKey::generate() {
    std::shared_ptr<EVP_PKEY> key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free);
    if (!key) {
        throw std::runtime_error("Ed25519 key generation failed");
    }
    return SigningKey(key);
}

std::optional<SigningKey> SigningKey::fromPrivatePem(std::string_view pem) {
    const Bio bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())), &BIO_free);
    std::shared_ptr<EVP_PKEY> key(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr),
                                  &EVP_PKEY_free);
    if (!key || EVP_PKEY_get_id(key.get()) != EVP_PKEY_ED25519) {
        return std::nullopt;
    }
    return SigningKey(key);
}

std::string SigningKey::privatePem() const {
    const Bio bio(BIO_new(BIO_s_mem()), &BIO_free);
    if (PEM_write_bio_PrivateKey(bio.get(), key_.get(), nullptr, nullptr, 0, nullptr, nullptr) !=
        1) {
        throw std::runtime_error("cannot encode the private key");
    }
    return contentOf(bio.get());
}

std::string SigningKey::publicPem() const {
    const Bio bio(BIO_new(BIO_s_mem()), &BIO_free);
    if (PEM_write_bio_PUBKEY(bio.get(), key_.get()) != 1) {
        throw std::runtime_error("cannot encode the public key");
    }
    return contentOf(bio.get());
}

std::string SigningKey::sign(std::string_view message) const {
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free);
    std::string signature(64, '\0');
    size_t length = signature.size();
    if (!context || EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, key_.get()) != 1 ||
        EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(signature.data()), &length,
                       reinterpret_cast<const unsigned char*>(message.data()),
                       message.size()) != 1) {
        throw std::runtime_error("signing failed");
    }
    signature.resize(length);
    return signature;
}

}  // namespace devset
