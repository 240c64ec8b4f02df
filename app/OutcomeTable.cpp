#include "app/OutcomeTable.h"

#include "app/StartupVerdict.h"
#include "app/texts/OutcomeTexts.h"
#include "app/texts/SnapshotTexts.h"

namespace OutcomeTable {
namespace {

using Kind = Outcome::Kind;
using Text = QString (*)();

struct Row {
    Kind kind;
    esp_error_t code;  // for `failed`: the library's code
    int status;
    const char* meaning;  // none where an earlier row gives the status's meaning
    Text message;         // the owner's message when the row tells it; else the operation's
    Text nextStep;        // what to do next; none when nothing
};

constexpr const char* kPortUnusable =
    "the port cannot be used (missing, not a serial port, not permitted, in use) or could not "
    "be opened";

// A library failure keeps the library's code as its status. The library never
// returns 1, 9 or 10; their rows only give their messages.
constexpr Row kTable[] = {
    {Kind::noDevice, 0, 1, "no plotter is connected", nullptr, nullptr},
    {Kind::failed, ESP_RESULT_NO_DEVICE, 1, nullptr, Texts::noDeviceFound, nullptr},
    {Kind::notReady, 0, 1, "no plotter is ready to use", nullptr, nullptr},
    {Kind::portUnusable, 0, 2, kPortUnusable, nullptr, nullptr},
    {Kind::failed, ESP_RESULT_PORT_NOT_OPENED, 2, kPortUnusable, Texts::portNotOpened,
     Texts::closeOtherProgramAndRetry},
    {Kind::failed, ESP_RESULT_NO_SYNC, 3, "no sync with the bootloader", Texts::syncFailed,
     Texts::replugAndRetry},
    {Kind::failed, ESP_RESULT_WRONG_CHIP, 4,
     "unexpected chip, or secure boot or flash encryption enabled", Texts::unexpectedChip,
     Texts::contactSupport},
    {Kind::failed, ESP_RESULT_STUB_FAILED, 5, "the flasher stub did not start", Texts::stubFailed,
     Texts::retryWithAnotherCable},
    {Kind::failed, ESP_RESULT_WRITE_FAILED, 6, "erasing or writing the flash failed",
     Texts::flashWriteFailed, Texts::retryWithAnotherCable},
    {Kind::failed, ESP_RESULT_VERIFY_FAILED, 7, "verification failed", Texts::verificationFailed,
     Texts::retryWithAnotherCable},
    {Kind::failed, ESP_RESULT_CONFIG_FAILED, 8,
     "a configuration transfer with the machine failed (upload or download)",
     Texts::configUploadFailed, Texts::retryWithAnotherCable},
    {Kind::noAnswer, 0, 9, "the machine did not answer", nullptr, nullptr},
    {Kind::failed, ESP_RESULT_TIMED_OUT, 9, nullptr, Texts::timedOut, Texts::replugAndRetry},
    {Kind::notConfirmed, 0, 10,
     "written and verified, but the machine did not confirm that it runs it", nullptr, nullptr},
    {Kind::failed, ESP_RESULT_DISCONNECTED, 10, nullptr, Texts::disconnected,
     Texts::replugAndRetry},
    {Kind::refused, 0, 11, "a file or image was refused before anything was sent", nullptr,
     nullptr},
    {Kind::missingResource, 0, 12, "an image or configuration is missing from the resources",
     nullptr, nullptr},
    {Kind::notStarting, 0, 13, "written and verified, but the machine does not start", nullptr,
     nullptr},
    {Kind::configRejected, 0, 14, "the machine reports errors in its configuration", nullptr,
     nullptr},
    {Kind::noBackup, 0, 15, "the backup to restore was not found", nullptr, nullptr},
    {Kind::noPartitionTable, 0, 16, "the plotter holds no valid partition table", nullptr, nullptr},
    {Kind::notWritten, 0, 17, "a file could not be written on this computer", nullptr, nullptr},
    {Kind::nothingToRestore, 0, 18,
     "nothing is known to put back after a repair (no backup of this plotter, no choice "
     "given); nothing was erased",
     nullptr, nullptr},
    {Kind::catalogueUnusable, 0, 19,
     "the firmware catalogue cannot be used (unreachable, not validly signed, older than one "
     "already seen); nothing was written",
     nullptr, nullptr},
    {Kind::snapshotFailed, 0, 20,
     "no snapshot of the whole flash could be taken; before a write, nothing was written", nullptr,
     Texts::snapshotFailedNextStep},
    {Kind::failed, 0, usage, "the command line could not be understood", nullptr, nullptr},
    {Kind::busy, 0, crashed, "the command ended abnormally for a plotter", nullptr, nullptr},
    {Kind::failed, 0, stopped, "stopped with Ctrl+C", nullptr, nullptr},
};

const Row* rowOf(Kind kind, esp_error_t code) {
    for (const Row& row : kTable) {
        if (row.kind == kind && (kind != Kind::failed || row.code == code)) {
            return &row;
        }
    }
    return nullptr;
}

QString meaningOf(Kind kind) {
    const Row* row = rowOf(kind, 0);
    return row != nullptr && row->meaning != nullptr ? QString::fromUtf8(row->meaning) : QString();
}

}  // namespace

QString libraryMessage(esp_error_t code) {
    const Row* row = code != 0 ? rowOf(Kind::failed, code) : nullptr;
    return row != nullptr && row->message != nullptr ? row->message() : Texts::unknownError(code);
}

QString nextStep(const Outcome& outcome, Texts::Audience audience) {
    if (const StartupCause* startup = outcome.startup()) {
        if (startup->snapshot && outcome.kind == Kind::notStarting) {
            return startup->undone ? Texts::updateUndone()
                                   : Texts::undoUpdateStep(*startup->snapshot, audience);
        }
        return StartupVerdict::nextStep(*startup, audience);
    }
    const Row* row = rowOf(outcome.kind, outcome.code);
    return row != nullptr && row->nextStep != nullptr ? row->nextStep() : QString();
}

int exitStatus(const Outcome& outcome, Convention convention) {
    switch (outcome.kind) {
        case Kind::succeeded:
            return success;
        case Kind::differs:
            return different;
        case Kind::noDevice:
            return convention == Convention::diff ? ESP_RESULT_CONFIG_FAILED : 1;
        default:
            break;
    }
    // A library code outside the table is passed on as it is.
    const Row* row = rowOf(outcome.kind, outcome.code);
    return row != nullptr ? row->status : static_cast<int>(outcome.code);
}

QString meaning(int status) {
    for (const Row& row : kTable) {
        if (row.status == status && row.meaning != nullptr) {
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
        } else if (convention == Convention::diff && status == ESP_RESULT_CONFIG_FAILED) {
            text += QStringLiteral(" (also when no plotter is connected)");
        } else if (convention == Convention::checklist && status == 1) {
            text = meaningOf(Kind::notReady);
        }
        lines << QStringLiteral("%1 %2").arg(status, -2).arg(text);
    }
    return lines;
}

}  // namespace OutcomeTable
