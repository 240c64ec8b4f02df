#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "esp_flasher.h"

/// Calls the flasher library with the application's buffers, texts and closures.
///
/// The library's callbacks carry no user data, so each operation parks its two
/// closures in process-wide slots for the duration of the call and hands the
/// library two fixed trampolines that forward to them. The slots are emptied on
/// every return; callbacks that arrive while they are empty are dropped.
///
/// Threading: call from a background worker, one operation at a time (the slots
/// are shared by the whole process). The closures run synchronously on the
/// calling thread.
namespace FlasherBridge {

/// Progress fraction 0..1 and stage text (empty when the library passed none).
using ProgressHandler = std::function<void(float progress, const QString& message)>;
/// One library log line (empty when the library passed none).
using LogHandler = std::function<void(const QString& line)>;

/// What the machine did after a restart, as the library judged it from what it
/// printed (see `esp_startup_report`).
struct StartupReport {
    bool listened = false;                ///< the machine was listened to after its restart
    bool portLost = false;                ///< the port hung up after the restart
    int verdict = ESP_STARTUP_NO_ANSWER;  ///< enum esp_startup_verdict
    std::optional<QString> version;       ///< the version it answered
    QStringList evidence;                 ///< quoted lines, the most telling first
};

/// Runs the library's flashing job. Empty boot buffers reach it with length 0;
/// an absent `expectedVersion` reaches it as a null pointer. Returns the
/// library's result unchanged; when `startup` is not null it is filled with how
/// the machine started afterwards, the job itself being the same.
esp_error_t flashFirmware(const QString& port, const QByteArray& firmware,
                          const QByteArray& bootloader, const QByteArray& partitions,
                          const QByteArray& bootApp, const QByteArray& stub, bool fullFlash,
                          bool eraseAll, const std::optional<QString>& expectedVersion,
                          ProgressHandler progress, LogHandler log,
                          StartupReport* startup = nullptr);

/// Listens to the machine on `port` after a restart, asks it to replay its
/// start-up messages and for its version, within `timeoutMs`, and fills `startup`.
/// Returns the library's result: 0, or 2 when the port could not be opened (which
/// `log` hears about).
esp_error_t checkStartup(const QString& port, const std::optional<QString>& expectedVersion,
                         int timeoutMs, StartupReport* startup, LogHandler log);

/// Uploads a configuration file's bytes; returns the library's result unchanged.
esp_error_t uploadConfig(const QString& port, const QByteArray& configData,
                         ProgressHandler progress, LogHandler log);

/// A file downloaded from the firmware, with the library's result.
struct Download {
    esp_error_t result = 0;
    QByteArray data;               ///< the file's bytes when `result` is 0, else empty
    esp_download_status status{};  ///< why it failed, as the library tells it
};

/// Downloads the file `name` (for example "config.yaml") from the firmware's file
/// system; the result is the library's, unchanged.
Download downloadFile(const QString& port, const QString& name, ProgressHandler progress,
                      LogHandler log);

/// Receives a snapshot's bytes in order as they arrive; false stops the read.
using DataHandler = std::function<bool(const char* data, qint64 size)>;

/// How a whole-flash read ended, as the library tells it.
struct SnapshotEnd {
    esp_error_t result = 0;
    esp_snapshot_status status{};  ///< why it ended, the size and the bytes received
    StartupReport startup;         ///< how the machine started after the read
};

/// Runs the library's whole-flash read (`esp_snapshot_machine`), handing every byte
/// to `data` on the calling thread; the bytes are a snapshot only when the result
/// is 0. Listens to the machine's start afterwards.
SnapshotEnd snapshotMachine(const QString& port, const QByteArray& stub, DataHandler data,
                            ProgressHandler progress, LogHandler log);

/// Writes a whole-flash snapshot back (`esp_restore_machine`) and fills `startup`
/// with how the machine started, judged against `expectedVersion` (none: any
/// version runs). Returns the library's result unchanged.
esp_error_t restoreMachine(const QString& port, const QByteArray& snapshot, const QByteArray& stub,
                           const std::optional<QString>& expectedVersion, ProgressHandler progress,
                           LogHandler log, StartupReport* startup);

namespace detail {
/// The trampolines handed to the library, exposed so that their text conversion
/// and their behaviour with empty slots can be checked.
void progressTrampoline(float progress, const char* message);
void logTrampoline(const char* line);
/// True while either slot holds a closure.
bool hasParkedHandlers();
}  // namespace detail

}  // namespace FlasherBridge
