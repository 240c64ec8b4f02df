#include <QFile>
#include <QPointer>
#include <cstdlib>
#include <memory>

#include "app/BuildConfig.h"
#include "app/UpdateController.h"

namespace {

std::optional<QByteArray> readWhole(const QString& path, QString* failure) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *failure = file.errorString();
        return std::nullopt;
    }
    return file.readAll();
}

}  // namespace

void UpdateController::performFlash(const QString& port) {
    QByteArray firmware;
    const QUrl custom = customFirmwareURL();
    if (custom.isEmpty()) {
        const auto shipped = m_resources.read(QStringLiteral("firmware"), QStringLiteral("bin"));
        if (!shipped) {
            logError(QStringLiteral("Bundled firmware not found"));
            return;
        }
        firmware = *shipped;
        log(QStringLiteral("Updating firmware v") + BuildConfig::firmwareVersion() + "…");
    } else {
        QString failure;
        const auto chosen = readWhole(custom.toLocalFile(), &failure);
        if (!chosen) {
            logError(QStringLiteral("Failed to load custom firmware: ") + failure);
            return;
        }
        firmware = *chosen;
        log(QStringLiteral("Updating firmware (custom: ") + custom.fileName() + ")…");
    }

    const bool fullFlash = decideFullFlash(port);

    const auto stub = m_resources.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        logError(QStringLiteral("Flash stub not found in bundle"));
        return;
    }
    const auto bin = QStringLiteral("bin");
    const QByteArray bootloader = m_resources.read(QStringLiteral("bootloader"), bin).value_or("");
    const QByteArray partitions = m_resources.read(QStringLiteral("partitions"), bin).value_or("");
    const QByteArray bootApp = m_resources.read(QStringLiteral("boot_app0"), bin).value_or("");
    if (fullFlash && (bootloader.isEmpty() || partitions.isEmpty() || bootApp.isEmpty())) {
        logError(QStringLiteral("Missing bootloader resources for full flash"));
        return;
    }

    setState(UpdateState::flashing(0.0f));
    const std::optional<QString> expectedVersion =
        customFirmwareURL().isEmpty() ? std::optional(BuildConfig::firmwareVersion())
                                      : std::nullopt;
    const bool eraseAll = m_eraseAllFlash;
    const esp_error_t result = FlasherBridge::flashFirmware(
        port, firmware, bootloader, partitions, bootApp, *stub, fullFlash, eraseAll,
        expectedVersion, flashProgressHandler(), libraryLogHandler());
    if (result != 0) {
        logError(errorMessage(result));
        return;
    }
    setState(UpdateState::flashComplete());
    log(QStringLiteral("Firmware update complete."));
    if (eraseAll) {
        log(QString());
        log(
            QStringLiteral("NOTE: Flash was erased. Use Config > Update Config to upload the "
                           "configuration for your machine."));
    }
}

bool UpdateController::decideFullFlash(const QString& port) {
    if (m_eraseAllFlash || m_writeBootPartitions) {
        return true;
    }
    log(QStringLiteral("Checking device status…"));
    const std::unique_ptr<char, decltype(&std::free)> reply(
        esp_query_version(port.toUtf8().constData()), std::free);
    if (!reply) {
        log(QStringLiteral("Device not responding — writing boot partitions + firmware."));
        return true;
    }
    log(QStringLiteral("Device running firmware ") +
        cleanFirmwareVersion(QString::fromUtf8(reply.get())) +
        QStringLiteral(" — updating firmware only."));
    return false;
}

FlasherBridge::ProgressHandler UpdateController::flashProgressHandler() {
    QPointer<UpdateController> self(this);
    return [self](float fraction, const QString& message) {
        if (self.isNull()) {
            return;
        }
        QMetaObject::invokeMethod(
            self,
            [self, fraction, message] {
                self->assignProgress(fraction);
                self->assignState(UpdateState::flashing(fraction));
                if (!message.isEmpty()) {
                    self->assignStatus(message);
                }
            },
            Qt::QueuedConnection);
    };
}

FlasherBridge::LogHandler UpdateController::libraryLogHandler() {
    QPointer<UpdateController> self(this);
    return [self](const QString& line) {
        if (self.isNull()) {
            return;
        }
        QMetaObject::invokeMethod(
            self,
            [self, line] {
                if (self->m_detailedLogging) {
                    self->appendLog(line);
                }
            },
            Qt::QueuedConnection);
    };
}
