#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>

#include "api/Jobs.h"
#include "api/esp_flasher.h"
#include "serial/SerialPort.h"

/// What the entry points do before and after their jobs: argument and port checks,
/// and the start-up report. Internal to core/api; thread-safe as the callers' log is.
namespace esp {

/// A borrowed buffer of the C interface, named for the log line that refuses it.
struct Buffer {
    const char* name;
    const uint8_t* data;
    size_t length;
};

/// Calls `log` with the line when it is not null.
void logLine(esp_log_cb log, const std::string& line);

/// True, after one "Invalid argument: <name> is null with length <n>" line, for the
/// first buffer that is null with a length; null with length 0 means absent.
bool refuseNullBuffers(std::initializer_list<Buffer> buffers, esp_log_cb log);

/// Opens `path` into `serial` unless another program holds it ("Port is in use by
/// <name> (pid <n>)", then "Failed to open port"); a plain open failure is logged
/// ("Failed to open port") only with `logOpenFailure`.
bool openPort(SerialPort& serial, const char* path, esp_log_cb log, bool logOpenFailure);

/// Fills `report`, when not null, from `record`.
void fillReport(esp_startup_report* report, const StartupRecord& record,
                const char* expectedVersion);

}  // namespace esp
