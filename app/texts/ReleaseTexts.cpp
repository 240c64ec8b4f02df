#include "app/texts/ReleaseTexts.h"

namespace Texts {

QString noCatalogueConfigured(Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "No firmware catalogue is configured. Choose one with File > Firmware "
                     "Catalogue\u2026, or use the bundled firmware.")
               : QStringLiteral(
                     "No firmware catalogue is configured. Name one with --catalogue URL|FILE|"
                     "FOLDER, or use the bundled firmware.");
}

QString fetchingRelease(const QString& version, const QString& address) {
    return QStringLiteral("Fetching firmware %1 from the catalogue at %2\u2026")
        .arg(version, address);
}

QString downloadingStage() {
    return QStringLiteral("Downloading");
}

QString updatingRelease(const QString& version) {
    return QStringLiteral("Updating firmware %1 from the catalogue\u2026").arg(version);
}

QString releaseOlderThanRunning(const QString& chosen, const QString& running, Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Firmware %1 is older than the firmware %2 this machine runs, so nothing "
                     "was written.")
                     .arg(chosen, running)
               : QStringLiteral(
                     "Firmware %1 is older than the firmware %2 this machine runs, so nothing "
                     "was written. Add --allow-older to install it anyway.")
                     .arg(chosen, running);
}

QString bundledSource() {
    return QStringLiteral("bundled");
}

QString catalogueSource() {
    return QStringLiteral("catalogue");
}

QString stableChannel() {
    return QStringLiteral("stable");
}

QString betaChannel() {
    return QStringLiteral("beta");
}

QString releaseLine(const QString& version, const QString& channel, const QString& date,
                    const QString& source, const QString& notes) {
    const QString line = QStringLiteral("%1  %2  %3  %4")
                             .arg(version.leftJustified(14), channel.leftJustified(6),
                                  date.leftJustified(10), source.leftJustified(9));
    return notes.isEmpty() ? line.trimmed() : line + QStringLiteral("  ") + notes;
}

QString firmwareListed(qsizetype count) {
    return count == 1 ? QStringLiteral("1 firmware version can be installed.")
                      : QStringLiteral("%1 firmware versions can be installed.").arg(count);
}

QString firmwareCatalogueItem() {
    return QStringLiteral("Firmware Catalogue\u2026");
}

QString chooseFirmwareVersionItem() {
    return QStringLiteral("Choose Firmware Version\u2026");
}

QString releaseFirmwareLabel(const QString& version) {
    return QStringLiteral("Firmware version %1 from the catalogue").arg(version);
}

QString newerFirmwareAvailable(const QString& version) {
    return QStringLiteral("Firmware %1 is available").arg(version);
}

QString catalogueSourceTitle() {
    return QStringLiteral("Firmware Catalogue");
}

QString catalogueSourcePrompt() {
    return QStringLiteral(
        "Where the firmware catalogue is: an http:// or https:// address, a catalogue.json "
        "file, or a folder that holds one (for instance on a USB stick).");
}

QString chooseCatalogueFile() {
    return QStringLiteral("Choose File\u2026");
}

QString chooseCatalogueFolder() {
    return QStringLiteral("Choose Folder\u2026");
}

QString catalogueChosen(const QString& address) {
    return QStringLiteral("Firmware catalogue: %1").arg(address);
}

QString chooseVersionTitle() {
    return QStringLiteral("Choose Firmware Version");
}

QString versionColumn() {
    return QStringLiteral("Version");
}

QString channelColumn() {
    return QStringLiteral("Channel");
}

QString notesColumn() {
    return QStringLiteral("Notes");
}

QString showBetaVersions() {
    return QStringLiteral("Show beta versions");
}

QString useThisVersionButton() {
    return QStringLiteral("Use This Version");
}

QString bundledMark() {
    return QStringLiteral("bundled");
}

QString ranOnThisMachine() {
    return QStringLiteral("ran on this machine");
}

QString readingCatalogue() {
    return QStringLiteral("Reading the firmware catalogue\u2026");
}

QString noCatalogueInWindow() {
    return QStringLiteral(
        "No firmware catalogue is configured: only the bundled firmware is listed. Choose a "
        "catalogue with File > Firmware Catalogue\u2026.");
}

QString releaseChosen(const QString& version) {
    return QStringLiteral("Firmware %1 from the catalogue will be written.").arg(version);
}

QString installOlderTitle() {
    return QStringLiteral("Install an Older Version?");
}

QString installOlderQuestion(const QString& chosen, const QString& running) {
    return QStringLiteral(
               "This machine runs firmware %1. Install the older firmware %2 in its place?")
        .arg(running, chosen);
}

QString installOlderButton() {
    return QStringLiteral("Install Older Version");
}

}  // namespace Texts
