#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <variant>

#include "app/Backup.h"
#include "app/Checklist.h"
#include "app/ConfigDiff.h"
#include "app/catalogue/Catalogue.h"
#include "app/catalogue/CatalogueFailure.h"
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
    /// After a configuration the machine rejects: the backup of the one it had
    /// before, which the owner may put back; none when no such backup is known.
    std::optional<Backup> previous;
    /// The snapshot of the whole flash taken right before the write, which puts the
    /// machine back as it was; none when none was taken.
    std::optional<QString> snapshot;
    /// That snapshot has been put back already (the write's own status still tells).
    bool undone = false;

    friend bool operator==(const StartupCause&, const StartupCause&) = default;
};

/// How a job ended that erases the machine and keeps its settings (Erase All Flash
/// with Save and Restore, the repair): where it stopped before erasing, the
/// machine's start once written (none when the job ended before it), the copy
/// saved before the erase and the file put back afterwards.
struct SettingsCause {
    enum class Stop {
        none,            ///< it erased, or ended for another reason
        firmwareSilent,  ///< the firmware did not answer, so nothing could be saved
        notSaved,        ///< the copy could not be read, kept or checked
    };

    Stop stop = Stop::none;
    std::optional<StartupCause> startup;
    std::optional<QString> saved;     ///< path of the copy read before the erase
    std::optional<QString> restored;  ///< path of the configuration put back

    friend bool operator==(const SettingsCause&, const SettingsCause&) = default;
};

/// A catalogue release older than the firmware the machine runs: installed only
/// when the owner allows it.
struct OlderRelease {
    QString chosen;   ///< the release's version, as the catalogue lists it
    QString running;  ///< the version the machine answered, cleaned ("2.10.6")

    friend bool operator==(const OlderRelease&, const OlderRelease&) = default;
};

/// One firmware version that may be installed.
struct FirmwareRelease {
    enum class Source { bundled, catalogue };

    QString version;  ///< "2.10.6"
    FirmwareChannel channel = FirmwareChannel::stable;
    QDate date;     ///< of the release; invalid for the bundled firmware
    QString notes;  ///< plain text; empty for the bundled firmware
    Source source = Source::bundled;

    friend bool operator==(const FirmwareRelease&, const FirmwareRelease&) = default;
};

/// The firmware versions that may be installed: the bundled one first, then the
/// catalogue's, newest first.
struct FirmwareListing {
    QList<FirmwareRelease> releases;
    /// The catalogue's newest stable version when it is newer than the bundled one.
    std::optional<QString> newerStable;
    /// Set when the catalogue's source could not be reached and the last accepted
    /// catalogue is listed: when that one was published.
    std::optional<QDateTime> offlineSince;

    friend bool operator==(const FirmwareListing&, const FirmwareListing&) = default;
};

/// The verdict's name in machine-readable output: "running", "wrong-version",
/// "boot-loop", "panic", "no-app", "brownout", "config-error" or "no-answer".
QString verdictName(int verdict);
/// The verdict of such a name; none for any other text.
std::optional<int> verdictNamed(const QString& name);

/// What is known, as data, about why an operation ended as it did (or what it
/// found), and whatever the window or the command line needs from it afterwards;
/// empty where the kind alone tells. A connection check carries its whole
/// checklist; a listing of backups, the backups found; a comparison, how the two
/// configurations differ; a listing of firmware, the versions; a catalogue that
/// cannot be used, or a release it refuses, why; a release older than the
/// running firmware, both versions; a snapshot, the file kept (a `Backup`).
using Cause = std::variant<std::monostate, DownloadCause, PortCause, Checklist, StartupCause,
                           BackupListing, SettingsCause, ConfigComparison, CatalogueFailure,
                           OlderRelease, FirmwareListing, Backup>;

/// How an operation ended: the only way a result leaves an operation. Created where
/// the result is known and carried unchanged to the window and to the command line,
/// which present it; neither works anything out again from its texts, nor reads
/// anything off the operation after it ran. A plain value.
struct Outcome {
    enum class Kind {
        succeeded,          ///< it did what it was asked
        differs,            ///< a comparison ran and found differences
        noPartitionTable,   ///< the plotter answered and holds no valid partition table
        noDevice,           ///< no plotter is connected
        failed,             ///< the library returned `code`
        noAnswer,           ///< the machine did not answer
        refused,            ///< its input was refused before anything reached the machine
        missingResource,    ///< something it needs is missing from the resources folder
        notWritten,         ///< a file on this computer could not be written
        busy,               ///< another operation was still running
        notConfirmed,       ///< written and verified, but the machine did not confirm it runs
        notStarting,        ///< written and verified, but the machine does not start
        configRejected,     ///< the machine runs but rejects its configuration
        portUnusable,       ///< the port cannot be used; `cause` is a PortCause
        notReady,           ///< the connection check found no plotter ready to use
        noBackup,           ///< the backup to restore was not found
        nothingToRestore,   ///< a repair knows no configuration to put back; nothing was erased
        catalogueUnusable,  ///< the firmware catalogue cannot be used; `cause` says why
        snapshotFailed,     ///< no snapshot of the whole flash could be taken; nothing was written
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
    /// The library's `code` (not 0) with its message from the outcome table.
    static Outcome library(esp_error_t code);

    /// True for every kind that the owner is shown as an error.
    bool isFailure() const {
        return kind != Kind::succeeded && kind != Kind::differs && kind != Kind::noPartitionTable;
    }

    /// True when the write itself succeeded and the outcome tells how the machine
    /// started afterwards (a `StartupCause`), whatever that was.
    bool isVerdict() const { return startup() != nullptr; }

    /// How the machine started, also within a `SettingsCause`; null when not told.
    const StartupCause* startup() const {
        if (const auto* settings = std::get_if<SettingsCause>(&cause)) {
            return settings->startup ? &*settings->startup : nullptr;
        }
        return std::get_if<StartupCause>(&cause);
    }
    StartupCause* startup() {
        return const_cast<StartupCause*>(static_cast<const Outcome*>(this)->startup());
    }
};

/// The kind's name in machine-readable output: "succeeded", "not-starting",
/// "port-unusable", …
QString kindName(Outcome::Kind kind);
/// The kind of such a name; none for any other text.
std::optional<Outcome::Kind> kindNamed(const QString& name);
