#include "app/ConfigUploadJob.h"

#include <QFileInfo>

#include "app/MachineConfigCheck.h"

ConfigFile readConfigFile(const QString& path) {
    const QString fileName = QFileInfo(path).fileName();
    QString failure;
    auto bytes = readWholeFile(path, &failure);
    if (!bytes) {
        return {std::nullopt, QStringLiteral("Could not read file: ") + fileName, {}};
    }
    if (const auto problem = machineConfigProblem(*bytes)) {
        return {std::nullopt,
                fileName + QStringLiteral(" is not a valid machine configuration: ") + *problem,
                {}};
    }
    const QString announcement =
        QStringLiteral("Preparing ") + fileName + UserText::versionSuffix(*bytes);
    return {std::move(bytes), {}, announcement};
}

ConfigUploadJob::ConfigUploadJob(QString port, ResourceBundle resources, ProductConfig product)
    : port_(std::move(port)), resources_(std::move(resources)), product_(std::move(product)) {}

ConfigUploadJob::ConfigUploadJob(QString port, QByteArray configData)
    : port_(std::move(port)), configData_(std::move(configData)) {}

JobOutcome ConfigUploadJob::run(const JobSink& sink) const {
    QByteArray configData = configData_;
    if (resources_) {
        const auto found = resources_->readConfig(product_.configFile);
        sink.reportStarted(found ? found->size() : 0);
        if (!found) {
            return JobOutcome::missing(QStringLiteral("Config file not found in bundle: ") +
                                       product_.configFile);
        }
        configData = *found;
        sink.logLine(QStringLiteral("Preparing ") + product_.name + QStringLiteral(" config") +
                     UserText::versionSuffix(configData));
    } else {
        sink.reportStarted(configData.size());
        sink.logLine(QStringLiteral("Uploading config file..."));
    }
    const esp_error_t result =
        FlasherBridge::uploadConfig(port_, configData, sink.progress, sink.libraryLog);
    if (result != 0) {
        return JobOutcome::fromLibrary(result);
    }
    sink.reportSucceeded();
    sink.logLine(QStringLiteral("Upload successful; restarting machine."));
    return JobOutcome::success();
}
