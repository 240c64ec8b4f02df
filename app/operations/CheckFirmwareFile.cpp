#include "app/operations/CheckFirmwareFile.h"

#include <QFileInfo>

#include "app/Texts.h"

CheckFirmwareFile::CheckFirmwareFile(QString path, ResourceBundle resources,
                                     DevelopmentImages developmentImages)
    : path_(std::move(path)),
      resources_(std::move(resources)),
      developmentImages_(developmentImages) {}

Outcome CheckFirmwareFile::run(const OperationSink&) {
    const QString fileName = QFileInfo(path_).fileName();
    QString failure;
    const auto firmware = readWholeFile(path_, &failure);
    if (!firmware) {
        return Outcome::make(Outcome::Kind::refused,
                             Texts::cannotBeUsed(fileName, Texts::couldNotBeRead(failure)));
    }
    report_ = inspectFirmware(*firmware);
    if (const auto refusal = firmwareRefusal(*report_, resources_, developmentImages_)) {
        return Outcome::make(Outcome::Kind::refused, Texts::cannotBeUsed(fileName, *refusal));
    }
    return Outcome::success(describeFirmware(*report_->app));
}
