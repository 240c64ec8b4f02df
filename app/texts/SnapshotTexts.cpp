#include "app/texts/SnapshotTexts.h"

#include <QCoreApplication>

#include "esp_flasher.h"
#include "image/FirmwareCheck.h"

namespace Texts {

namespace {

// The translators' context for this file's texts.
class SnapshotTexts {
    Q_DECLARE_TR_FUNCTIONS(SnapshotTexts)
};

}  // namespace

QString takingSnapshot() {
    return SnapshotTexts::tr("Taking a snapshot of the whole machine\u2026");
}

QString snapshotSaved(const QString& path, qint64 bytes) {
    return SnapshotTexts::tr("Snapshot of the whole machine saved to %1 (%2 bytes).")
        .arg(path, QString::number(bytes));
}

QString snapshotNothingToKeep() {
    return SnapshotTexts::tr(
        "the machine's flash holds nothing worth keeping (no bootloader and no partition "
        "table)");
}

QString snapshotNotTaken(const QString& why) {
    return SnapshotTexts::tr("No snapshot of the whole machine could be taken: %1").arg(why);
}

QString snapshotEnd(int end) {
    switch (end) {
        case ESP_SNAPSHOT_NOTHING_TO_KEEP:
            return snapshotNothingToKeep();
        case ESP_SNAPSHOT_READ_REFUSED:
            return SnapshotTexts::tr("the flasher stub refused to read the flash");
        case ESP_SNAPSHOT_NO_DATA:
            return SnapshotTexts::tr("the machine sent nothing for 5 s while its flash was read");
        case ESP_SNAPSHOT_BROKEN:
            return SnapshotTexts::tr("what the machine sent of its flash arrived damaged");
        case ESP_SNAPSHOT_MD5_MISMATCH:
            return SnapshotTexts::tr(
                "the MD5 the machine computed differs from that of the bytes received");
        case ESP_SNAPSHOT_STOPPED:
            return SnapshotTexts::tr("the snapshot could not be written on this computer");
        default:
            return SnapshotTexts::tr("the flash could not be read (%1)").arg(end);
    }
}

QString nothingWrittenWithoutSnapshot(const QString& failure) {
    // The reason is a clause; its sentence ends in the full stop of the owner's script.
    const QString stop = SnapshotTexts::tr(".", "the full stop that ends a sentence");
    const bool ended = failure.endsWith(QLatin1Char('.')) || failure.endsWith(stop);
    const QString sentence = ended ? failure : failure + stop;
    return SnapshotTexts::tr("%1 Nothing was written.").arg(sentence);
}

QString snapshotFailedNextStep() {
    return SnapshotTexts::tr("The machine was left as it was. Check the USB cable and try again.");
}

QString writingWithoutSnapshot() {
    return SnapshotTexts::tr(
        "No snapshot is needed: the machine's flash holds nothing worth keeping.");
}

QString snapshotTaken() {
    return SnapshotTexts::tr("Whole machine backed up");
}

QString partitionInWords(const QString& label, bool application, int subtype, quint32 offset,
                         quint32 size) {
    return QStringLiteral("%1 (%2 0x%3) at 0x%4, %5 bytes")
        .arg(label, application ? SnapshotTexts::tr("application") : SnapshotTexts::tr("data"),
             QString::number(subtype, 16).rightJustified(2, QLatin1Char('0')),
             QString::number(offset, 16).toUpper(),
             QString::fromStdString(image::withThousands(size)));
}

QString restoringSnapshot(const QString& time, const QString& fileName) {
    return SnapshotTexts::tr("Putting back the snapshot of the whole machine from %1 (%2)\u2026")
        .arg(time, fileName);
}

QString snapshotRefused(const QString& fileName, const QString& why) {
    return SnapshotTexts::tr("%1 cannot be used: %2").arg(fileName, why);
}

QString snapshotUnreadable(const QString& path, const QString& reason) {
    return SnapshotTexts::tr("Could not read the snapshot %1: %2").arg(path, reason);
}

QString noSnapshotOfMachine(const QString& machine, const QString& folder) {
    return SnapshotTexts::tr("No snapshot of the machine %1 in %2").arg(machine, folder);
}

QString snapshotNotFound(const QString& name, const QString& folder) {
    return SnapshotTexts::tr("No snapshot %1 in %2").arg(name, folder);
}

QString otherMachineRefused(const QString& owner, const QString& machine) {
    return SnapshotTexts::tr(
               "This snapshot was taken of the machine %1, not of %2; it carries that "
               "machine's settings and network credentials. Add --other-machine to put it on "
               "%2 anyway.")
        .arg(owner, machine);
}

QString otherMachineQuestion(const QString& owner, const QString& machine) {
    return SnapshotTexts::tr(
               "This snapshot was taken of the machine %1. It carries that machine's settings "
               "and network credentials. Put it on this machine (%2) anyway?")
        .arg(owner, machine);
}

QString restoreAnywayButton() {
    return SnapshotTexts::tr("&Restore Anyway");
}

QString machineRestored(const QString& time, const QString& version) {
    return SnapshotTexts::tr("Machine put back as it was on %1: it runs firmware %2.")
        .arg(time, version);
}

QString machineRestoredUnnamed(const QString& time) {
    return SnapshotTexts::tr("Machine put back as it was on %1: it runs.").arg(time);
}

QString undoUpdateStep(const QString& path, Audience audience) {
    return audience == Audience::window
               ? SnapshotTexts::tr(
                     "Press Undo Update to put the machine back as it was before the update, "
                     "or Repair\u2026 to erase it and install the firmware again.")
               : SnapshotTexts::tr(
                     "To put the machine back as it was before the update, run: teskal-flash "
                     "restore-machine %1")
                     .arg(path);
}

QString updateUndone() {
    return SnapshotTexts::tr("The machine was put back as it was before the update.");
}

QString undoingUpdate() {
    return SnapshotTexts::tr("Putting the machine back as it was before the update\u2026");
}

QString undoFailed(const QString& why) {
    return SnapshotTexts::tr("The machine could not be put back: %1").arg(why);
}

QString backUpWholeMachineItem() {
    return SnapshotTexts::tr("Back Up &Whole Machine\u2026");
}

QString restoreWholeMachineItem() {
    return SnapshotTexts::tr("Restore W&hole Machine\u2026");
}

QString snapshotBeforeWritingItem() {
    return SnapshotTexts::tr("&Snapshot Before Writing");
}

QString undoUpdateButton() {
    return SnapshotTexts::tr("Undo Update");
}

QString snapshotFirstCheckBox() {
    return SnapshotTexts::tr("Take a &snapshot of the whole machine first");
}

QString restoreWholeTitle() {
    return SnapshotTexts::tr("Restore Whole Machine");
}

QString ranColumn() {
    return SnapshotTexts::tr("Ran");
}

QString ranYes() {
    return SnapshotTexts::tr("Yes");
}

QString ranNo() {
    return SnapshotTexts::tr("No");
}

QString snapshotsToRestore(const QString& folder) {
    return SnapshotTexts::tr(
               "Every snapshot of a whole machine is kept in %1. The connected machine's are "
               "on top, newest first.")
        .arg(folder);
}

QString noSnapshotsToRestore(const QString& folder) {
    return SnapshotTexts::tr(
               "No snapshot has been taken yet. Config > Back Up Whole Machine\u2026 takes one, "
               "and so does every firmware write with Options > Snapshot Before Writing; they "
               "are kept in %1.")
        .arg(folder);
}

}  // namespace Texts
