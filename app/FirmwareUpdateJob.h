#pragma once

#include <QString>
#include <optional>

#include "app/FirmwareCheck.h"
#include "app/JobOutcome.h"
#include "app/JobSink.h"
#include "app/ResourceBundle.h"

/// Writes firmware to the machine on one port, as the window's "Update Firmware"
/// does: loads the shipped or a chosen image and checks it, decides between a full
/// flash and an application-only update (asking the running firmware for its
/// version unless a full flash is forced), loads the stub and boot images and runs
/// the library's flashing job.
///
/// A plain object: build it with its inputs, then `run` it on a worker thread.
class FirmwareUpdateJob {
  public:
    struct Options {
        std::optional<QString> customFirmware;  ///< path of a chosen image; none: the shipped one
        bool writeBootPartitions = false;       ///< always write all four regions
        bool eraseAll = false;  ///< erase the whole chip first (and so a full flash)
        DevelopmentImages developmentImages = DevelopmentImages::refuse;
    };

    FirmwareUpdateJob(QString port, ResourceBundle resources, Options options);

    /// Runs the whole job. Logs its course through `sink` ("Updating firmware
    /// v2.10.6…", the mode decision), calls `started` with the flash plan's size
    /// right before the library call, hands the library's progress and log lines
    /// on, and on success calls `succeeded` and logs "Firmware update complete."
    /// (after an erase also an empty line and the NOTE). A failure is returned,
    /// not logged: a missing or unreadable image or a refused one before the port
    /// is touched, a missing stub or boot image, or the library's code. Blocks the
    /// calling thread; one library job at a time.
    JobOutcome run(const JobSink& sink) const;

    /// The share, 0..1, of the flash plan's bytes written when the library reports
    /// `fraction`: the regions are written from 0.12 to 0.85.
    static double writtenShare(float fraction);

  private:
    std::optional<QByteArray> loadFirmware(const JobSink& sink, JobOutcome* failure) const;
    bool decideFullFlash(const JobSink& sink) const;

    QString port_;
    ResourceBundle resources_;
    Options options_;
};
