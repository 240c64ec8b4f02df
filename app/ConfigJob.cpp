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
    QPointer<UpdateController> self(this);
    return [self](float fraction, const QString& message) {
        if (self.isNull()) {
            return;
        }
        QMetaObject::invokeMethod(
            self,
            [self, fraction, message] {
                self->assignProgress(fraction);
                self->assignState(UpdateState::uploadingConfig(fraction));
                if (message.isEmpty()) {
                    return;
                }
                if (message != self->m_statusMessage) {
                    self->appendLog(message);
                }
                self->assignStatus(message);
            },
            Qt::QueuedConnection);
    };
}
