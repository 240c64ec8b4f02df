#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "app/Backup.h"
#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Config > "Restore Whole Machine…", the result banner's "Undo Update" and
/// teskal-flash restore-machine: writes a whole-flash snapshot back as one region at
/// 0x0 (`esp_restore_machine`: the loader's write, its MD5 check and a reset) and
/// ends with the machine's start, as every write does.
class RestoreMachine : public Operation {
  public:
    struct Options {
        /// A snapshot's file name in the backups folder, or a path; empty: the
        /// machine's newest snapshot.
        QString snapshot;
        /// The name the machine's snapshots are filed under; empty: found from the port.
        QString machine;
        /// A snapshot of another machine carries its settings and credentials: only
        /// written when the owner said so (the window asks; --other-machine).
        bool otherMachineAllowed = false;
        DevelopmentImages developmentImages = DevelopmentImages::refuse;
    };

    RestoreMachine(QString port, ResourceBundle resources, Options options);

    /// Finds and reads the snapshot and checks it (`image::snapshotRefusal`): `noBackup`
    /// when it is not there, `refused` for a file that is not a whole-flash snapshot
    /// (or carries the development marker where development images are refused), and
    /// `refused` for another machine's snapshot unless that is allowed. Needs no
    /// machine; reads up to 16 MiB.
    std::optional<Outcome> refusal() override;

    /// Logs what goes back, enters `writingFirmware` with the snapshot's size,
    /// `checkingStartup` once it is verified and `firmwareWritten`, and ends with the
    /// machine's verdict; a success says "Machine put back as it was on TIME: it runs
    /// firmware VERSION.". The library's code when the write failed; `portUnusable`
    /// before anything is sent.
    Outcome run(const OperationSink& sink) override;

  private:
    std::optional<Outcome> find();

    QString port_;
    ResourceBundle resources_;
    Options options_;
    bool checked_ = false;
    QString path_;
    std::optional<Backup> record_;
    QByteArray snapshot_;
};
