#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reading of the ESP32 application image format: a 24-byte header whose
/// extended part carries the chip id and whether a SHA-256 is appended, up to
/// 16 segments (an 8-byte header each), a checksum byte in the last byte of the
/// 16-byte block after them, and the optional SHA-256 of everything before it.
/// An application's first segment opens with its description record.
namespace image {

inline constexpr uint16_t kChipIdEsp32S3 = 9;

/// The text every image of the development set carries and no firmware does.
inline constexpr std::string_view kDevelopmentMarker = "TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE";

struct Segment {
    uint32_t loadAddress = 0;
    size_t dataOffset = 0;  ///< file offset of its data, after its 8-byte header
    uint32_t size = 0;
};

/// The application description record. Texts end at their first NUL; control
/// characters in them read as '?'.
struct AppDescription {
    uint32_t secureVersion = 0;
    std::string version;
    std::string projectName;
    std::string time;  ///< build time, as the build wrote it ("12:34:56")
    std::string date;  ///< build date, as the build wrote it ("Jan  1 2000")
    std::string frameworkVersion;
};

/// What an image holds, read as far as its layout allows.
struct ImageReport {
    size_t size = 0;  ///< bytes in the file
    /// Of the whole file, as a checksum listing shows it.
    std::array<uint8_t, 32> fileSha256{};
    /// The first fault of the layout in plain words: empty file, wrong first
    /// byte, or a header, segment, checksum or hash that is cut off. Empty when
    /// all of them lie within the file; only then are the fields below complete.
    std::string layoutFault;
    uint16_t chipId = 0;
    uint32_t entryAddress = 0;
    std::vector<Segment> segments;
    bool checksumMatches = false;
    bool sha256Appended = false;
    bool sha256Matches = false;  ///< false when none is appended
    /// Of the image up to its checksum byte: what an appended SHA-256 must be.
    std::array<uint8_t, 32> sha256{};
    /// None when the first segment does not open with a description record.
    std::optional<AppDescription> app;
    bool developmentMarker = false;  ///< the marker text anywhere in the file
};

/// Reads the borrowed bytes; never fails, the report says what it found.
/// Thread-safe.
ImageReport inspectImage(const uint8_t* data, size_t size);

/// True when `kDevelopmentMarker` stands anywhere in the borrowed bytes. Thread-safe.
bool carriesDevelopmentMarker(const uint8_t* data, size_t size);

}  // namespace image
