#include "image/FirmwareCheck.h"

#include <cstddef>

namespace image {

std::optional<std::string> chipName(uint16_t chipId) {
    switch (chipId) {
        case 0:
            return "ESP32";
        case 2:
            return "ESP32-S2";
        case 5:
            return "ESP32-C3";
        case 9:
            return "ESP32-S3";
        case 12:
            return "ESP32-C2";
        case 13:
            return "ESP32-C6";
        case 16:
            return "ESP32-H2";
        case 18:
            return "ESP32-P4";
        default:
            return std::nullopt;
    }
}

std::string withThousands(uint64_t value) {
    std::string digits = std::to_string(value);
    for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3) {
        digits.insert(static_cast<size_t>(at), 1, ',');
    }
    return digits;
}

std::optional<std::string> firmwareRefusal(const ImageReport& report, const FirmwareRules& rules) {
    if (!report.layoutFault.empty()) {
        return report.layoutFault;
    }
    if (report.chipId != kChipIdEsp32S3) {
        const auto name = chipName(report.chipId);
        return "built for another chip (chip id " + std::to_string(report.chipId) +
               (name ? ", " + *name : std::string()) + "; this machine is an ESP32-S3)";
    }
    if (!report.checksumMatches) {
        return "damaged: its checksum does not match";
    }
    if (report.sha256Appended && !report.sha256Matches) {
        return "damaged: its SHA-256 does not match";
    }
    if (!report.app) {
        return "not an application image (it has no application description)";
    }
    if (rules.partitionSize && report.size > *rules.partitionSize) {
        return "too large for the application partition (" + withThousands(report.size) +
               " bytes; the partition holds " + withThousands(*rules.partitionSize) + ")";
    }
    if (report.developmentMarker && !rules.allowDevelopment) {
        return "a development image, not firmware";
    }
    return std::nullopt;
}

}  // namespace image
