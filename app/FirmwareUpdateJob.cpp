#include "app/FirmwareUpdateJob.h"

#include <QFileInfo>
#include <algorithm>

#include "app/BuildConfig.h"
#include "app/DeviceQueries.h"

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

qint64 planBytes(const QByteArray& firmware, const BootImages& boot, bool fullFlash) {
    const qint64 bootRegions = fullFlash ? boot.bootloader.size() + boot.partitions.size() : 0;
    return firmware.size() + bootRegions + boot.bootApp.size();
}

}  // namespace

FirmwareUpdateJob::FirmwareUpdateJob(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {}

JobOutcome FirmwareUpdateJob::run(const JobSink& sink) const {
    JobOutcome failure;
    const auto firmware = loadFirmware(sink, &failure);
    if (!firmware) {
        return failure;
    }
    // Checked before the version probe opens the port: a refused image reaches
    // nothing. A chosen file is checked again here, as it may have changed since
    // it was chosen.
    if (const auto refusal = imagesRefusal(*firmware, resources_, options_.developmentImages)) {
        return JobOutcome::refusal(*refusal);
    }
    const bool fullFlash = decideFullFlash(sink);

    const auto stub = resources_.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        return JobOutcome::missing(QStringLiteral("Flash stub not found in bundle"));
    }
    const BootImages boot = loadBootImages(resources_);
    if (fullFlash && !boot.complete()) {
        return JobOutcome::missing(QStringLiteral("Missing bootloader resources for full flash"));
    }

    sink.reportStarted(planBytes(*firmware, boot, fullFlash));
    const std::optional<QString> expectedVersion =
        options_.customFirmware ? std::nullopt : std::optional(BuildConfig::firmwareVersion());
    const esp_error_t result = FlasherBridge::flashFirmware(
        port_, *firmware, boot.bootloader, boot.partitions, boot.bootApp, *stub, fullFlash,
        options_.eraseAll, expectedVersion, sink.progress, sink.libraryLog);
    if (result != 0) {
        return JobOutcome::fromLibrary(result);
    }
    sink.reportSucceeded();
    sink.logLine(QStringLiteral("Firmware update complete."));
    if (options_.eraseAll) {
        sink.logLine(QString());
        sink.logLine(
            QStringLiteral("NOTE: Flash was erased. Use Config > Update Config to upload the "
                           "configuration for your machine."));
    }
    return JobOutcome::success();
}

double FirmwareUpdateJob::writtenShare(float fraction) {
    return std::clamp((static_cast<double>(fraction) - 0.12) / 0.73, 0.0, 1.0);
}

std::optional<QByteArray> FirmwareUpdateJob::loadFirmware(const JobSink& sink,
                                                          JobOutcome* failure) const {
    if (!options_.customFirmware) {
        const auto shipped = resources_.read(QStringLiteral("firmware"), QStringLiteral("bin"));
        if (!shipped) {
            *failure = JobOutcome::missing(QStringLiteral("Bundled firmware not found"));
            return std::nullopt;
        }
        sink.logLine(QStringLiteral("Updating firmware v") + BuildConfig::firmwareVersion() + "…");
        return shipped;
    }
    QString reason;
    const auto chosen = readWholeFile(*options_.customFirmware, &reason);
    if (!chosen) {
        *failure = JobOutcome::refusal(QStringLiteral("Failed to load custom firmware: ") + reason);
        return std::nullopt;
    }
    sink.logLine(QStringLiteral("Updating firmware (custom: ") +
                 QFileInfo(*options_.customFirmware).fileName() + ")…");
    return chosen;
}

bool FirmwareUpdateJob::decideFullFlash(const JobSink& sink) const {
    // Erasing the chip and then writing only the application would leave it
    // without a bootloader.
    if (options_.eraseAll || options_.writeBootPartitions) {
        return true;
    }
    sink.logLine(QStringLiteral("Checking device status…"));
    const auto version = DeviceQueries::firmwareVersion(port_);
    if (!version) {
        sink.logLine(QStringLiteral("Device not responding — writing boot partitions + firmware."));
        return true;
    }
    sink.logLine(QStringLiteral("Device running firmware ") + *version +
                 QStringLiteral(" — updating firmware only."));
    return false;
}
