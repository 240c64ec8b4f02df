#include "image/EspImage.h"

#include <algorithm>
#include <functional>

#include "image/Digest.h"

namespace image {
namespace {

using detail::le16;
using detail::le32;

constexpr uint8_t kMagic = 0xE9;
constexpr size_t kHeaderSize = 24;
constexpr size_t kChipIdOffset = 12;
constexpr size_t kHashAppendedOffset = 23;
constexpr size_t kSegmentHeaderSize = 8;
constexpr size_t kMaxSegments = 16;
constexpr uint8_t kChecksumSeed = 0xEF;
constexpr size_t kHashSize = 32;

constexpr uint32_t kAppDescriptionMagic = 0xABCD5432;
constexpr size_t kAppDescriptionSize = 256;

std::string hexByte(uint8_t value) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    return {'0', 'x', kDigits[value >> 4], kDigits[value & 0xF]};
}

std::string fieldText(const uint8_t* field, size_t width) {
    const auto* end = std::find(field, field + width, uint8_t{0});
    std::string text(field, end);
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F) {
            c = '?';
        }
    }
    return text;
}

std::optional<AppDescription> readAppDescription(const uint8_t* data, const Segment& first) {
    if (first.size < kAppDescriptionSize) {
        return std::nullopt;
    }
    const uint8_t* record = data + first.dataOffset;
    if (le32(record) != kAppDescriptionMagic) {
        return std::nullopt;
    }
    AppDescription app;
    app.secureVersion = le32(record + 4);
    app.version = fieldText(record + 16, 32);
    app.projectName = fieldText(record + 48, 32);
    app.time = fieldText(record + 80, 16);
    app.date = fieldText(record + 96, 16);
    app.frameworkVersion = fieldText(record + 112, 32);
    return app;
}

// Fills the segment list; returns the offset right after the last segment, or
// none with `report.layoutFault` set.
std::optional<size_t> readSegments(const uint8_t* data, size_t size, ImageReport& report) {
    const size_t count = data[1];
    if (count == 0 || count > kMaxSegments) {
        report.layoutFault = "damaged: it declares " + std::to_string(count) + " segments (1 to " +
                             std::to_string(kMaxSegments) + " expected)";
        return std::nullopt;
    }
    size_t at = kHeaderSize;
    for (size_t index = 1; index <= count; ++index) {
        if (size - at < kSegmentHeaderSize) {
            report.layoutFault =
                "damaged: it ends inside the header of segment " + std::to_string(index);
            return std::nullopt;
        }
        const Segment segment{le32(data + at), at + kSegmentHeaderSize, le32(data + at + 4)};
        if (size - segment.dataOffset < segment.size) {
            report.layoutFault =
                "damaged: segment " + std::to_string(index) + " runs past the end of the file";
            return std::nullopt;
        }
        report.segments.push_back(segment);
        at = segment.dataOffset + segment.size;
    }
    return at;
}

uint8_t checksumOf(const uint8_t* data, const std::vector<Segment>& segments) {
    uint8_t checksum = kChecksumSeed;
    for (const Segment& segment : segments) {
        for (size_t i = 0; i < segment.size; ++i) {
            checksum ^= data[segment.dataOffset + i];
        }
    }
    return checksum;
}

}  // namespace

bool carriesDevelopmentMarker(const uint8_t* data, size_t size) {
    if (data == nullptr) {
        return false;
    }
    const std::boyer_moore_horspool_searcher searcher(kDevelopmentMarker.begin(),
                                                      kDevelopmentMarker.end());
    const char* text = reinterpret_cast<const char*>(data);
    return std::search(text, text + size, searcher) != text + size;
}

ImageReport inspectImage(const uint8_t* data, size_t size) {
    ImageReport report;
    report.size = size;
    report.fileSha256 = detail::sha256(data, data == nullptr ? 0 : size);
    if (size == 0 || data == nullptr) {
        report.layoutFault = "an empty file (0 bytes)";
        return report;
    }
    report.developmentMarker = carriesDevelopmentMarker(data, size);
    if (data[0] != kMagic) {
        report.layoutFault = "not a firmware image (first byte " + hexByte(data[0]) +
                             ", expected " + hexByte(kMagic) + ")";
        return report;
    }
    if (size < kHeaderSize) {
        report.layoutFault = "damaged: it ends inside its header";
        return report;
    }
    report.entryAddress = le32(data + 4);
    report.chipId = le16(data + kChipIdOffset);
    report.sha256Appended = data[kHashAppendedOffset] == 1;

    const auto segmentsEnd = readSegments(data, size, report);
    if (!segmentsEnd) {
        return report;
    }
    // The checksum takes the last byte of the 16-byte block the segments end in.
    const size_t checksumAt = *segmentsEnd | 15;
    if (checksumAt >= size) {
        report.layoutFault = "damaged: it ends before its checksum";
        return report;
    }
    const size_t hashedSize = checksumAt + 1;
    if (report.sha256Appended && size - hashedSize < kHashSize) {
        report.layoutFault = "damaged: it ends before its SHA-256";
        return report;
    }
    report.checksumMatches = checksumOf(data, report.segments) == data[checksumAt];
    report.sha256 = detail::sha256(data, hashedSize);
    report.sha256Matches =
        report.sha256Appended &&
        std::equal(report.sha256.begin(), report.sha256.end(), data + hashedSize);
    report.app = readAppDescription(data, report.segments.front());
    return report;
}

}  // namespace image
