#pragma once

#include <QString>
#include <QtGlobal>

/// Files on this computer: firmware images and configurations checked before they
/// are used, the inspection report, the saved log. Pure functions; any thread.
namespace Texts {

// Checking a firmware image before it is written.
QString cannotBeUsed(const QString& fileName, const QString& reason);
QString couldNotBeRead(const QString& reason);     ///< "it could not be read (REASON)"
QString imageRefused(const QString& reason);       ///< "Firmware image refused: REASON"
QString shippedImageRefused(const QString& name);  ///< "Bundled NAME.bin refused: …"
QString imageDescription(const QString& version, const QString& project, const QString& built);

// Checking a configuration before it is uploaded.
QString fileUnreadable(const QString& fileName);  ///< "Could not read file: NAME"
QString notAConfiguration(const QString& fileName, const QString& problem);
QString developmentConfigs();  ///< the development set's configurations on a real port

// The inspection report of a file, line by line.
QString reportSize(const QString& bytes);             ///< "  size: N bytes"
QString reportSha256(const QString& hex);             ///< "  SHA-256: HEX"
QString reportChip(const QString& name, int chipId);  ///< "  chip: NAME (chip id N)"
QString reportVersion(const QString& version);
QString reportProject(const QString& project);
QString reportBuilt(const QString& built);
QString reportPartitionFits(const QString& partitionBytes);
QString reportPartitionTooLarge(const QString& partitionBytes);
QString reportPartitionUnknown();
QString reportMeta(const QString& version);  ///< "  meta: VERSION"
QString reportNoMeta();                      ///< "  meta: none"
QString reportPasses();                      ///< "  result: passes"
QString reportRefused();                     ///< "  result: refused"
QString unknownChip();                       ///< "unknown"
QString neitherImageNorConfig(const QString& fileName);
QString allFilesPass();
QString filesRefused(qsizetype refused, qsizetype total);

// The log saved for support.
QString logNotSaved(const QString& reason);  ///< "Could not save log: REASON"

}  // namespace Texts
