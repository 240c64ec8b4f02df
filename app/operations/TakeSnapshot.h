#pragma once

#include <QString>

#include "app/Backup.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Config > "Back Up Whole Machine…" and teskal-flash snapshot: reads the machine's
/// whole flash through the flasher stub (`esp_snapshot_machine`) into the backups
/// folder as "machine-yyyyMMdd-HHmmss.bin" with its sidecar (see `BackupIndex`),
/// then listens to the machine's start. The bytes go to a private temporary file as
/// they arrive and are renamed into place only when the stub's MD5 of them matched;
/// on every other ending nothing is left behind. Nothing is ever written to the
/// machine.
class TakeSnapshot : public Operation {
  public:
    struct Options {
        /// `snapshot`, `beforeUpdate` or `beforeRepair`.
        BackupReason reason = BackupReason::snapshot;
        /// The name the machine's snapshots are filed under; empty: found from the port.
        QString machine;
        /// A flash that holds nothing worth keeping ends as a success without a
        /// snapshot (before a write there is nothing to lose), not as a failure.
        bool emptyFlashIsFine = false;
    };

    TakeSnapshot(QString port, ResourceBundle resources, Options options);

    /// Logs "Taking a snapshot of the whole machine…", enters `readingFlash`, reads
    /// and keeps the snapshot and logs where it went. A success carries the kept
    /// snapshot (a `Backup`) as its cause; ends `portUnusable` before anything is
    /// sent, with the library's code when the loader or the stub did not start,
    /// `snapshotFailed` (with the library's code) when the read gave no snapshot,
    /// or `notWritten` when this computer could not keep it.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    ResourceBundle resources_;
    Options options_;
};
