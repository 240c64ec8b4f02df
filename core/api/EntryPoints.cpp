#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>

#include "api/CText.h"
#include "api/EntryHelpers.h"
#include "api/Jobs.h"
#include "api/PortList.h"
#include "api/esp_flasher.h"
#include "serial/PortDiscovery.h"

namespace {

using esp::fillReport;
using esp::logLine;
using esp::openPort;
using esp::refuseNullBuffers;

int downloadFailure(fluidnc::DownloadFailure::Reason reason) {
    using Reason = fluidnc::DownloadFailure::Reason;
    switch (reason) {
        case Reason::none:
            return ESP_DOWNLOAD_OK;
        case Reason::invalidName:
            return ESP_DOWNLOAD_INVALID_NAME;
        case Reason::commandNotSent:
            return ESP_DOWNLOAD_COMMAND_NOT_SENT;
        case Reason::noBlock:
            return ESP_DOWNLOAD_NO_BLOCK;
        case Reason::cancelled:
            return ESP_DOWNLOAD_CANCELLED;
        case Reason::tooLarge:
            return ESP_DOWNLOAD_TOO_LARGE;
        case Reason::blockFailed:
            return ESP_DOWNLOAD_BLOCK_FAILED;
        case Reason::answerNotSent:
            return ESP_DOWNLOAD_ANSWER_NOT_SENT;
    }
    return ESP_DOWNLOAD_OK;
}

}  // namespace

extern "C" {

void esp_startup_report_free(esp_startup_report* report) {
    if (report == nullptr) {
        return;
    }
    std::free(report->version);
    report->version = nullptr;
    for (char*& line : report->evidence) {
        std::free(line);
        line = nullptr;
    }
    std::free(report->transcript);
    report->transcript = nullptr;
    report->transcriptLen = 0;
}

esp_error_t esp_flash_firmware(const char* port, const uint8_t* firmware, size_t firmwareLen,
                               const uint8_t* bootloader, size_t bootloaderLen,
                               const uint8_t* partitions, size_t partitionsLen,
                               const uint8_t* bootApp, size_t bootAppLen, const uint8_t* stub,
                               size_t stubLen, int fullFlash, int eraseAll,
                               const char* expectedVersion, esp_progress_cb progress,
                               esp_log_cb log) {
    return esp_flash_firmware_checked(port, firmware, firmwareLen, bootloader, bootloaderLen,
                                      partitions, partitionsLen, bootApp, bootAppLen, stub, stubLen,
                                      fullFlash, eraseAll, expectedVersion, progress, log, nullptr);
}

esp_error_t esp_flash_firmware_checked(const char* port, const uint8_t* firmware,
                                       size_t firmwareLen, const uint8_t* bootloader,
                                       size_t bootloaderLen, const uint8_t* partitions,
                                       size_t partitionsLen, const uint8_t* bootApp,
                                       size_t bootAppLen, const uint8_t* stub, size_t stubLen,
                                       int fullFlash, int eraseAll, const char* expectedVersion,
                                       esp_progress_cb progress, esp_log_cb log,
                                       esp_startup_report* report) {
    esp::StartupRecord startup;
    const esp_error_t code = [&] {
        if (refuseNullBuffers({{"firmware", firmware, firmwareLen},
                               {"bootloader", bootloader, bootloaderLen},
                               {"partitions", partitions, partitionsLen}},
                              log)) {
            return esp::result::WriteFailed;
        }
        if (refuseNullBuffers({{"stub", stub, stubLen}}, log)) {
            return esp::result::StubFailed;
        }
        logLine(log, std::string("Opening port: ") + (port != nullptr ? port : ""));
        SerialPort serial;
        if (!openPort(serial, port, log, true)) {
            return esp::result::PortOpenFailed;
        }
        const esp::FlashRequest request{
            firmware,       firmwareLen,   bootloader,     bootloaderLen, partitions,
            partitionsLen,  bootApp,       bootAppLen,     stub,          stubLen,
            fullFlash != 0, eraseAll != 0, expectedVersion};
        return esp::runFlashJob(serial, request, progress, log, report ? &startup : nullptr);
    }();
    fillReport(report, startup, expectedVersion);
    return code;
}

esp_error_t esp_check_startup(const char* port, const char* expectedVersion, int timeoutMs,
                              esp_startup_report* report, esp_log_cb log) {
    SerialPort serial;
    if (!openPort(serial, port, log, true)) {
        fillReport(report, {}, expectedVersion);
        return esp::result::PortOpenFailed;
    }
    fillReport(report, esp::runCheckStartupJob(serial, timeoutMs), expectedVersion);
    return esp::result::Success;
}

esp_error_t esp_upload_config(const char* port, const uint8_t* data, size_t length,
                              esp_progress_cb progress, esp_log_cb log) {
    if (refuseNullBuffers({{"data", data, length}}, log)) {
        return esp::result::UploadFailed;
    }
    SerialPort serial;
    if (!openPort(serial, port, log, false)) {
        return esp::result::PortOpenFailed;
    }
    return esp::runUploadConfigJob(serial, data, length, progress);
}

char* esp_query_version(const char* port) {
    SerialPort serial;
    if (!openPort(serial, port, nullptr, false)) {
        return nullptr;
    }
    const auto version = esp::runQueryVersionJob(serial);
    return version ? esp::dupString(*version) : nullptr;
}

char* esp_detect_device(uint16_t vendorId, uint16_t productId) {
    const auto ports = listESPPorts(vendorId, productId);
    return ports.empty() ? nullptr : esp::dupString(ports.front().calloutPath);
}

size_t esp_list_devices(uint16_t vendorId, uint16_t productId, esp_port_info* ports,
                        size_t capacity) {
    return esp::copyPortList(listESPPorts(vendorId, productId), ports, capacity);
}

int esp_probe_partition_table(const char* port, const uint8_t* stub, size_t stubLen) {
    SerialPort serial;
    if (refuseNullBuffers({{"stub", stub, stubLen}}, nullptr) ||
        !openPort(serial, port, nullptr, false)) {
        return -1;
    }
    return esp::runProbePartitionTableJob(serial, stub, stubLen);
}

esp_error_t esp_download_file(const char* port, const char* name, uint8_t** data, size_t* length,
                              esp_progress_cb progress, esp_log_cb log,
                              esp_download_status* status) {
    esp_download_status ignored{};
    esp_download_status& outcome = status != nullptr ? *status : ignored;
    outcome = {ESP_DOWNLOAD_OK, 0};
    if (data == nullptr || length == nullptr || name == nullptr) {
        logLine(log, "XModem download: invalid arguments");
        outcome.failure = ESP_DOWNLOAD_INVALID_ARGUMENTS;
        return esp::result::DownloadFailed;
    }
    *data = nullptr;
    *length = 0;
    SerialPort serial;
    if (!openPort(serial, port, log, true)) {
        outcome.failure = ESP_DOWNLOAD_PORT_NOT_OPENED;
        return esp::result::PortOpenFailed;
    }
    fluidnc::DownloadFailure failure;
    const auto file = esp::runDownloadFileJob(serial, name, progress, log, &failure);
    if (!file) {
        outcome = {downloadFailure(failure.reason), static_cast<uint32_t>(failure.block)};
        return esp::result::DownloadFailed;
    }
    if (!file->empty()) {
        *data = static_cast<uint8_t*>(std::malloc(file->size()));
        if (*data == nullptr) {
            logLine(log, "XModem download: out of memory");
            outcome.failure = ESP_DOWNLOAD_OUT_OF_MEMORY;
            return esp::result::DownloadFailed;
        }
        std::memcpy(*data, file->data(), file->size());
    }
    *length = file->size();
    return esp::result::Success;
}

}  // extern "C"
