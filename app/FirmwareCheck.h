#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>

#include "app/Outcome.h"
#include "app/ResourceBundle.h"
#include "image/EspImage.h"

/// Whether firmware images that carry the development marker may be written.
/// Only where every device is simulated are they accepted.
enum class DevelopmentImages { refuse, accept };

/// The inspector's report of an image held in memory. Any thread.
image::ImageReport inspectFirmware(const QByteArray& firmware);

/// Bytes of the application partition at 0x10000 in the partition table of
/// `resources`; none when it has no table or the table no such partition.
std::optional<uint64_t> applicationPartitionSize(const ResourceBundle& resources);

/// Why the image of `report` must not be written here, checked against the
/// application partition of `resources` and `developmentImages`, in words that
/// read after "cannot be used: "; none when it may be. Any thread.
std::optional<QString> firmwareRefusal(const image::ImageReport& report,
                                       const ResourceBundle& resources,
                                       DevelopmentImages developmentImages);

/// Where development images are refused and the image `name` (.bin) of
/// `resources` is one, the user message "Bundled NAME.bin refused: a development
/// image, not firmware"; none otherwise. Any thread.
std::optional<QString> bundledImageRefusal(const ResourceBundle& resources, const QString& name,
                                           DevelopmentImages developmentImages);

/// `bundledImageRefusal` of the first boot or stub image that is refused.
std::optional<QString> bundledImagesRefusal(const ResourceBundle& resources,
                                            DevelopmentImages developmentImages);

/// Checks `firmware`, then the other images with `bundledImagesRefusal`. The
/// user message of a refusal ("Firmware image refused: REASON", "Bundled
/// NAME.bin refused: ..."), or none. Any thread.
std::optional<QString> imagesRefusal(const QByteArray& firmware, const ResourceBundle& resources,
                                     DevelopmentImages developmentImages);

/// "Firmware image: version V, project P, built D T" for an accepted image.
QString describeFirmware(const image::AppDescription& app);

/// What checking a firmware file on disk found, as the firmware job will check it.
struct FirmwareFileCheck {
    /// Refused with "NAME cannot be used: REASON"; else a success whose message
    /// describes the image ("Firmware image: version V, project P, built D T").
    Outcome outcome;
    /// What the inspector found, once the file could be read.
    std::optional<image::ImageReport> report;
};

/// Checks the firmware image at `path`: an ESP32-S3 application whose checksum and
/// SHA-256 match, that fits the application partition of `resources`' partition
/// table, and that carries no development marker where development images are
/// refused. Needs no machine; quick enough for the GUI thread.
FirmwareFileCheck checkFirmwareFile(const QString& path, const ResourceBundle& resources,
                                    DevelopmentImages developmentImages);
