#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>

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

/// Checks `firmware` and, where development images are refused, that no other
/// image of `resources` is one. The user message of a refusal ("Firmware image
/// refused: REASON", "Bundled NAME.bin refused: ..."), or none. Any thread.
std::optional<QString> imagesRefusal(const QByteArray& firmware, const ResourceBundle& resources,
                                     DevelopmentImages developmentImages);

/// "Firmware image: version V, project P, built D T" for an accepted image.
QString describeFirmware(const image::AppDescription& app);
