#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/FetchRelease.h"
#include "app/operations/Operation.h"

/// Writes firmware to the machine on one port, as "Update Firmware" does: loads the
/// shipped or a chosen image and checks it, decides between a full flash and an
/// application-only update (asking the running firmware for its version unless a
/// full flash is forced), loads the stub and boot images and runs the library's
/// flashing job.
class FlashFirmware : public Operation {
  public:
    struct Options {
        std::optional<QString> customFirmware;  ///< path of a chosen image; none: the shipped one
        /// A catalogue's release in place of the shipped image (when no file is chosen).
        std::optional<CatalogueRelease> release;
        bool writeBootPartitions = false;  ///< always write all four regions
        bool eraseAll = false;             ///< erase the whole chip first (and so a full flash)
        DevelopmentImages developmentImages = DevelopmentImages::refuse;
        /// What goes back on the machine by itself once it runs after the erase
        /// ("your settings from …"), said right after the NOTE; none when nothing does.
        std::optional<QString> putBack;
    };

    FlashFirmware(QString port, ResourceBundle resources, Options options);

    /// Logs "Updating firmware v2.10.6…" (or the chosen file's line; a catalogue's
    /// release is fetched and trusted first, see `fetchRelease`) and the mode
    /// decision; a release older than the running firmware is refused unless
    /// allowed (`olderRefusal`, the version asked for also when a full flash is
    /// forced). It enters `writingFirmware` with the flash plan's size right before
    /// the library's job, `checkingStartup` when the job turns to the version
    /// confirmation and `firmwareWritten` when it succeeded, then logs "Firmware
    /// update complete." (after an erase also an empty line, the NOTE in the sink's
    /// audience's words and what goes back, if anything). Then tells how the machine
    /// started: from what the job heard after the restart, or, when it heard
    /// nothing (a chosen image has no version to confirm) or the port went away,
    /// from a `CheckStartup` of its own. Ends refused or
    /// missing a resource before the port is touched, with the library's code, or
    /// with the machine's verdict (a success when it runs the firmware); first of
    /// all, and after the library could not open the port, `portUnusable` when the
    /// port cannot be used (see `PortDiagnosis`).
    Outcome run(const OperationSink& sink) override;

    /// The share, 0..1, of the flash plan's bytes written when the library reports
    /// `fraction`.
    static double writtenShare(float fraction);

  private:
    std::optional<QByteArray> loadFirmware(const OperationSink& sink, Outcome* failure) const;
    std::optional<QString> expectedVersion() const;
    bool forcedFullFlash() const;
    std::optional<QString> runningVersion(const OperationSink& sink) const;

    QString port_;
    ResourceBundle resources_;
    Options options_;
};
