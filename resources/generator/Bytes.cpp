#include "Bytes.h"

#include <openssl/evp.h>

#include <algorithm>
#include <stdexcept>

namespace devset {

void appendLE32(Bytes& out, uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<uint8_t>(value >> shift));
    }
}

void appendLE16(Bytes& out, uint16_t value) {
    out.push_back(static_cast<uint8_t>(value));
    out.push_back(static_cast<uint8_t>(value >> 8));
}

void appendField(Bytes& out, std::string_view text, size_t width) {
    const size_t used = std::min(text.size(), width);
    out.insert(out.end(), text.begin(), text.begin() + static_cast<std::ptrdiff_t>(used));
    out.insert(out.end(), width - used, 0);
}

Bytes filler(size_t count, uint32_t seed) {
    Bytes out(count);
    uint32_t state = seed == 0 ? 0x9E3779B9u : seed;
    for (auto& byte : out) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        byte = static_cast<uint8_t>(state);
    }
    return out;
}

Bytes markerText(size_t size) {
    Bytes out;
    out.reserve(size);
    while (out.size() < size) {
        out.insert(out.end(), kMarker.begin(), kMarker.end());
        out.push_back('\n');
    }
    out.resize(size);
    return out;
}

namespace {

Bytes digest(const Bytes& data, const EVP_MD* type) {
    Bytes out(static_cast<size_t>(EVP_MD_get_size(type)));
    unsigned int length = 0;
    if (EVP_Digest(data.data(), data.size(), out.data(), &length, type, nullptr) != 1) {
        throw std::runtime_error("digest failed");
    }
    out.resize(length);
    return out;
}

}  // namespace

Bytes md5(const Bytes& data) {
    return digest(data, EVP_md5());
}
Bytes sha256(const Bytes& data) {
    return digest(data, EVP_sha256());
}

}  // namespace devset
