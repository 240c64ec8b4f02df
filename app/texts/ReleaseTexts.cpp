#include "app/texts/ReleaseTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class ReleaseTexts {
    Q_DECLARE_TR_FUNCTIONS(ReleaseTexts)
};

}  // namespace

QString noCatalogueConfigured(Audience audience) {
    return audience == Audience::window
               ? ReleaseTexts::tr(
                     "No firmware catalogue is configured. Choose one with File > Firmware "
                     "Catalogue\u2026, or use the bundled firmware.")
               : ReleaseTexts::tr(
                     "No firmware catalogue is configured. Name one with --catalogue URL|FILE|"
                     "FOLDER, or use the bundled firmware.");
}

QString fetchingRelease(const QString& version, const QString& address) {
    return ReleaseTexts::tr("Fetching firmware %1 from the catalogue at %2\u2026")
        .arg(version, address);
}

QString downloadingStage() {
    return ReleaseTexts::tr("Downloading");
}

QString updatingRelease(const QString& version) {
    return ReleaseTexts::tr("Updating firmware %1 from the catalogue\u2026").arg(version);
}

QString releaseOlderThanRunning(const QString& chosen, const QString& running, Audience audience) {
    return audience == Audience::window
               ? ReleaseTexts::tr(
                     "Firmware %1 is older than the firmware %2 this machine runs, so nothing "
                     "was written.")
                     .arg(chosen, running)
               : ReleaseTexts::tr(
                     "Firmware %1 is older than the firmware %2 this machine runs, so nothing "
                     "was written. Add --allow-older to install it anyway.")
                     .arg(chosen, running);
}

QString bundledSource() {
    return ReleaseTexts::tr("bundled");
}

QString catalogueSource() {
    return ReleaseTexts::tr("catalogue");
}

QString stableChannel() {
    return ReleaseTexts::tr("stable");
}

QString betaChannel() {
    return ReleaseTexts::tr("beta");
}

QString releaseLine(const QString& version, const QString& channel, const QString& date,
                    const QString& source, const QString& notes) {
    const QString line = QStringLiteral("%1  %2  %3  %4")
                             .arg(version.leftJustified(14), channel.leftJustified(6),
                                  date.leftJustified(10), source.leftJustified(9));
    return notes.isEmpty() ? line.trimmed() : line + QStringLiteral("  ") + notes;
}

QString firmwareListed(qsizetype count) {
    return count == 1 ? ReleaseTexts::tr("1 firmware version can be installed.")
                      : ReleaseTexts::tr("%1 firmware versions can be installed.").arg(count);
}

QString firmwareCatalogueItem() {
    return ReleaseTexts::tr("Firmware &Catalogue\u2026");
}

QString chooseFirmwareVersionItem() {
    return ReleaseTexts::tr("Choose Firmware &Version\u2026");
}

QString releaseFirmwareLabel(const QString& version) {
    return ReleaseTexts::tr("Firmware version %1 from the catalogue").arg(version);
}

QString newerFirmwareAvailable(const QString& version) {
    return ReleaseTexts::tr("Firmware %1 is available").arg(version);
}

QString catalogueSourceTitle() {
    return ReleaseTexts::tr("Firmware Catalogue");
}

QString catalogueSourcePrompt() {
    return ReleaseTexts::tr(
        "Where the firmware catalogue is: an http:// or https:// address, a catalogue.json "
        "file, or a folder that holds one (for instance on a USB stick).");
}

QString chooseCatalogueFile() {
    return ReleaseTexts::tr("Choose &File\u2026");
}

QString chooseCatalogueFolder() {
    return ReleaseTexts::tr("Choose F&older\u2026");
}

QString catalogueChosen(const QString& address) {
    return ReleaseTexts::tr("Firmware catalogue: %1").arg(address);
}

QString chooseVersionTitle() {
    return ReleaseTexts::tr("Choose Firmware Version");
}

QString versionColumn() {
    return ReleaseTexts::tr("Version");
}

QString channelColumn() {
    return ReleaseTexts::tr("Channel");
}

QString notesColumn() {
    return ReleaseTexts::tr("Notes");
}

QString showBetaVersions() {
    return ReleaseTexts::tr("Show &beta versions");
}

QString useThisVersionButton() {
    return ReleaseTexts::tr("&Use This Version");
}

QString bundledMark() {
    return ReleaseTexts::tr("bundled");
}

QString ranOnThisMachine() {
    return ReleaseTexts::tr("ran on this machine");
}

QString readingCatalogue() {
    return ReleaseTexts::tr("Reading the firmware catalogue\u2026");
}

QString noCatalogueInWindow() {
    return ReleaseTexts::tr(
        "No firmware catalogue is configured: only the bundled firmware is listed. Choose a "
        "catalogue with File > Firmware Catalogue\u2026.");
}

QString releaseChosen(const QString& version) {
    return ReleaseTexts::tr("Firmware %1 from the catalogue will be written.").arg(version);
}

QString installOlderTitle() {
    return ReleaseTexts::tr("Install an Older Version?");
}

QString installOlderQuestion(const QString& chosen, const QString& running) {
    return ReleaseTexts::tr(
               "This machine runs firmware %1. Install the older firmware %2 in its place?")
        .arg(running, chosen);
}

QString installOlderButton() {
    return ReleaseTexts::tr("&Install Older Version");
}

}  // namespace Texts
