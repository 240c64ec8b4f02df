#include "app/operations/SnapshotFirst.h"

#include "app/DeviceQueries.h"
#include "app/Texts.h"
#include "app/operations/RestoreMachine.h"
#include "app/operations/TakeSnapshot.h"

SnapshotFirst::SnapshotFirst(QString port, ResourceBundle resources,
                             std::shared_ptr<Operation> write, Options options)
    : port_(std::move(port)),
      resources_(std::move(resources)),
      write_(std::move(write)),
      options_(std::move(options)) {
    if (options_.machine.isEmpty()) {
        options_.machine = DeviceQueries::machineIdentity(port_);
    }
}

std::shared_ptr<Operation> SnapshotFirst::around(bool wanted, QString port,
                                                 ResourceBundle resources,
                                                 std::shared_ptr<Operation> write,
                                                 Options options) {
    if (!wanted) {
        return write;
    }
    return std::make_shared<SnapshotFirst>(std::move(port), std::move(resources), std::move(write),
                                           std::move(options));
}

std::optional<Outcome> SnapshotFirst::refusal() {
    return write_->refusal();
}

Outcome SnapshotFirst::run(const OperationSink& sink) {
    TakeSnapshot::Options snapshotOptions;
    snapshotOptions.reason = options_.reason;
    snapshotOptions.machine = options_.machine;
    snapshotOptions.emptyFlashIsFine = true;
    const Outcome snapshot = TakeSnapshot(port_, resources_, snapshotOptions).run(sink);
    if (snapshot.kind == Outcome::Kind::portUnusable) {
        return snapshot;
    }
    if (snapshot.isFailure()) {
        Outcome failed = Outcome::make(Outcome::Kind::snapshotFailed,
                                       Texts::nothingWrittenWithoutSnapshot(snapshot.message));
        failed.code = snapshot.code;
        return failed;
    }
    Outcome written = write_->run(sink);
    const auto* kept = std::get_if<Backup>(&snapshot.cause);
    StartupCause* startup = written.startup();
    if (kept == nullptr || startup == nullptr) {
        return written;
    }
    startup->snapshot = kept->path;
    if (options_.undoOnFailure && written.kind == Outcome::Kind::notStarting) {
        undo(written, kept->path, sink);
    }
    return written;
}

void SnapshotFirst::undo(Outcome& written, const QString& snapshot,
                         const OperationSink& sink) const {
    sink.info(Texts::undoingUpdate());
    RestoreMachine::Options restore;
    restore.snapshot = snapshot;
    restore.machine = options_.machine;
    restore.otherMachineAllowed = true;
    restore.developmentImages = options_.developmentImages;
    const Outcome restored = RestoreMachine(port_, resources_, restore).run(sink);
    if (restored.isFailure()) {
        sink.error(Texts::undoFailed(restored.message));
        return;
    }
    sink.info(restored.message);
    written.startup()->undone = true;
}
