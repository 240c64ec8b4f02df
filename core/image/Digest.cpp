#include "image/Digest.h"

#include <openssl/evp.h>

namespace image::detail {
namespace {

template <size_t N>
std::array<uint8_t, N> digest(const uint8_t* data, size_t size, const EVP_MD* type) {
    std::array<uint8_t, N> out{};
    unsigned int length = 0;
    EVP_Digest(data, size, out.data(), &length, type, nullptr);
    return out;
}

}  // namespace

std::array<uint8_t, 32> sha256(const uint8_t* data, size_t size) {
    return digest<32>(data, size, EVP_sha256());
}

std::array<uint8_t, 16> md5(const uint8_t* data, size_t size) {
    return digest<16>(data, size, EVP_md5());
}

}  // namespace image::detail
