#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "api/esp_flasher.h"
#include "esp/EspLoader.h"
#include "fluidnc/Download.h"
#include "serial/SerialPort.h"

/// The bodies of the library's jobs, run on a port that is already open. The
/// `esp_*` entry points open the port by path and call these; tests and the
/// simulator run them over the loopback back end as well.
namespace esp {

/// The result codes the entry points return; 1, 9 and 10 belong to the application.
namespace result {
constexpr esp_error_t Success = 0;
constexpr esp_error_t PortOpenFailed = 2;
constexpr esp_error_t NoSync = 3;
constexpr esp_error_t ChipRefused = 4;
constexpr esp_error_t StubFailed = 5;
constexpr esp_error_t WriteFailed = 6;
constexpr esp_error_t VerifyFailed = 7;
constexpr esp_error_t UploadFailed = 8;
constexpr esp_error_t DownloadFailed = 8;  ///< shares the upload's code
constexpr esp_error_t ReadFailed = 8;      ///< a flash read without a snapshot: the download's
constexpr esp_error_t TimedOut = 9;
}  // namespace result

/// The images and options of one flashing job; every buffer is borrowed.
struct FlashRequest {
    const uint8_t* firmware = nullptr;
    size_t firmwareLen = 0;
    const uint8_t* bootloader = nullptr;
    size_t bootloaderLen = 0;
    const uint8_t* partitions = nullptr;
    size_t partitionsLen = 0;
    const uint8_t* bootApp = nullptr;
    size_t bootAppLen = 0;
    const uint8_t* stub = nullptr;
    size_t stubLen = 0;
    bool fullFlash = false;
    bool eraseAll = false;
    const char* expectedVersion = nullptr;
};

/// What a job heard from the machine after its restart.
struct StartupRecord {
    bool listened = false;               ///< the machine was listened to after its restart
    bool portLost = false;               ///< the line hung up meanwhile
    std::optional<std::string> version;  ///< the version it answered
    std::vector<uint8_t> transcript;     ///< what it printed, the newest 64 KiB at most
};

/// The flashing job after the port has been opened (from the 500 ms settle on).
/// With `startup`, the version confirmation keeps what the machine prints into it
/// (the same bytes sent, lines logged, waits and result); it is left as it was when
/// the job does not confirm.
esp_error_t runFlashJob(SerialPort& port, const FlashRequest& request, esp_progress_cb progress,
                        esp_log_cb log, StartupRecord* startup = nullptr);

/// The start-up check after the port has been opened: listens 1500 ms, asks for a
/// replay of the start-up messages ("$SS", up to 1500 ms), then for the version
/// ("$I", 2000 ms after a bounded drain), each step shortened so that all of it
/// ends within `timeoutMs` (7000 gives every step its whole time).
StartupRecord runCheckStartupJob(SerialPort& port, int timeoutMs);

/// Fills every field of `report` from `record`, judging the start-up against
/// `expectedVersion` (null or empty: any version). Texts and the transcript become
/// malloc'd copies for the C caller; one that cannot be allocated stays null.
void fillStartupReport(esp_startup_report& report, const StartupRecord& record,
                       const char* expectedVersion);

/// The configuration upload after the port has been opened; 0 or 8.
esp_error_t runUploadConfigJob(SerialPort& port, const uint8_t* data, size_t length,
                               esp_progress_cb progress);

/// The file download after the port has been opened: the console is first left
/// idle as for the upload, then `name` is received. Absent on failure, which has
/// written one line to `log` and, when `failure` is not null, set `*failure`.
std::optional<std::vector<uint8_t>> runDownloadFileJob(SerialPort& port, const std::string& name,
                                                       esp_progress_cb progress, esp_log_cb log,
                                                       fluidnc::DownloadFailure* failure = nullptr);

/// How a snapshot job ended.
struct SnapshotResult {
    esp_error_t code = result::Success;
    int end = ESP_SNAPSHOT_DONE;  ///< enum esp_snapshot_end
    uint64_t size = 0;            ///< the whole flash, once decided
    uint64_t received = 0;        ///< bytes handed to the sink
};

/// The snapshot job after the port has been opened (from the 500 ms settle on):
/// the flashing job's start, then the whole flash into `sink` in flash order, and a
/// reset into the firmware once the stub ran. The bytes are a snapshot only when
/// the code is 0. With `startup`, a successful read is followed by listening to the
/// restart into it; it is left as it was otherwise.
SnapshotResult runSnapshotJob(SerialPort& port, const uint8_t* stub, size_t stubLen,
                              const ReadSink& sink, esp_progress_cb progress, esp_log_cb log,
                              StartupRecord* startup = nullptr);

/// The restore job after the port has been opened, for a snapshot that passed
/// `image::snapshotRefusal`: the flashing job's start, then the snapshot as one region
/// at 0x0 with its MD5 check, FLASH_END and the reset. With `startup`, the restart is
/// listened to after the reset. 0, 3, 4, 5, 6 or 7.
esp_error_t runRestoreJob(SerialPort& port, const uint8_t* snapshot, size_t size,
                          const uint8_t* stub, size_t stubLen, esp_progress_cb progress,
                          esp_log_cb log, StartupRecord* startup = nullptr);

/// The version query after the port has been opened.
std::optional<std::string> runQueryVersionJob(SerialPort& port);

/// The partition-table probe after the port has been opened: 1, 0 or -1.
int runProbePartitionTableJob(SerialPort& port, const uint8_t* stub, size_t stubLen);

/// True when `image::inspectPartitionTable` finds an application partition at
/// 0x10000: an entry of type 0 among the 0xAA entries before the first record
/// without that mark. Borrowed bytes; thread-safe.
bool isPartitionTableValid(const uint8_t* data, size_t size);

}  // namespace esp
