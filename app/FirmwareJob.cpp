#include <QFile>
#include <QPointer>
#include <cstdlib>
#include <memory>

#include "app/BuildConfig.h"
#include "app/UpdateController.h"

namespace {

struct BootImages {
    QByteArray bootloader;
    QByteArray partitions;
    QByteArray bootApp;

    bool complete() const {
        return !bootloader.isEmpty() && !partitions.isEmpty() && !bootApp.isEmpty();
    }
};

// A missing or unreadable boot image is handed on empty.
BootImages loadBootImages(const ResourceBundle& resources) {
    const auto load = [&](const char* name) {
        return resources.read(QString::fromLatin1(name), QStringLiteral("bin")).value_or("");
    };
    return {load("bootloader"), load("partitions"), load("boot_app0")};
}

}  // namespace

void UpdateController::performFlash(const QString& port) {
    const auto firmware = loadFirmwareImage();
    // Checked before the version probe opens the port: a refused image reaches
    // nothing. A custom file is checked again, as it may have changed since it
    // was chosen.
    if (!firmware || !imagesAccepted(*firmware)) {
        return;
    }
    // One reading of the flag serves the whole job: erasing the chip and then
    // writing only the application would leave it without a bootloader.
    const bool eraseAll = m_eraseAllFlash;
    const bool fullFlash = decideFullFlash(port, eraseAll);

    const auto stub = m_resources.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        logError(QStringLiteral("Flash stub not found in bundle"));
        return;
    }
    const BootImages boot = loadBootImages(m_resources);
    if (fullFlash && !boot.complete()) {
        logError(QStringLiteral("Missing bootloader resources for full flash"));
        return;
    }

    setState(UpdateState::flashing(0.0f));
    const std::optional<QString> expectedVersion =
        customFirmwareURL().isEmpty() ? std::optional(BuildConfig::firmwareVersion())
                                      : std::nullopt;
    const esp_error_t result = FlasherBridge::flashFirmware(
        port, *firmware, boot.bootloader, boot.partitions, boot.bootApp, *stub, fullFlash, eraseAll,
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

std::optional<QByteArray> UpdateController::loadFirmwareImage() {
    const QUrl custom = customFirmwareURL();
    if (custom.isEmpty()) {
        const auto shipped = m_resources.read(QStringLiteral("firmware"), QStringLiteral("bin"));
        if (!shipped) {
            logError(QStringLiteral("Bundled firmware not found"));
            return std::nullopt;
        }
        log(QStringLiteral("Updating firmware v") + BuildConfig::firmwareVersion() + "…");
        return shipped;
    }
    QString failure;
    const auto chosen = readWhole(custom.toLocalFile(), &failure);
    if (!chosen) {
        logError(QStringLiteral("Failed to load custom firmware: ") + failure);
        return std::nullopt;
    }
    log(QStringLiteral("Updating firmware (custom: ") + custom.fileName() + ")…");
    return chosen;
}

std::optional<QByteArray> UpdateController::readWhole(const QString& path, QString* failure) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *failure = file.errorString();
        return std::nullopt;
    }
    return file.readAll();
}

bool UpdateController::decideFullFlash(const QString& port, bool eraseAll) {
    if (eraseAll || m_writeBootPartitions) {
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
    return [self = QPointer(this)](float fraction, const QString& message) {
        postStep(self, [fraction, message](UpdateController& controller) {
            controller.assignProgress(fraction);
            controller.assignState(UpdateState::flashing(fraction));
            if (!message.isEmpty()) {
                controller.assignStatus(message);
            }
        });
    };
}

FlasherBridge::LogHandler UpdateController::libraryLogHandler() {
    return [self = QPointer(this)](const QString& line) {
        postStep(self, [line](UpdateController& controller) {
            if (controller.m_detailedLogging) {
                controller.appendLog(line);
            }
        });
    };
}
