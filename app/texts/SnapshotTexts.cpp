#include "app/texts/SnapshotTexts.h"

#include "esp_flasher.h"
#include "image/FirmwareCheck.h"

namespace Texts {

QString takingSnapshot() {
    return QStringLiteral("Taking a snapshot of the whole machine\u2026");
}

QString snapshotSaved(const QString& path, qint64 bytes) {
    return QStringLiteral("Snapshot of the whole machine saved to %1 (%2 bytes).")
        .arg(path, QString::number(bytes));
}

QString snapshotNothingToKeep() {
    return QStringLiteral(
        "the machine's flash holds nothing worth keeping (no bootloader and no partition "
        "table)");
}

QString snapshotNotTaken(const QString& why) {
    return QStringLiteral("No snapshot of the whole machine could be taken: %1").arg(why);
}

QString snapshotEnd(int end) {
    switch (end) {
        case ESP_SNAPSHOT_NOTHING_TO_KEEP:
            return snapshotNothingToKeep();
        case ESP_SNAPSHOT_READ_REFUSED:
            return QStringLiteral("the flasher stub refused to read the flash");
        case ESP_SNAPSHOT_NO_DATA:
            return QStringLiteral("the machine sent nothing for 5 s while its flash was read");
        case ESP_SNAPSHOT_BROKEN:
            return QStringLiteral("what the machine sent of its flash arrived damaged");
        case ESP_SNAPSHOT_MD5_MISMATCH:
            return QStringLiteral(
                "the MD5 the machine computed differs from that of the bytes received");
        case ESP_SNAPSHOT_STOPPED:
            return QStringLiteral("the snapshot could not be written on this computer");
        default:
            return QStringLiteral("the flash could not be read (%1)").arg(end);
    }
}

QString nothingWrittenWithoutSnapshot(const QString& failure) {
    const QString sentence = failure.endsWith(QLatin1Char('.')) ? failure : failure + '.';
    return QStringLiteral("%1 Nothing was written.").arg(sentence);
}

QString snapshotFailedNextStep() {
    return QStringLiteral("The machine was left as it was. Check the USB cable and try again.");
}

QString writingWithoutSnapshot() {
    return QStringLiteral(
        "No snapshot is needed: the machine's flash holds nothing worth keeping.");
}

QString snapshotTaken() {
    return QStringLiteral("Whole machine backed up");
}

QString partitionInWords(const QString& label, bool application, int subtype, quint32 offset,
                         quint32 size) {
    return QStringLiteral("%1 (%2 0x%3) at 0x%4, %5 bytes")
        .arg(label, application ? QStringLiteral("application") : QStringLiteral("data"),
             QString::number(subtype, 16).rightJustified(2, QLatin1Char('0')),
             QString::number(offset, 16).toUpper(),
             QString::fromStdString(image::withThousands(size)));
}

QString restoringSnapshot(const QString& time, const QString& fileName) {
    return QStringLiteral("Putting back the snapshot of the whole machine from %1 (%2)\u2026")
        .arg(time, fileName);
}

QString snapshotRefused(const QString& fileName, const QString& why) {
    return QStringLiteral("%1 cannot be used: %2").arg(fileName, why);
}

QString snapshotUnreadable(const QString& path, const QString& reason) {
    return QStringLiteral("Could not read the snapshot %1: %2").arg(path, reason);
}

QString noSnapshotOfMachine(const QString& machine, const QString& folder) {
    return QStringLiteral("No snapshot of the machine %1 in %2").arg(machine, folder);
}

QString snapshotNotFound(const QString& name, const QString& folder) {
    return QStringLiteral("No snapshot %1 in %2").arg(name, folder);
}

QString otherMachineRefused(const QString& owner, const QString& machine) {
    return QStringLiteral(
               "This snapshot was taken of the machine %1, not of %2; it carries that "
               "machine's settings and network credentials. Add --other-machine to put it on "
               "%2 anyway.")
        .arg(owner, machine);
}

QString otherMachineQuestion(const QString& owner, const QString& machine) {
    return QStringLiteral(
               "This snapshot was taken of the machine %1. It carries that machine's settings "
               "and network credentials. Put it on this machine (%2) anyway?")
        .arg(owner, machine);
}

QString restoreAnywayButton() {
    return QStringLiteral("Restore Anyway");
}

QString machineRestored(const QString& time, const QString& version) {
    return QStringLiteral("Machine put back as it was on %1: it runs firmware %2.")
        .arg(time, version);
}

QString machineRestoredUnnamed(const QString& time) {
    return QStringLiteral("Machine put back as it was on %1: it runs.").arg(time);
}

QString undoUpdateStep(const QString& path, Audience audience) {
    return audience == Audience::window
               ? QStringLiteral(
                     "Press Undo Update to put the machine back as it was before the update, "
                     "or Repair\u2026 to erase it and install the firmware again.")
               : QStringLiteral(
                     "To put the machine back as it was before the update, run: teskal-flash "
                     "restore-machine %1")
                     .arg(path);
}

QString updateUndone() {
    return QStringLiteral("The machine was put back as it was before the update.");
}

QString undoingUpdate() {
    return QStringLiteral("Putting the machine back as it was before the update\u2026");
}

QString undoFailed(const QString& why) {
    return QStringLiteral("The machine could not be put back: %1").arg(why);
}

QString backUpWholeMachineItem() {
    return QStringLiteral("Back Up Whole Machine\u2026");
}

QString restoreWholeMachineItem() {
    return QStringLiteral("Restore Whole Machine\u2026");
}

QString snapshotBeforeWritingItem() {
    return QStringLiteral("Snapshot Before Writing");
}

QString undoUpdateButton() {
    return QStringLiteral("Undo Update");
}

QString snapshotFirstCheckBox() {
    return QStringLiteral("Take a snapshot of the whole machine first");
}

QString restoreWholeTitle() {
    return QStringLiteral("Restore Whole Machine");
}

QString ranColumn() {
    return QStringLiteral("Ran");
}

QString ranYes() {
    return QStringLiteral("Yes");
}

QString ranNo() {
    return QStringLiteral("No");
}

QString snapshotsToRestore(const QString& folder) {
    return QStringLiteral(
               "Every snapshot of a whole machine is kept in %1. The connected machine's are "
               "on top, newest first.")
        .arg(folder);
}

QString noSnapshotsToRestore(const QString& folder) {
    return QStringLiteral(
               "No snapshot has been taken yet. Config > Back Up Whole Machine\u2026 takes one, "
               "and so does every firmware write with Options > Snapshot Before Writing; they "
               "are kept in %1.")
        .arg(folder);
}

}  // namespace Texts
