#include "app/texts/FirmwareJobTexts.h"

namespace Texts {

QString deviceConnected() {
    return QStringLiteral("Device connected");
}

QString waitingForDevice() {
    return QStringLiteral("Waiting for device\u2026");
}

QString noDeviceConnected() {
    return QStringLiteral("No device connected");
}

QString anotherOperation() {
    return QStringLiteral("Another operation is already running");
}

QString updatingShipped(const QString& version) {
    return QStringLiteral("Updating firmware v%1\u2026").arg(version);
}

QString updatingCustom(const QString& fileName) {
    return QStringLiteral("Updating firmware (custom: %1)\u2026").arg(fileName);
}

QString customUnreadable(const QString& reason) {
    return QStringLiteral("Failed to load custom firmware: %1").arg(reason);
}

QString shippedMissing() {
    return QStringLiteral("Bundled firmware not found");
}

QString checkingDevice() {
    return QStringLiteral("Checking device status\u2026");
}

QString deviceNotResponding() {
    return QStringLiteral("Device not responding \u2014 writing boot partitions + firmware.");
}

QString deviceRunning(const QString& version) {
    return QStringLiteral("Device running firmware %1 \u2014 updating firmware only.").arg(version);
}

QString stubMissing() {
    return QStringLiteral("Flash stub not found in bundle");
}

QString bootImagesMissing() {
    return QStringLiteral("Missing bootloader resources for full flash");
}

QString firmwareComplete() {
    return QStringLiteral("Firmware update complete.");
}

QString flashErasedNote(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "NOTE: Flash was erased. Use Config > Update Config to upload the "
                     "configuration for your machine.")
               : QStringLiteral(
                     "NOTE: Flash was erased. Run teskal-flash upload-config to upload the "
                     "configuration for your machine.");
}

QString puttingBack(const QString& what) {
    return QStringLiteral("Once the machine runs, %1 will be put back.").arg(what);
}

QString firmwareLabel(const QString& version) {
    return QStringLiteral("Firmware version %1").arg(version);
}

QString usingShipped() {
    return QStringLiteral("Using bundled firmware");
}

QString customChosen(const QString& fileName) {
    return QStringLiteral("Custom firmware: %1").arg(fileName);
}

QString customChosenWithoutName() {
    return QStringLiteral("Custom firmware: unknown");
}

QString checkingStartup() {
    return QStringLiteral("Checking that the machine starts\u2026");
}

QString configMissing(const QString& configFile) {
    return QStringLiteral("Config file not found in bundle: %1").arg(configFile);
}

QString preparingProduct(const QString& product, const QString& suffix) {
    return QStringLiteral("Preparing %1 config%2").arg(product, suffix);
}

QString preparingFile(const QString& fileName, const QString& suffix) {
    return QStringLiteral("Preparing %1%2").arg(fileName, suffix);
}

QString uploadingFile() {
    return QStringLiteral("Uploading config file...");
}

QString uploadComplete() {
    return QStringLiteral("Upload successful; restarting machine.");
}

QString versionSuffix(const std::optional<QString>& metaVersion) {
    return metaVersion ? QStringLiteral(" v%1").arg(*metaVersion) : QString();
}

QString progressPreparing() {
    return QStringLiteral("Preparing");
}

QString progressComplete() {
    return QStringLiteral("Complete");
}

QString progressFailed() {
    return QStringLiteral("Failed");
}

QString stopWarning() {
    return QStringLiteral(
        "Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C "
        "again to stop.");
}

QString partitionTablePresent() {
    return QStringLiteral("Partition table: present");
}

QString partitionTableAbsent() {
    return QStringLiteral("Partition table: absent");
}

QString plottersConnected(qsizetype count) {
    return count == 1 ? QStringLiteral("1 plotter connected")
                      : QStringLiteral("%1 plotters connected").arg(count);
}

QString simulatorNotStarted(const QString& reason) {
    return QStringLiteral("Could not start the simulated plotter: %1").arg(reason);
}

}  // namespace Texts
