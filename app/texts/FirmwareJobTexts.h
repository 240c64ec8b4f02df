#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

#include "app/texts/Audience.h"

/// The firmware job and the configuration upload as the log and the status line
/// tell them, and the start of a job. Pure functions; any thread.
namespace Texts {

// The connection and the start of a job.
QString deviceConnected();    ///< "Device connected"
QString waitingForDevice();   ///< "Waiting for device…"
QString noDeviceConnected();  ///< "No device connected"
QString anotherOperation();   ///< "Another operation is already running"

// The firmware job.
QString updatingShipped(const QString& version);  ///< "Updating firmware vVERSION…"
QString updatingCustom(const QString& fileName);  ///< "Updating firmware (custom: NAME)…"
QString customUnreadable(const QString& reason);  ///< "Failed to load custom firmware: REASON"
QString shippedMissing();                         ///< "Bundled firmware not found"
QString checkingDevice();                         ///< "Checking device status…"
QString deviceNotResponding();
QString deviceRunning(const QString& version);
QString stubMissing();        ///< "Flash stub not found in bundle"
QString bootImagesMissing();  ///< "Missing bootloader resources for full flash"
QString firmwareComplete();   ///< "Firmware update complete."
/// The NOTE after an erase; the window's names Config > Update Config.
QString flashErasedNote(Audience audience);
/// The line right after that NOTE when a configuration goes back by itself: "Once
/// the machine runs, WHAT will be put back."
QString puttingBack(const QString& what);
QString firmwareLabel(const QString& version);  ///< "Firmware version VERSION"
QString usingShipped();                         ///< "Using bundled firmware"
QString customChosen(const QString& fileName);  ///< "Custom firmware: NAME"
QString customChosenWithoutName();              ///< "Custom firmware: unknown"
QString checkingStartup();                      ///< the status while the machine is listened to

// The configuration upload.
QString configMissing(const QString& configFile);  ///< "Config file not found in bundle: FILE"
QString preparingProduct(const QString& product, const QString& suffix);
QString preparingFile(const QString& fileName, const QString& suffix);
QString uploadingFile();   ///< "Uploading config file..."
QString uploadComplete();  ///< "Upload successful; restarting machine."
/// " vVERSION" for a configuration's meta version, or nothing without one.
QString versionSuffix(const std::optional<QString>& metaVersion);

// teskal-flash's progress line and its warning at the first Ctrl+C of a write.
QString progressPreparing();  ///< "Preparing", before the library reports a stage
QString progressComplete();   ///< "Complete"
QString progressFailed();     ///< "Failed"
QString stopWarning();

// Questions to the machine.
QString partitionTablePresent();
QString partitionTableAbsent();
QString plottersConnected(qsizetype count);
QString simulatorNotStarted(const QString& reason);

}  // namespace Texts
