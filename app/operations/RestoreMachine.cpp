#include "app/operations/RestoreMachine.h"

#include <QFile>
#include <QFileInfo>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/FlasherBridge.h"
#include "app/PlotterPort.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CheckStartup.h"
#include "image/WholeFlash.h"

namespace {

// Up to 5 s for the port to come back, and the whole check after it.
constexpr int kCheckAfterRestoreMs = 12000;
// The loader's line once the flash's MD5 matched; the reset and the listening follow.
const QString kVerified = QStringLiteral("VERIFY OK");

Outcome refused(const QString& message) {
    return Outcome::make(Outcome::Kind::refused, message);
}

}  // namespace

RestoreMachine::RestoreMachine(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {
    if (options_.machine.isEmpty()) {
        options_.machine = DeviceQueries::machineIdentity(port_);
    }
}

// A file outside the backups folder has no record of its machine; the owner chose
// it by its path.
std::optional<Outcome> RestoreMachine::find() {
    const BackupIndex index;
    if (options_.snapshot.isEmpty()) {
        record_ = index.newestSnapshotOf(options_.machine);
        if (!record_) {
            return Outcome::make(Outcome::Kind::noBackup,
                                 Texts::noSnapshotOfMachine(options_.machine, index.folder()));
        }
    } else {
        record_ = index.findSnapshot(options_.snapshot);
    }
    path_ = record_ ? record_->path : options_.snapshot;
    if (!record_ && !QFileInfo(path_).isFile()) {
        return Outcome::make(Outcome::Kind::noBackup,
                             Texts::snapshotNotFound(options_.snapshot, index.folder()));
    }
    return std::nullopt;
}

std::optional<Outcome> RestoreMachine::refusal() {
    checked_ = true;
    if (auto missing = find()) {
        return missing;
    }
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        return refused(Texts::snapshotUnreadable(path_, file.errorString()));
    }
    // One byte past the largest flash is enough to refuse a file for its size.
    snapshot_ = file.read(static_cast<qint64>(image::kLargestFlash) + 1);
    const QString name = QFileInfo(path_).fileName();
    image::SnapshotRules rules;
    rules.allowDevelopment = options_.developmentImages == DevelopmentImages::accept;
    if (const auto why =
            image::snapshotRefusal(reinterpret_cast<const uint8_t*>(snapshot_.constData()),
                                   static_cast<size_t>(snapshot_.size()), rules)) {
        snapshot_.clear();
        return refused(Texts::snapshotRefused(name, QString::fromStdString(*why)));
    }
    if (record_ && record_->machine != options_.machine && !options_.otherMachineAllowed) {
        snapshot_.clear();
        return refused(Texts::otherMachineRefused(record_->machine, options_.machine));
    }
    return std::nullopt;
}

Outcome RestoreMachine::run(const OperationSink& sink) {
    if (!checked_) {
        if (auto refusedFirst = refusal()) {
            return *refusedFirst;
        }
    }
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    const auto stub = resources_.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        return Outcome::make(Outcome::Kind::missingResource, Texts::stubMissing());
    }
    const QDateTime taken = record_ ? record_->time : QFileInfo(path_).lastModified();
    const QString time = Texts::backupTime(taken, sink.audience);
    sink.info(Texts::restoringSnapshot(time, QFileInfo(path_).fileName()));
    const PlotterPort plotter = PlotterPort::at(port_);
    sink.enter(Phase::writingFirmware, snapshot_.size());
    const auto libraryLog = [&sink](const QString& line) {
        if (line == kVerified) {
            sink.enter(Phase::checkingStartup);
        }
        if (sink.libraryLog) {
            sink.libraryLog(line);
        }
    };
    FlasherBridge::StartupReport startup;
    const esp_error_t result = FlasherBridge::restoreMachine(port_, snapshot_, *stub, std::nullopt,
                                                             sink.progress, libraryLog, &startup);
    if (result != 0) {
        return PortDiagnosis::afterJob(port_, Outcome::library(result), sink.audience);
    }
    sink.enter(Phase::firmwareWritten);
    Outcome ended = startup.listened && !startup.portLost
                        ? startupOutcome(startup, StartupCause::Written::firmware, std::nullopt)
                        : CheckStartup(plotter, StartupCause::Written::firmware, std::nullopt,
                                       kCheckAfterRestoreMs)
                              .run(sink);
    if (ended.kind == Outcome::Kind::succeeded) {
        const StartupCause* started = ended.startup();
        const QString version = VersionText::shown(
            VersionText::cleanFirmwareVersion(started->version.value_or(QString())));
        ended.message = version.isEmpty() ? Texts::machineRestoredUnnamed(time)
                                          : Texts::machineRestored(time, version);
    }
    return ended;
}
