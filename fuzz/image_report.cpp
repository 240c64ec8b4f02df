#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "image/FirmwareCheck.h"
#include "image/Partitions.h"

// Any file may be picked as firmware: reading it stays within its bytes, and an
// image taken as firmware opens with the image magic, names the ESP32-S3, has its
// description record and, unless development images are allowed, no marker.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto report = image::inspectImage(data, size);
    for (const auto& segment : report.segments) {
        if (segment.dataOffset > size || segment.size > size - segment.dataOffset) {
            std::abort();
        }
    }
    for (const bool allowDevelopment : {false, true}) {
        const auto refusal = image::firmwareRefusal(report, {std::nullopt, allowDevelopment});
        if (!refusal && (data[0] != 0xE9 || report.chipId != image::kChipIdEsp32S3 || !report.app ||
                         (report.developmentMarker && !allowDevelopment))) {
            std::abort();
        }
    }
    const auto table = image::inspectPartitionTable(data, size);
    if (table.entries.size() * 32 > size) {
        std::abort();
    }
    return 0;
}
