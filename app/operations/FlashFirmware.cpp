#include "app/operations/FlashFirmware.h"

#include <QFileInfo>
#include <algorithm>

#include "app/BuildConfig.h"
#include "app/DeviceQueries.h"
#include "app/FlasherBridge.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CheckStartup.h"

namespace {

// Up to 5 s for the port to come back, and the whole check after it.
constexpr int kCheckAfterFlashMs = 12000;

// The flashing job's line as it turns from writing to the version confirmation,
// where it listens to the machine's start.
const QString kConfirming = QStringLiteral("Verifying firmware version...");

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

FlashFirmware::FlashFirmware(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {}

Outcome FlashFirmware::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    Outcome failure;
    const auto firmware = loadFirmware(sink, &failure);
    if (!firmware) {
        return failure;
    }
    // Checked before the version probe opens the port: a refused image reaches
    // nothing. A chosen file is checked again here, as it may have changed since
    // it was chosen.
    if (const auto refusal = imagesRefusal(*firmware, resources_, options_.developmentImages)) {
        return Outcome::make(Outcome::Kind::refused, *refusal);
    }
    const auto running = runningVersion(sink);
    if (options_.release) {
        if (auto older = olderRefusal(*options_.release, running, sink.audience)) {
            return *older;
        }
    }
    // Erasing the chip and then writing only the application would leave it
    // without a bootloader.
    const bool fullFlash = forcedFullFlash() || !running;

    const auto stub = resources_.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        return Outcome::make(Outcome::Kind::missingResource, Texts::stubMissing());
    }
    const BootImages boot = loadBootImages(resources_);
    if (fullFlash && !boot.complete()) {
        return Outcome::make(Outcome::Kind::missingResource, Texts::bootImagesMissing());
    }

    // Known before the restart, which may take the port away for a moment.
    const PlotterPort plotter = PlotterPort::at(port_);
    sink.enter(Phase::writingFirmware, planBytes(*firmware, boot, fullFlash));
    const std::optional<QString> expected = expectedVersion();
    const auto libraryLog = [&sink](const QString& line) {
        if (line == kConfirming) {
            sink.enter(Phase::checkingStartup);
        }
        if (sink.libraryLog) {
            sink.libraryLog(line);
        }
    };
    FlasherBridge::StartupReport startup;
    const esp_error_t result = FlasherBridge::flashFirmware(
        port_, *firmware, boot.bootloader, boot.partitions, boot.bootApp, *stub, fullFlash,
        options_.eraseAll, expected, sink.progress, libraryLog, &startup);
    if (result != 0) {
        return PortDiagnosis::afterJob(port_, Outcome::library(result), sink.audience);
    }
    sink.enter(Phase::firmwareWritten);
    sink.info(Texts::firmwareComplete());
    if (options_.eraseAll) {
        sink.info(QString());
        sink.info(Texts::flashErasedNote(sink.audience));
        if (options_.putBack) {
            sink.info(Texts::puttingBack(*options_.putBack));
        }
    }
    // A chosen image gives the job no version to confirm, and a port that went
    // away took the rest of the start with it: the check listens once more.
    if (!startup.listened || startup.portLost) {
        return CheckStartup(plotter, StartupCause::Written::firmware, expected, kCheckAfterFlashMs)
            .run(sink);
    }
    return startupOutcome(startup, StartupCause::Written::firmware, expected);
}

double FlashFirmware::writtenShare(float fraction) {
    return std::clamp(
        (static_cast<double>(fraction) - ESP_PROGRESS_REGIONS_START) / ESP_PROGRESS_REGIONS_SPAN,
        0.0, 1.0);
}

std::optional<QByteArray> FlashFirmware::loadFirmware(const OperationSink& sink,
                                                      Outcome* failure) const {
    if (!options_.customFirmware && options_.release) {
        sink.info(Texts::updatingRelease(VersionText::shown(options_.release->version)));
        auto fetched =
            fetchRelease(*options_.release, resources_, options_.developmentImages, sink);
        if (auto* refused = std::get_if<Outcome>(&fetched)) {
            *failure = std::move(*refused);
            return std::nullopt;
        }
        return std::get<QByteArray>(std::move(fetched));
    }
    if (!options_.customFirmware) {
        const auto shipped = resources_.read(QStringLiteral("firmware"), QStringLiteral("bin"));
        if (!shipped) {
            *failure = Outcome::make(Outcome::Kind::missingResource, Texts::shippedMissing());
            return std::nullopt;
        }
        sink.info(Texts::updatingShipped(BuildConfig::firmwareVersion()));
        return shipped;
    }
    QString reason;
    const auto chosen = readWholeFile(*options_.customFirmware, &reason);
    if (!chosen) {
        *failure = Outcome::make(Outcome::Kind::refused, Texts::customUnreadable(reason));
        return std::nullopt;
    }
    sink.info(Texts::updatingCustom(QFileInfo(*options_.customFirmware).fileName()));
    return chosen;
}

// After the write the machine must confirm the version that was chosen; a file
// names none.
std::optional<QString> FlashFirmware::expectedVersion() const {
    if (options_.customFirmware) {
        return std::nullopt;
    }
    return options_.release ? VersionText::shown(options_.release->version)
                            : BuildConfig::firmwareVersion();
}

bool FlashFirmware::forcedFullFlash() const {
    return options_.eraseAll || options_.writeBootPartitions;
}

// A forced full flash needs no version, but a catalogue's release is compared with it.
std::optional<QString> FlashFirmware::runningVersion(const OperationSink& sink) const {
    if (forcedFullFlash()) {
        const bool compared = options_.release && !options_.release->allowOlder;
        return compared ? DeviceQueries::firmwareVersion(port_) : std::nullopt;
    }
    sink.info(Texts::checkingDevice());
    const auto version = DeviceQueries::firmwareVersion(port_);
    sink.info(version ? Texts::deviceRunning(*version) : Texts::deviceNotResponding());
    return version;
}
