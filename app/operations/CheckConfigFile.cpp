#include "app/operations/CheckConfigFile.h"

#include <QFileInfo>

#include "app/MachineConfigCheck.h"
#include "app/ResourceBundle.h"
#include "app/Texts.h"

CheckConfigFile::CheckConfigFile(QString path) : path_(std::move(path)) {}

Outcome CheckConfigFile::run(const OperationSink&) {
    const QString fileName = QFileInfo(path_).fileName();
    QString failure;
    auto bytes = readWholeFile(path_, &failure);
    if (!bytes) {
        return Outcome::make(Outcome::Kind::refused, Texts::fileUnreadable(fileName));
    }
    if (const auto problem = machineConfigProblem(*bytes)) {
        return Outcome::make(Outcome::Kind::refused, Texts::notAConfiguration(fileName, *problem));
    }
    bytes_ = std::move(bytes);
    return Outcome::success(Texts::preparingFile(fileName, Texts::versionSuffix(*bytes_)));
}
