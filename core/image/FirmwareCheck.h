#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "image/EspImage.h"

/// Whether an image may be written as this machine's application firmware.
namespace image {

/// What the image is checked against besides its own format.
struct FirmwareRules {
    /// Bytes the application partition at 0x10000 holds; none: no known limit.
    std::optional<uint64_t> partitionSize;
    /// Whether an image carrying the development marker may be written (only
    /// where every device is simulated).
    bool allowDevelopment = false;
};

/// Why the image of `report` must not be written, in plain words that read
/// after "cannot be used: "; none when it may be. A refused image is: empty, not
/// an image, cut off, built for another chip, damaged (checksum or SHA-256), not
/// an application, larger than the partition, or a development image.
std::optional<std::string> firmwareRefusal(const ImageReport& report, const FirmwareRules& rules);

/// "ESP32-S3" for id 9, and the names of the other chips the format knows; none
/// for an id it does not.
std::optional<std::string> chipName(uint16_t chipId);

/// `value` in decimal with a comma between groups of three digits ("4,194,304").
std::string withThousands(uint64_t value);

}  // namespace image
