#include "app/texts/FirmwareJobTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class FirmwareJobTexts {
    Q_DECLARE_TR_FUNCTIONS(FirmwareJobTexts)
};

}  // namespace

QString deviceConnected() {
    return FirmwareJobTexts::tr("Device connected");
}

QString waitingForDevice() {
    return FirmwareJobTexts::tr("Waiting for device\u2026");
}

QString noDeviceConnected() {
    return FirmwareJobTexts::tr("No device connected");
}

QString anotherOperation() {
    return FirmwareJobTexts::tr("Another operation is already running");
}

QString updatingShipped(const QString& version) {
    return FirmwareJobTexts::tr("Updating firmware v%1\u2026").arg(version);
}

QString updatingCustom(const QString& fileName) {
    return FirmwareJobTexts::tr("Updating firmware (custom: %1)\u2026").arg(fileName);
}

QString customUnreadable(const QString& reason) {
    return FirmwareJobTexts::tr("Failed to load custom firmware: %1").arg(reason);
}

QString shippedMissing() {
    return FirmwareJobTexts::tr("Bundled firmware not found");
}

QString checkingDevice() {
    return FirmwareJobTexts::tr("Checking device status\u2026");
}

QString deviceNotResponding() {
    return FirmwareJobTexts::tr("Device not responding \u2014 writing boot partitions + firmware.");
}

QString deviceRunning(const QString& version) {
    return FirmwareJobTexts::tr("Device running firmware %1 \u2014 updating firmware only.")
        .arg(version);
}

QString stubMissing() {
    return FirmwareJobTexts::tr("Flash stub not found in bundle");
}

QString bootImagesMissing() {
    return FirmwareJobTexts::tr("Missing bootloader resources for full flash");
}

QString firmwareComplete() {
    return FirmwareJobTexts::tr("Firmware update complete.");
}

QString flashErasedNote(Audience audience) {
    return audience == Audience::window
               ? FirmwareJobTexts::tr(
                     "NOTE: Flash was erased. Use Config > Update Config to upload the "
                     "configuration for your machine.")
               : FirmwareJobTexts::tr(
                     "NOTE: Flash was erased. Run teskal-flash upload-config to upload the "
                     "configuration for your machine.");
}

QString puttingBack(const QString& what) {
    return FirmwareJobTexts::tr("Once the machine runs, %1 will be put back.").arg(what);
}

QString firmwareLabel(const QString& version) {
    return FirmwareJobTexts::tr("Firmware version %1").arg(version);
}

QString usingShipped() {
    return FirmwareJobTexts::tr("Using bundled firmware");
}

QString customChosen(const QString& fileName) {
    return FirmwareJobTexts::tr("Custom firmware: %1").arg(fileName);
}

QString customChosenWithoutName() {
    return FirmwareJobTexts::tr("Custom firmware: unknown");
}

QString checkingStartup() {
    return FirmwareJobTexts::tr("Checking that the machine starts\u2026");
}

QString configMissing(const QString& configFile) {
    return FirmwareJobTexts::tr("Config file not found in bundle: %1").arg(configFile);
}

QString preparingProduct(const QString& product, const QString& suffix) {
    return FirmwareJobTexts::tr("Preparing %1 config%2").arg(product, suffix);
}

QString preparingFile(const QString& fileName, const QString& suffix) {
    return FirmwareJobTexts::tr("Preparing %1%2").arg(fileName, suffix);
}

QString uploadingFile() {
    return FirmwareJobTexts::tr("Uploading config file...");
}

QString uploadComplete() {
    return FirmwareJobTexts::tr("Upload successful; restarting machine.");
}

QString versionSuffix(const std::optional<QString>& metaVersion) {
    return metaVersion ? QStringLiteral(" v%1").arg(*metaVersion) : QString();
}

QString progressPreparing() {
    return FirmwareJobTexts::tr("Preparing");
}

QString progressComplete() {
    return FirmwareJobTexts::tr("Complete");
}

QString progressFailed() {
    return FirmwareJobTexts::tr("Failed");
}

QString stopWarning() {
    return FirmwareJobTexts::tr(
        "Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C "
        "again to stop.");
}

QString partitionTablePresent() {
    return FirmwareJobTexts::tr("Partition table: present");
}

QString partitionTableAbsent() {
    return FirmwareJobTexts::tr("Partition table: absent");
}

QString plottersConnected(qsizetype count) {
    return count == 1 ? FirmwareJobTexts::tr("1 plotter connected")
                      : FirmwareJobTexts::tr("%1 plotters connected").arg(count);
}

QString simulatorNotStarted(const QString& reason) {
    return FirmwareJobTexts::tr("Could not start the simulated plotter: %1").arg(reason);
}

}  // namespace Texts
