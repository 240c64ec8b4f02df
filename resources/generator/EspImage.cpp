#include "EspImage.h"

namespace devset {
namespace {

constexpr uint8_t kMagic = 0xE9;
constexpr uint8_t kSpiModeDio = 2;
constexpr uint8_t kFlash4MB80MHz = 0x2F;
constexpr uint8_t kWriteProtectDisabled = 0xEE;
constexpr uint16_t kChipIdEsp32S3 = 9;
constexpr uint16_t kMaxChipRevision = 99;
constexpr uint8_t kChecksumSeed = 0xEF;

void appendHeader(Bytes& out, uint32_t entry, size_t segmentCount) {
    out.push_back(kMagic);
    out.push_back(static_cast<uint8_t>(segmentCount));
    out.push_back(kSpiModeDio);
    out.push_back(kFlash4MB80MHz);
    appendLE32(out, entry);
    out.push_back(kWriteProtectDisabled);
    out.insert(out.end(), 3, 0);  // SPI pin drive strengths: defaults
    appendLE16(out, kChipIdEsp32S3);
    out.push_back(0);  // minimum revision, old field
    appendLE16(out, 0);
    appendLE16(out, kMaxChipRevision);
    out.insert(out.end(), 4, 0);
    out.push_back(1);  // SHA-256 appended
}

}  // namespace

Bytes buildEspImage(uint32_t entry, std::vector<Segment> segments) {
    Bytes image;
    appendHeader(image, entry, segments.size());
    uint8_t checksum = kChecksumSeed;
    for (auto& segment : segments) {
        segment.data.resize((segment.data.size() + 3) / 4 * 4, 0);
        appendLE32(image, segment.loadAddress);
        appendLE32(image, static_cast<uint32_t>(segment.data.size()));
        image.insert(image.end(), segment.data.begin(), segment.data.end());
        for (uint8_t byte : segment.data) {
            checksum ^= byte;
        }
    }
    // The checksum byte sits in the last byte of a 16-byte aligned block.
    while ((image.size() + 1) % 16 != 0) {
        image.push_back(0);
    }
    image.push_back(checksum);
    const Bytes hash = sha256(image);
    image.insert(image.end(), hash.begin(), hash.end());
    return image;
}

}  // namespace devset
