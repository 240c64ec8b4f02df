#pragma once

#include "Bytes.h"

/// The images of the development resource set: valid in format, carrying the
/// marker, never real firmware.
namespace devset {

/// Version text of the development application; never that of a shipped firmware.
inline constexpr std::string_view kAppVersion = "0.0.0-devset";
inline constexpr std::string_view kProjectName = "teskal-devset";

/// 3072-byte table: nvs, otadata at 0xE000, app0 at 0x10000, app1, spiffs, then
/// the MD5 entry over the entries before it, padded with 0xFF.
Bytes partitionTable();
/// 8 KiB of 0xFF: empty OTA selection data.
Bytes bootApp();
/// A small second-stage bootloader image (two RAM segments).
Bytes bootloader();
/// An application image of about 1.5 MB with its app descriptor at offset 32,
/// reporting `version`.
Bytes application(std::string_view version = kAppVersion);
/// A flasher stub: 20-byte header, about 16 KB of text at 0x40380000, a few KB
/// of data at 0x3FC96000.
Bytes stub();

}  // namespace devset
