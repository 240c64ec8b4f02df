#pragma once

#include <QString>
#include <memory>

#include "app/Backup.h"
#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// A write that can be undone: a snapshot of the whole flash (`TakeSnapshot`) first,
/// then the write itself (the flashing job, Erase All Flash that keeps the settings,
/// the repair), unchanged. Nothing is written when the snapshot fails. A machine
/// that does not start afterwards can be put back from the snapshot, which the
/// write's `StartupCause::snapshot` names, or is put back at once
/// (`undoOnFailure`, teskal-flash --undo-on-failure).
class SnapshotFirst : public Operation {
  public:
    struct Options {
        /// `beforeUpdate` or `beforeRepair`.
        BackupReason reason = BackupReason::beforeUpdate;
        /// The name the machine's snapshots are filed under; empty: found from the port.
        QString machine;
        /// Put the snapshot back by itself when the machine does not start; the
        /// outcome stays the write's.
        bool undoOnFailure = false;
        /// For the snapshot that goes back.
        DevelopmentImages developmentImages = DevelopmentImages::refuse;
    };

    SnapshotFirst(QString port, ResourceBundle resources, std::shared_ptr<Operation> write,
                  Options options);

    /// `write` with a snapshot first when one is `wanted`, else `write` as it is.
    static std::shared_ptr<Operation> around(bool wanted, QString port, ResourceBundle resources,
                                             std::shared_ptr<Operation> write, Options options);

    /// The write's own refusal.
    std::optional<Outcome> refusal() override;

    /// Takes the snapshot (a flash that holds nothing worth keeping needs none), then
    /// runs the write. Ends `portUnusable` as the snapshot found it, `snapshotFailed`
    /// ("… Nothing was written.", the library's code kept) when it gave none or could
    /// not be kept, else as the write ended, its `StartupCause` naming the snapshot.
    Outcome run(const OperationSink& sink) override;

  private:
    void undo(Outcome& written, const QString& snapshot, const OperationSink& sink) const;

    QString port_;
    ResourceBundle resources_;
    std::shared_ptr<Operation> write_;
    Options options_;
};
