#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <variant>

#include "app/Backup.h"
#include "app/Checklist.h"
#include "esp_flasher.h"

/// Why reading a file from the machine failed, as the library tells it.
struct DownloadCause {
    int failure = ESP_DOWNLOAD_OK;  ///< enum esp_download_failure
    uint32_t block = 0;             ///< the block that failed, counted from 1

    friend bool operator==(const DownloadCause&, const DownloadCause&) = default;
};

/// Why a port cannot be used, as the library's port check finds it (esp_check_port).
struct PortCause {
    QString path;
    int problem = ESP_PORT_OK;  ///< enum esp_port_problem
    int error = 0;              ///< the errno behind it
    // The node's access, filled whenever the node exists.
    QString owner;
    QString group;
    unsigned mode = 0;           ///< permission bits, e.g. 0660
    QString user;                ///< the user this program runs as
    bool userInGroup = false;    ///< the account database puts the user in `group`
    bool groupInEffect = false;  ///< this process has `group` (false until a new login)
    int holderPid = 0;           ///< for a port in use: the other program, 0 when unnamed
    QString holderName;

    friend bool operator==(const PortCause&, const PortCause&) = default;
};

/// How the machine started after a write, from what it printed (see
/// `esp_startup_verdict`).
struct StartupCause {
    int verdict = ESP_STARTUP_NO_ANSWER;  ///< enum esp_startup_verdict
    std::optional<QString> version;       ///< the version it answered
    std::optional<QString> expected;      ///< the version that was written, when known
    /// What was written: firmware, or a configuration (the machine restarted with it).
    enum class Written { firmware, configuration } written = Written::firmware;

    friend bool operator==(const StartupCause&, const StartupCause&) = default;
};

/// How a repair ended once it had written: the machine's start (none when the job
/// failed before it), the file put back and the copy saved before the erase.
struct RepairCause {
    std::optional<StartupCause> startup;
    std::optional<QString> restored;  ///< path of the configuration put back
    std::optional<QString> saved;     ///< path of the copy read before the erase

    friend bool operator==(const RepairCause&, const RepairCause&) = default;
};

/// The verdict's name in machine-readable output: "running", "wrong-version",
/// "boot-loop", "panic", "no-app", "brownout", "config-error" or "no-answer".
QString verdictName(int verdict);
/// The verdict of such a name; none for any other text.
std::optional<int> verdictNamed(const QString& name);

/// What is known, as data, about why an operation ended as it did (or what it
/// found); empty where the kind alone tells. A connection check carries its whole
/// checklist; a listing of backups, the backups found.
using Cause = std::variant<std::monostate, DownloadCause, PortCause, Checklist, StartupCause,
                           BackupListing, RepairCause>;

/// How an operation ended. Created where the result is known and carried
/// unchanged to the window and to the command line, which present it; neither
/// works anything out again from its texts. A plain value.
struct Outcome {
    enum class Kind {
        succeeded,         ///< it did what it was asked
        differs,           ///< a comparison ran and found differences
        noPartitionTable,  ///< the plotter answered and holds no valid partition table
        noDevice,          ///< no plotter is connected
        failed,            ///< the library returned `code`
        noAnswer,          ///< the machine did not answer
        refused,           ///< its input was refused before anything reached the machine
        missingResource,   ///< something it needs is missing from the resources folder
        notWritten,        ///< a file on this computer could not be written
        busy,              ///< another operation was still running
        notConfirmed,      ///< written and verified, but the machine did not confirm it runs
        notStarting,       ///< written and verified, but the machine does not start
        configRejected,    ///< the machine runs but rejects its configuration
        portUnusable,      ///< the port cannot be used; `cause` is a PortCause
        notReady,          ///< the connection check found no plotter ready to use
        noBackup,          ///< the backup to restore was not found
        nothingToRestore,  ///< a repair knows no configuration to put back; nothing was erased
    };

    Kind kind = Kind::succeeded;
    esp_error_t code = 0;  ///< the library's result code when `failed`
    Cause cause;
    /// Lines that show what happened, quoted from the machine or the files compared.
    QStringList evidence;
    /// The owner-facing message, without "ERROR: ".
    QString message;

    static Outcome success(QString message) { return make(Kind::succeeded, std::move(message)); }
    static Outcome make(Kind kind, QString message) {
        Outcome outcome;
        outcome.kind = kind;
        outcome.message = std::move(message);
        return outcome;
    }
    /// The library's `code` (not 0) with its message from the catalogue.
    static Outcome library(esp_error_t code);

    /// True for every kind that the owner is shown as an error.
    bool isFailure() const {
        return kind != Kind::succeeded && kind != Kind::differs && kind != Kind::noPartitionTable;
    }

    /// True when the write itself succeeded and the outcome tells how the machine
    /// started afterwards (a `StartupCause`), whatever that was.
    bool isVerdict() const { return startup() != nullptr; }

    /// How the machine started, also within a repair's cause; null when not told.
    const StartupCause* startup() const {
        if (const auto* repair = std::get_if<RepairCause>(&cause)) {
            return repair->startup ? &*repair->startup : nullptr;
        }
        return std::get_if<StartupCause>(&cause);
    }
};
