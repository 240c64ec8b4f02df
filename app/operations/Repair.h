#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "app/Backup.h"
#include "app/BuildConfig.h"
#include "app/ResourceBundle.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/UploadConfig.h"
#include "app/texts/Audience.h"

/// Brings back a machine that does not start, with its own settings: the flashing
/// job with Erase All Flash and the boot partitions (`FlashFirmware`), then the
/// normal upload (`UploadConfig`) of the configuration chosen to go back. A firmware
/// that still answers has its config.yaml saved first (reason "before-erase"), as
/// Erase All Flash's save does. Nothing is erased before it is known what goes back.
class Repair : public Operation {
  public:
    /// What goes back on the machine after the erase.
    struct PutBack {
        enum class Kind {
            newestBackup,  ///< this machine's newest backup (after the save, that copy)
            backup,        ///< the backup `backup` names
            product,       ///< `product`'s stock configuration
            nothing,       ///< no configuration: the owner said so
        };
        Kind kind = Kind::newestBackup;
        QString backup;  ///< a file name in the backups folder, or a backup's path
        std::optional<ProductConfig> product;
    };

    struct Options {
        FlashFirmware::Options flash;  ///< `eraseAll` and `writeBootPartitions` are always set
        PutBack putBack;
        /// The name the machine's backups are filed under; empty: found from the port.
        QString machine;
        /// See `UploadConfig::Options::developmentConfigsRefused`.
        bool developmentConfigsRefused = false;
    };

    Repair(QString port, ResourceBundle resources, Options options);

    /// A chosen firmware file that is refused, a named backup that is not in the
    /// backups folder (`noBackup`), or a chosen configuration that its upload would
    /// refuse. Quick; needs no machine.
    std::optional<Outcome> refusal() override;

    /// Saves the answering firmware's config.yaml, settles what goes back (ending
    /// `nothingToRestore`, with nothing erased, when this machine has no backup and
    /// nothing else was chosen), logs the plan (`Texts::repairPlan`), runs the
    /// flashing job and, once the machine runs, the upload. Ends as the step that
    /// stopped it, or with the machine's verdict after the upload; a success says
    /// "Machine repaired: …". Every ending after the save or the write carries a
    /// `SettingsCause`, and so does a save that failed (`Stop::notSaved`).
    Outcome run(const OperationSink& sink) override;

    /// Whether a repair is what helps after `outcome`: a machine that was written but
    /// does not start because of what is in its flash (see
    /// `StartupVerdict::repairHelps`).
    static bool helps(const Outcome& outcome);

  private:
    std::optional<Outcome> choose();
    std::optional<Outcome> settleNewest(Texts::Audience audience);
    std::optional<QString> putBackPhrase(Texts::Audience audience) const;
    QString firmwarePhrase() const;
    Outcome carrying(Outcome outcome, bool restored) const;

    QString port_;
    ResourceBundle resources_;
    Options options_;
    bool checked_ = false;
    std::optional<Backup> saved_;
    std::optional<Backup> backup_;    ///< the backup that goes back
    std::optional<QString> restore_;  ///< the path of the file that goes back
    std::shared_ptr<UploadConfig> upload_;
};
