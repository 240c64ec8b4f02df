#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct evp_pkey_st;

/// Ed25519 keys that sign firmware catalogues: the build's development key, and
/// the keys tests make. The private half stays in the build tree; nothing here is
/// ever installed.
namespace devset {

class SigningKey {
  public:
    /// A new random key pair.
    static SigningKey generate();
    /// The key pair of a PEM private key; none for anything else.
    static std::optional<SigningKey> fromPrivatePem(std::string_view pem);

    std::string privatePem() const;
    /// The public half as a PEM block (SubjectPublicKeyInfo).
    std::string publicPem() const;
    /// The 64-byte Ed25519 signature of exactly `message`.
    std::string sign(std::string_view message) const;

  private:
    explicit SigningKey(std::shared_ptr<evp_pkey_st> key) : key_(std::move(key)) {}

    std::shared_ptr<evp_pkey_st> key_;
};

}  // namespace devset
