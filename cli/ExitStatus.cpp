#include "cli/ExitStatus.h"

#include <iterator>

namespace ExitStatus {
namespace {

using Kind = Outcome::Kind;

struct Row {
    int status;
    Kind kind;
    esp_error_t code;  // for `failed`: the library's code
    const char* meaning;
};

constexpr const char* kPortUnusable =
    "the port cannot be used (missing, not a serial port, not permitted, in use) or could not "
    "be opened";

// The one table. A library failure keeps the library's code as its status.
constexpr Row kTable[] = {
    {1, Kind::noDevice, 0, "no plotter is connected"},
    {1, Kind::notReady, 0, "no plotter is ready to use"},
    {2, Kind::portUnusable, 0, kPortUnusable},
    {2, Kind::failed, 2, kPortUnusable},
    {3, Kind::failed, 3, "no sync with the bootloader"},
    {4, Kind::failed, 4, "unexpected chip, or secure boot or flash encryption enabled"},
    {5, Kind::failed, 5, "the flasher stub did not start"},
    {6, Kind::failed, 6, "erasing or writing the flash failed"},
    {7, Kind::failed, 7, "verification failed"},
    {8, Kind::failed, 8, "a configuration transfer with the machine failed (upload or download)"},
    {9, Kind::noAnswer, 0, "the machine did not answer"},
    {10, Kind::notConfirmed, 0,
     "written and verified, but the machine did not confirm that it runs it"},
    {11, Kind::refused, 0, "a file or image was refused before anything was sent"},
    {12, Kind::missingResource, 0, "an image or configuration is missing from the resources"},
    {13, Kind::notStarting, 0, "written and verified, but the machine does not start"},
    {14, Kind::configRejected, 0, "the machine reports errors in its configuration"},
    {15, Kind::noBackup, 0, "the backup to restore was not found"},
    {16, Kind::noPartitionTable, 0, "the plotter holds no valid partition table"},
    {17, Kind::notWritten, 0, "a file could not be written on this computer"},
    {18, Kind::nothingToRestore, 0,
     "nothing is known to put back after a repair (no backup of this plotter, no choice "
     "given); nothing was erased"},
    {usage, Kind::failed, 0, "the command line could not be understood"},
    {crashed, Kind::failed, 0, "the command ended abnormally for a plotter"},
    {stopped, Kind::failed, 0, "stopped with Ctrl+C"},
};

QString meaningOf(Kind kind) {
    for (const Row& row : kTable) {
        if (row.kind == kind) {
            return QString::fromUtf8(row.meaning);
        }
    }
    return QString();
}

}  // namespace

int of(const Outcome& outcome, Convention convention) {
    switch (outcome.kind) {
        case Kind::succeeded:
            return success;
        case Kind::differs:
            return different;
        case Kind::noDevice:
            return convention == Convention::diff ? 8 : 1;
        case Kind::busy:
            return crashed;
        default:
            break;
    }
    for (const Row& row : kTable) {
        if (row.kind == outcome.kind && (row.kind != Kind::failed || row.code == outcome.code)) {
            return row.status;
        }
    }
    // A library code outside the table is passed on as it is.
    return static_cast<int>(outcome.code);
}

QString meaning(int status) {
    for (const Row& row : kTable) {
        if (row.status == status) {
            return QString::fromUtf8(row.meaning);
        }
    }
    return QString();
}

QStringList help(const QList<int>& statuses, const QString& successMeaning, Convention convention) {
    QStringList lines;
    for (const int status : statuses) {
        QString text = status == success ? successMeaning : meaning(status);
        if (convention == Convention::diff && status == different) {
            text = QStringLiteral("different, as diff(1) reports it");
        } else if (convention == Convention::diff && status == 8) {
            text += QStringLiteral(" (also when no plotter is connected)");
        } else if (convention == Convention::checklist && status == 1) {
            text = meaningOf(Kind::notReady);
        }
        lines << QStringLiteral("%1 %2").arg(status, -2).arg(text);
    }
    return lines;
}

}  // namespace ExitStatus
