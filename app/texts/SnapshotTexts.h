#pragma once

#include <QString>
#include <QtGlobal>

#include "app/texts/Audience.h"

/// Snapshots of the machine's whole flash: taking one, putting one back, the write
/// that takes one first and its undo, and their window labels. Pure functions; any
/// thread.
namespace Texts {

// Taking a snapshot.
QString takingSnapshot();  ///< "Taking a snapshot of the whole machine…"
/// "Snapshot of the whole machine saved to PATH (N bytes)."
QString snapshotSaved(const QString& path, qint64 bytes);
QString snapshotNothingToKeep();
/// "No snapshot of the whole machine could be taken: WHY"
QString snapshotNotTaken(const QString& why);
/// Why a whole-flash read gave no snapshot (enum esp_snapshot_end), in words that
/// read after "could be taken: ".
QString snapshotEnd(int end);
/// The snapshot's failure, then "Nothing was written."
QString nothingWrittenWithoutSnapshot(const QString& failure);
QString snapshotFailedNextStep();
/// "No snapshot is needed: the machine's flash holds nothing worth keeping."
QString writingWithoutSnapshot();
QString snapshotTaken();  ///< the status line after Back Up Whole Machine
/// One partition table entry in words: "app0 (application 0x10) at 0x10000, 1,966,080 bytes".
QString partitionInWords(const QString& label, bool application, int subtype, quint32 offset,
                         quint32 size);

// Putting one back.
/// "Putting back the snapshot of the whole machine from TIME (FILE)…"
QString restoringSnapshot(const QString& time, const QString& fileName);
/// "FILE cannot be used: WHY" (nothing was sent).
QString snapshotRefused(const QString& fileName, const QString& why);
QString snapshotUnreadable(const QString& path, const QString& reason);
QString noSnapshotOfMachine(const QString& machine, const QString& folder);
QString snapshotNotFound(const QString& name, const QString& folder);
/// A snapshot of `owner` refused for `machine`: the window asks (see
/// `otherMachineQuestion`); the command line needs --other-machine.
QString otherMachineRefused(const QString& owner, const QString& machine);
QString otherMachineQuestion(const QString& owner, const QString& machine);
QString restoreAnywayButton();  ///< "Restore Anyway"
/// "Machine put back as it was on TIME: it runs firmware VERSION."
QString machineRestored(const QString& time, const QString& version);
QString machineRestoredUnnamed(const QString& time);

// The write that took one first, and its undo.
/// What to do after a write that left a machine that does not start, when a
/// snapshot from before it is at `path`.
QString undoUpdateStep(const QString& path, Audience audience);
QString updateUndone();   ///< "The machine was put back as it was before the update."
QString undoingUpdate();  ///< "Putting the machine back as it was before the update…"
/// "The machine could not be put back: WHY"
QString undoFailed(const QString& why);

// Window labels.
QString backUpWholeMachineItem();     ///< "Back Up Whole Machine…"
QString restoreWholeMachineItem();    ///< "Restore Whole Machine…"
QString snapshotBeforeWritingItem();  ///< "Snapshot Before Writing"
QString undoUpdateButton();           ///< "Undo Update", the banner's offer
QString snapshotFirstCheckBox();      ///< the Repair dialog's check box
QString restoreWholeTitle();          ///< "Restore Whole Machine"
QString ranColumn();                  ///< "Ran"
QString ranYes();
QString ranNo();
QString snapshotsToRestore(const QString& folder);
QString noSnapshotsToRestore(const QString& folder);

}  // namespace Texts
