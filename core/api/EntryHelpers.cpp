#include "api/EntryHelpers.h"

#include "serial/PortHolder.h"

namespace esp {
namespace {

// A second program on the port (a serial monitor, a G-code sender) would take
// some of the device's replies, and the job would fail with misleading advice.
bool refuseSharedPort(const char* path, esp_log_cb log) {
    if (path == nullptr) {
        return false;
    }
    const auto holder = findOtherPortHolder(path);
    if (!holder) {
        return false;
    }
    logLine(log,
            "Port is in use by " + holder->name + " (pid " + std::to_string(holder->pid) + ")");
    logLine(log, "Failed to open port");
    return true;
}

}  // namespace

void logLine(esp_log_cb log, const std::string& line) {
    if (log != nullptr) {
        log(line.c_str());
    }
}

// The jobs would read `length` bytes from the null pointer.
bool refuseNullBuffers(std::initializer_list<Buffer> buffers, esp_log_cb log) {
    for (const Buffer& buffer : buffers) {
        if (buffer.data == nullptr && buffer.length != 0) {
            logLine(log, std::string("Invalid argument: ") + buffer.name + " is null with length " +
                             std::to_string(buffer.length));
            return true;
        }
    }
    return false;
}

bool openPort(SerialPort& serial, const char* path, esp_log_cb log, bool logOpenFailure) {
    if (refuseSharedPort(path, log)) {
        return false;
    }
    if (path == nullptr || !serial.open(path)) {
        if (logOpenFailure) {
            logLine(log, "Failed to open port");
        }
        return false;
    }
    return true;
}

void fillReport(esp_startup_report* report, const StartupRecord& record,
                const char* expectedVersion) {
    if (report != nullptr) {
        fillStartupReport(*report, record, expectedVersion);
    }
}

}  // namespace esp
