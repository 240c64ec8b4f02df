#pragma once

#include <cstdint>
#include <vector>

#include "Bytes.h"

/// The application-image format the ESP32-S3's boot ROM and second-stage
/// bootloader load: a 24-byte header, segments, a checksum byte and an
/// appended SHA-256.
namespace devset {

struct Segment {
    uint32_t loadAddress;
    Bytes data;  // padded to a multiple of 4 when the image is built
};

/// An image for chip id 9 (ESP32-S3), DIO flash, 4 MB at 80 MHz, with the
/// SHA-256 of everything before it appended.
Bytes buildEspImage(uint32_t entry, std::vector<Segment> segments);

}  // namespace devset
