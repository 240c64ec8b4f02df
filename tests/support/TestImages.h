#pragma once

#include <openssl/sha.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "api/Jobs.h"

/// Images shared by the core test areas. Header-only, stateless.
namespace testimg {

/// Bytes that vary with the position and a seed, so regions and blocks differ.
inline std::vector<uint8_t> pattern(size_t size, uint8_t seed = 0) {
    std::vector<uint8_t> bytes(size);
    for (size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<uint8_t>(seed + i * 31 + i / 509);
    }
    return bytes;
}

/// Little-endian words, as every command payload is laid out.
inline std::vector<uint8_t> words(std::initializer_list<uint32_t> values) {
    std::vector<uint8_t> out;
    for (uint32_t v : values) {
        out.insert(out.end(), {static_cast<uint8_t>(v), static_cast<uint8_t>(v >> 8),
                               static_cast<uint8_t>(v >> 16), static_cast<uint8_t>(v >> 24)});
    }
    return out;
}

/// A stub image: the five header words (text at 0x40380000, data at 0x3FC90000,
/// entry 0x40380004), then `textSize + dataSize` bytes of body.
inline std::vector<uint8_t> stubImage(uint32_t textSize = 100, uint32_t dataSize = 20) {
    std::vector<uint8_t> image = words({0x40380000u, textSize, 0x3FC90000u, dataSize, 0x40380004u});
    const auto body = pattern(textSize + dataSize, 0x5A);
    image.insert(image.end(), body.begin(), body.end());
    return image;
}

/// An application-only request over borrowed images, with no boot-app image.
inline esp::FlashRequest flashRequest(const std::vector<uint8_t>& firmware,
                                      const std::vector<uint8_t>& bootloader,
                                      const std::vector<uint8_t>& partitions,
                                      const std::vector<uint8_t>& stub) {
    return {.firmware = firmware.data(),
            .firmwareLen = firmware.size(),
            .bootloader = bootloader.data(),
            .bootloaderLen = bootloader.size(),
            .partitions = partitions.data(),
            .partitionsLen = partitions.size(),
            .stub = stub.data(),
            .stubLen = stub.size()};
}

/// The text that marks every image of the development set.
inline constexpr std::string_view kMarker = "TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE";

/// `app`, an application image that ends in its appended SHA-256, with `text`
/// written at each of `offsets` (inside its segments), and its checksum byte (the
/// one before the SHA-256) and SHA-256 made to match again.
inline std::vector<uint8_t> withText(std::vector<uint8_t> app, const std::vector<size_t>& offsets,
                                     std::string_view text) {
    uint8_t& checksum = app[app.size() - 33];
    for (const size_t at : offsets) {
        for (size_t i = 0; i < text.size(); ++i) {
            checksum ^= app[at + i] ^ static_cast<uint8_t>(text[i]);
            app[at + i] = static_cast<uint8_t>(text[i]);
        }
    }
    SHA256(app.data(), app.size() - 32, app.data() + app.size() - 32);
    return app;
}

/// `app` with every development marker overwritten by other text of its length.
inline std::vector<uint8_t> unmarked(const std::vector<uint8_t>& app) {
    std::vector<size_t> offsets;
    for (auto at = app.begin();
         (at = std::search(at, app.end(), kMarker.begin(), kMarker.end())) != app.end(); ++at) {
        offsets.push_back(static_cast<size_t>(at - app.begin()));
    }
    return withText(app, offsets, "TESKAL TEST APPLICATION - NOT FIRMWARE!");
}

}  // namespace testimg
