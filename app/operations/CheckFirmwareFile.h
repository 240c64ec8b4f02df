#pragma once

#include <QString>
#include <optional>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"
#include "image/EspImage.h"

/// Checks a firmware image on disk as the firmware job will: an ESP32-S3
/// application whose checksum and SHA-256 match, that fits the application
/// partition of the resources' partition table, and that carries no development
/// marker where development images are refused. Needs no machine; quick enough for
/// the GUI thread.
class CheckFirmwareFile : public Operation {
  public:
    CheckFirmwareFile(QString path, ResourceBundle resources, DevelopmentImages developmentImages);

    /// Refused with "NAME cannot be used: REASON"; else a success whose message
    /// describes the image ("Firmware image: version V, project P, built D T").
    /// Logs nothing.
    Outcome run(const OperationSink& sink) override;

    /// What the inspector found, once the file could be read.
    const std::optional<image::ImageReport>& report() const { return report_; }

  private:
    QString path_;
    ResourceBundle resources_;
    DevelopmentImages developmentImages_;
    std::optional<image::ImageReport> report_;
};
