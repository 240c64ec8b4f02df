#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "app/Backup.h"
#include "app/ResourceBundle.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/UploadConfig.h"

/// "Update Firmware" with Erase All Flash that keeps the owner's settings: the
/// machine's config.yaml is read into the backups folder (reason "before-erase")
/// before the flashing job erases the chip, and uploaded back once the machine runs
/// again. Composed of the flashing job (`FlashFirmware`, unchanged) and the normal
/// upload (`UploadConfig`); nothing is erased unless the copy was read, kept and
/// checked as an upload checks it.
class EraseKeepingSettings : public Operation {
  public:
    struct Options {
        FlashFirmware::Options flash;  ///< `eraseAll` is always set
        /// A firmware that does not answer: erase anyway, logging that nothing was
        /// saved (teskal-flash), instead of stopping (the window asks).
        bool goOnWhenSilent = false;
        /// The name the machine's backups are filed under; empty: found from the port.
        QString machine;
    };

    EraseKeepingSettings(QString port, ResourceBundle resources, Options options);

    /// Logs "Saving the machine's settings before Erase All Flash…" and asks the
    /// firmware for its version; then reads config.yaml (logging where the copy went),
    /// runs the flashing job (whose NOTE is followed by what will be put back) and,
    /// when the machine runs afterwards (its verdict is running, or a configuration
    /// error), the upload of the copy, ending as that upload does; a success says
    /// "Firmware 2.10.6 installed and running, with your settings restored from the
    /// backup of <date time>.".
    /// Stops before the erase: `noAnswer` with "The machine's firmware does not
    /// answer, so its settings cannot be saved.", or the read's, the backup's or the
    /// check's outcome behind "Nothing was erased: …", with the `SettingsCause::Stop`
    /// that tells which. A copy kept but not put back is named in the log with how
    /// to restore it later. Every ending after the save or the write carries a
    /// `SettingsCause`.
    Outcome run(const OperationSink& sink) override;

  private:
    std::optional<Outcome> saveSettings(const std::optional<QString>& version,
                                        const OperationSink& sink);
    Outcome flash(const OperationSink& sink) const;
    Outcome notRestored(Outcome outcome, const OperationSink& sink) const;
    Outcome carrying(Outcome outcome, bool restored) const;

    QString port_;
    ResourceBundle resources_;
    Options options_;
    std::optional<Backup> backup_;
    std::shared_ptr<UploadConfig> restore_;
};
