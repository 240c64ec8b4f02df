#include <QPointer>

#include "app/UpdateController.h"

void UpdateController::performConfigUpload(const QString& port, const QString& configFile,
                                           const QString& productName) {
    setState(UpdateState::uploadingConfig(0.0f));
    const auto configData = m_resources.readConfig(configFile);
    if (!configData) {
        logError(QStringLiteral("Config file not found in bundle: ") + configFile);
        return;
    }
    log(QStringLiteral("Preparing ") + productName + QStringLiteral(" config") +
        versionSuffix(*configData));
    runConfigUpload(port, *configData);
}

void UpdateController::performConfigUploadData(const QString& port, const QByteArray& configData) {
    setState(UpdateState::uploadingConfig(0.0f));
    log(QStringLiteral("Uploading config file..."));
    runConfigUpload(port, configData);
}

void UpdateController::runConfigUpload(const QString& port, const QByteArray& configData) {
    const esp_error_t result =
        FlasherBridge::uploadConfig(port, configData, configProgressHandler(), libraryLogHandler());
    if (result != 0) {
        logError(errorMessage(result));
        return;
    }
    setState(UpdateState::configComplete());
    log(QStringLiteral("Upload successful; restarting machine."));
}

FlasherBridge::ProgressHandler UpdateController::configProgressHandler() {
    return [self = QPointer(this)](float fraction, const QString& message) {
        postStep(self, [fraction, message](UpdateController& controller) {
            controller.assignProgress(fraction);
            controller.assignState(UpdateState::uploadingConfig(fraction));
            if (message.isEmpty()) {
                return;
            }
            if (message != controller.m_statusMessage) {
                controller.appendLog(message);
            }
            controller.assignStatus(message);
        });
    };
}
