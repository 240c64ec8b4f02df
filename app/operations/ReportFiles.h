#pragma once

#include <QStringList>

#include "app/FirmwareCheck.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Reports on firmware images and machine configurations without a plotter: for
/// each .bin its chip, version, project, build date, size, SHA-256 and whether it
/// fits the application partition of the resources' partition table; for each
/// .yaml or .yml whether it is a valid machine configuration. Each file is
/// checked as the firmware job and an upload would check it.
class ReportFiles : public Operation {
  public:
    ReportFiles(QStringList paths, ResourceBundle resources, DevelopmentImages developmentImages);

    /// Logs each file's report and, for a file refused, an error with the reason.
    /// Succeeds with "All files pass", or is refused with "N of M files refused".
    Outcome run(const OperationSink& sink) override;

  private:
    bool inspectImage(const QString& path, const OperationSink& sink) const;
    bool inspectConfig(const QString& path, const OperationSink& sink) const;

    QStringList paths_;
    ResourceBundle resources_;
    DevelopmentImages developmentImages_;
};
