#include "app/FlasherBridge.h"

#include <cstdlib>
#include <memory>
#include <mutex>

namespace FlasherBridge {
namespace {

// The library's callbacks have no context argument, so the closures of the one
// running job have to live where the trampolines can find them.
struct Slots {
    std::mutex mutex;
    std::shared_ptr<const ProgressHandler> activeProgressHandler;
    std::shared_ptr<const LogHandler> activeLogHandler;
};

Slots& handlerSlots() {
    static Slots instance;
    return instance;
}

QString textFrom(const char* text) {
    return text == nullptr ? QString() : QString::fromUtf8(text);
}

// Parks both closures for one library call and empties the slots on every return.
class ParkedHandlers {
  public:
    ParkedHandlers(ProgressHandler progress, LogHandler log) {
        auto parkedProgress = std::make_shared<const ProgressHandler>(std::move(progress));
        auto parkedLog = std::make_shared<const LogHandler>(std::move(log));
        const std::lock_guard lock(handlerSlots().mutex);
        parkedProgress.swap(handlerSlots().activeProgressHandler);
        parkedLog.swap(handlerSlots().activeLogHandler);
    }
    ~ParkedHandlers() {
        std::shared_ptr<const ProgressHandler> progress;
        std::shared_ptr<const LogHandler> log;
        {
            const std::lock_guard lock(handlerSlots().mutex);
            progress.swap(handlerSlots().activeProgressHandler);
            log.swap(handlerSlots().activeLogHandler);
        }
    }
    ParkedHandlers(const ParkedHandlers&) = delete;
    ParkedHandlers& operator=(const ParkedHandlers&) = delete;
};

const uint8_t* bytesOf(const QByteArray& buffer) {
    return reinterpret_cast<const uint8_t*>(buffer.constData());
}

size_t sizeOf(const QByteArray& buffer) {
    return static_cast<size_t>(buffer.size());
}

// The library's report, released with it on every path.
struct OwnedReport {
    esp_startup_report raw{};

    OwnedReport() = default;
    ~OwnedReport() { esp_startup_report_free(&raw); }
    OwnedReport(const OwnedReport&) = delete;
    OwnedReport& operator=(const OwnedReport&) = delete;

    StartupReport copy() const {
        StartupReport report;
        report.listened = raw.listened != 0;
        report.portLost = raw.portLost != 0;
        report.verdict = raw.verdict;
        if (raw.version != nullptr) {
            report.version = QString::fromUtf8(raw.version);
        }
        for (const char* line : raw.evidence) {
            if (line != nullptr) {
                report.evidence << QString::fromUtf8(line);
            }
        }
        return report;
    }
};

}  // namespace

esp_error_t flashFirmware(const QString& port, const QByteArray& firmware,
                          const QByteArray& bootloader, const QByteArray& partitions,
                          const QByteArray& bootApp, const QByteArray& stub, bool fullFlash,
                          bool eraseAll, const std::optional<QString>& expectedVersion,
                          ProgressHandler progress, LogHandler log, StartupReport* startup) {
    const ParkedHandlers parked(std::move(progress), std::move(log));
    const QByteArray portText = port.toUtf8();
    const QByteArray versionText = expectedVersion ? expectedVersion->toUtf8() : QByteArray();
    const char* expected = expectedVersion ? versionText.constData() : nullptr;
    if (startup == nullptr) {
        return esp_flash_firmware(portText.constData(), bytesOf(firmware), sizeOf(firmware),
                                  bytesOf(bootloader), sizeOf(bootloader), bytesOf(partitions),
                                  sizeOf(partitions), bytesOf(bootApp), sizeOf(bootApp),
                                  bytesOf(stub), sizeOf(stub), fullFlash ? 1 : 0, eraseAll ? 1 : 0,
                                  expected, detail::progressTrampoline, detail::logTrampoline);
    }
    OwnedReport report;
    const esp_error_t result = esp_flash_firmware_checked(
        portText.constData(), bytesOf(firmware), sizeOf(firmware), bytesOf(bootloader),
        sizeOf(bootloader), bytesOf(partitions), sizeOf(partitions), bytesOf(bootApp),
        sizeOf(bootApp), bytesOf(stub), sizeOf(stub), fullFlash ? 1 : 0, eraseAll ? 1 : 0, expected,
        detail::progressTrampoline, detail::logTrampoline, &report.raw);
    *startup = report.copy();
    return result;
}

esp_error_t checkStartup(const QString& port, const std::optional<QString>& expectedVersion,
                         int timeoutMs, StartupReport* startup, LogHandler log) {
    const ParkedHandlers parked({}, std::move(log));
    const QByteArray portText = port.toUtf8();
    const QByteArray versionText = expectedVersion ? expectedVersion->toUtf8() : QByteArray();
    OwnedReport report;
    const esp_error_t result =
        esp_check_startup(portText.constData(), expectedVersion ? versionText.constData() : nullptr,
                          timeoutMs, &report.raw, detail::logTrampoline);
    *startup = report.copy();
    return result;
}

esp_error_t uploadConfig(const QString& port, const QByteArray& configData,
                         ProgressHandler progress, LogHandler log) {
    const ParkedHandlers parked(std::move(progress), std::move(log));
    const QByteArray portText = port.toUtf8();
    return esp_upload_config(portText.constData(), bytesOf(configData), sizeOf(configData),
                             detail::progressTrampoline, detail::logTrampoline);
}

Download downloadFile(const QString& port, const QString& name, ProgressHandler progress,
                      LogHandler log) {
    const ParkedHandlers parked(std::move(progress), std::move(log));
    const QByteArray portText = port.toUtf8();
    const QByteArray nameText = name.toUtf8();
    uint8_t* data = nullptr;
    size_t length = 0;
    Download download;
    download.result =
        esp_download_file(portText.constData(), nameText.constData(), &data, &length,
                          detail::progressTrampoline, detail::logTrampoline, &download.status);
    const std::unique_ptr<uint8_t, decltype(&std::free)> owned(data, &std::free);
    if (download.result == 0 && data != nullptr) {
        download.data =
            QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(length));
    }
    return download;
}

namespace {

// esp_data_cb carries a context, so the closure travels with the call itself.
int dataTrampoline(void* context, const uint8_t* data, size_t length) {
    const auto& handler = *static_cast<const DataHandler*>(context);
    return handler(reinterpret_cast<const char*>(data), static_cast<qint64>(length)) ? 0 : 1;
}

}  // namespace

SnapshotEnd snapshotMachine(const QString& port, const QByteArray& stub, DataHandler data,
                            ProgressHandler progress, LogHandler log) {
    const ParkedHandlers parked(std::move(progress), std::move(log));
    const QByteArray portText = port.toUtf8();
    OwnedReport report;
    SnapshotEnd end;
    end.result = esp_snapshot_machine(portText.constData(), bytesOf(stub), sizeOf(stub),
                                      dataTrampoline, &data, detail::progressTrampoline,
                                      detail::logTrampoline, &end.status, &report.raw);
    end.startup = report.copy();
    return end;
}

esp_error_t restoreMachine(const QString& port, const QByteArray& snapshot, const QByteArray& stub,
                           const std::optional<QString>& expectedVersion, ProgressHandler progress,
                           LogHandler log, StartupReport* startup) {
    const ParkedHandlers parked(std::move(progress), std::move(log));
    const QByteArray portText = port.toUtf8();
    const QByteArray versionText = expectedVersion ? expectedVersion->toUtf8() : QByteArray();
    OwnedReport report;
    const esp_error_t result = esp_restore_machine(
        portText.constData(), bytesOf(snapshot), sizeOf(snapshot), bytesOf(stub), sizeOf(stub),
        expectedVersion ? versionText.constData() : nullptr, detail::progressTrampoline,
        detail::logTrampoline, &report.raw);
    *startup = report.copy();
    return result;
}

namespace detail {

void progressTrampoline(float progress, const char* message) {
    const QString text = textFrom(message);
    std::shared_ptr<const ProgressHandler> handler;
    {
        const std::lock_guard lock(handlerSlots().mutex);
        handler = handlerSlots().activeProgressHandler;
    }
    if (handler && *handler) {
        (*handler)(progress, text);
    }
}

void logTrampoline(const char* line) {
    const QString text = textFrom(line);
    std::shared_ptr<const LogHandler> handler;
    {
        const std::lock_guard lock(handlerSlots().mutex);
        handler = handlerSlots().activeLogHandler;
    }
    if (handler && *handler) {
        (*handler)(text);
    }
}

bool hasParkedHandlers() {
    const std::lock_guard lock(handlerSlots().mutex);
    return handlerSlots().activeProgressHandler != nullptr ||
           handlerSlots().activeLogHandler != nullptr;
}

}  // namespace detail
}  // namespace FlasherBridge
