#include <string>

#include "api/EntryHelpers.h"
#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "image/WholeFlash.h"

namespace {

esp_error_t snapshot(const char* port, const uint8_t* stub, size_t stubLen, esp_data_cb sink,
                     void* sinkContext, esp_progress_cb progress, esp_log_cb log,
                     esp_snapshot_status& status, esp::StartupRecord* startup) {
    if (sink == nullptr) {
        esp::logLine(log, "Invalid argument: sink is null");
        status.end = ESP_SNAPSHOT_INVALID_ARGUMENTS;
        return esp::result::ReadFailed;
    }
    if (esp::refuseNullBuffers({{"stub", stub, stubLen}}, log)) {
        status.end = ESP_SNAPSHOT_INVALID_ARGUMENTS;
        return esp::result::StubFailed;
    }
    esp::logLine(log, std::string("Opening port: ") + (port != nullptr ? port : ""));
    SerialPort serial;
    if (!esp::openPort(serial, port, log, true)) {
        status.end = ESP_SNAPSHOT_NOT_STARTED;
        return esp::result::PortOpenFailed;
    }
    const esp::ReadSink forward = [sink, sinkContext](const uint8_t* data, size_t size) {
        return sink(sinkContext, data, size) == 0;
    };
    const esp::SnapshotResult outcome =
        esp::runSnapshotJob(serial, stub, stubLen, forward, progress, log, startup);
    status = {outcome.end, outcome.size, outcome.received};
    return outcome.code;
}

// The file is checked before the port is opened: opening a USB serial node moves
// its modem lines, which the chip may take as a reset.
bool refuseSnapshot(const uint8_t* data, size_t size, esp_log_cb log) {
    // Whether a simulated machine's flash may be written is the caller's to decide.
    const auto refusal = image::snapshotRefusal(data, size, {.allowDevelopment = true});
    if (refusal) {
        esp::logLine(log, "Snapshot cannot be used: " + *refusal);
    }
    return refusal.has_value();
}

esp_error_t restore(const char* port, const uint8_t* snapshot, size_t snapshotLen,
                    const uint8_t* stub, size_t stubLen, esp_progress_cb progress, esp_log_cb log,
                    esp::StartupRecord* startup) {
    if (esp::refuseNullBuffers({{"snapshot", snapshot, snapshotLen}}, log) ||
        refuseSnapshot(snapshot, snapshotLen, log)) {
        return esp::result::WriteFailed;
    }
    if (esp::refuseNullBuffers({{"stub", stub, stubLen}}, log)) {
        return esp::result::StubFailed;
    }
    esp::logLine(log, std::string("Opening port: ") + (port != nullptr ? port : ""));
    SerialPort serial;
    if (!esp::openPort(serial, port, log, true)) {
        return esp::result::PortOpenFailed;
    }
    return esp::runRestoreJob(serial, snapshot, snapshotLen, stub, stubLen, progress, log, startup);
}

}  // namespace

extern "C" {

esp_error_t esp_snapshot_machine(const char* port, const uint8_t* stub, size_t stubLen,
                                 esp_data_cb sink, void* sinkContext, esp_progress_cb progress,
                                 esp_log_cb log, esp_snapshot_status* status,
                                 esp_startup_report* report) {
    esp_snapshot_status ignored{};
    esp_snapshot_status& outcome = status != nullptr ? *status : ignored;
    outcome = {ESP_SNAPSHOT_DONE, 0, 0};
    esp::StartupRecord startup;
    const esp_error_t code = snapshot(port, stub, stubLen, sink, sinkContext, progress, log,
                                      outcome, report != nullptr ? &startup : nullptr);
    esp::fillReport(report, startup, nullptr);
    return code;
}

esp_error_t esp_restore_machine(const char* port, const uint8_t* snapshot, size_t snapshotLen,
                                const uint8_t* stub, size_t stubLen, const char* expectedVersion,
                                esp_progress_cb progress, esp_log_cb log,
                                esp_startup_report* report) {
    esp::StartupRecord startup;
    const esp_error_t code = restore(port, snapshot, snapshotLen, stub, stubLen, progress, log,
                                     report != nullptr ? &startup : nullptr);
    esp::fillReport(report, startup, expectedVersion);
    return code;
}

}  // extern "C"
