#include "app/operations/TakeSnapshot.h"

#include <QFile>

#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/FlasherBridge.h"
#include "app/PortDiagnosis.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "image/EspImage.h"
#include "image/Partitions.h"
#include "image/WholeFlash.h"

namespace {

QByteArray readRegion(QFile& file, qint64 offset, qint64 size) {
    return file.seek(offset) ? file.read(size) : QByteArray();
}

const uint8_t* bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const uint8_t*>(bytes.constData());
}

// What the sidecar tells of the flash, read back from the file the bytes went to,
// so that the whole flash never has to be held in memory.
SnapshotFacts factsOf(const QString& path, const FlasherBridge::StartupReport& startup) {
    SnapshotFacts facts;
    if (startup.listened) {
        facts.startup = startup.verdict;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return facts;
    }
    const QByteArray table =
        readRegion(file, image::kPartitionTableOffset, image::kPartitionTableSize);
    const auto report =
        image::inspectPartitionTable(bytesOf(table), static_cast<size_t>(table.size()));
    std::optional<image::PartitionEntry> application;
    for (const image::PartitionEntry& entry : report.entries) {
        facts.partitions << Texts::partitionInWords(QString::fromStdString(entry.label),
                                                    entry.type == 0, entry.subtype, entry.offset,
                                                    entry.size);
        if (entry.type == 0 && !application) {
            application = entry;
        }
    }
    if (application) {
        const QByteArray app = readRegion(file, application->offset, application->size);
        const auto image = image::inspectImage(bytesOf(app), static_cast<size_t>(app.size()));
        if (image.app && !image.app->version.empty()) {
            facts.application = QString::fromStdString(image.app->version);
        }
    }
    return facts;
}

}  // namespace

TakeSnapshot::TakeSnapshot(QString port, ResourceBundle resources, Options options)
    : port_(std::move(port)), resources_(std::move(resources)), options_(std::move(options)) {
    if (options_.machine.isEmpty()) {
        options_.machine = DeviceQueries::machineIdentity(port_);
    }
}

Outcome TakeSnapshot::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    const auto stub = resources_.read(QStringLiteral("esp32s3_stub"), QStringLiteral("bin"));
    if (!stub) {
        return Outcome::make(Outcome::Kind::missingResource, Texts::stubMissing());
    }
    const BackupIndex index;
    auto received = index.receive();
    if (const auto* unusable = std::get_if<QString>(&received)) {
        return Outcome::make(Outcome::Kind::notWritten, *unusable);
    }
    auto& incoming = std::get<BackupIndex::Incoming>(received);
    sink.info(Texts::takingSnapshot());
    sink.enter(Phase::readingFlash);
    const FlasherBridge::SnapshotEnd end = FlasherBridge::snapshotMachine(
        port_, *stub, [&](const char* data, qint64 size) { return incoming.append(data, size); },
        sink.progress, sink.libraryLog);
    if (!incoming.error().isEmpty()) {
        return Outcome::make(Outcome::Kind::notWritten,
                             Texts::backupNotWritten(incoming.fileName(), incoming.error()));
    }
    if (end.result != 0 && end.status.end == ESP_SNAPSHOT_NOT_STARTED) {
        return PortDiagnosis::afterJob(port_, Outcome::library(end.result), sink.audience);
    }
    if (end.result != 0 && end.status.end == ESP_SNAPSHOT_NOTHING_TO_KEEP &&
        options_.emptyFlashIsFine) {
        sink.info(Texts::writingWithoutSnapshot());
        return Outcome::success(Texts::writingWithoutSnapshot());
    }
    if (end.result != 0) {
        Outcome failed = Outcome::make(Outcome::Kind::snapshotFailed,
                                       Texts::snapshotNotTaken(Texts::snapshotEnd(end.status.end)));
        failed.code = end.result;
        return failed;
    }
    BackupIndex::Source source;
    source.reason = options_.reason;
    source.machine = options_.machine;
    if (end.startup.version) {
        source.firmwareVersion = VersionText::cleanFirmwareVersion(*end.startup.version);
    }
    source.snapshot = factsOf(incoming.fileName(), end.startup);
    auto kept = index.keep(std::move(incoming), source);
    if (const auto* failure = std::get_if<QString>(&kept)) {
        return Outcome::make(Outcome::Kind::notWritten, *failure);
    }
    const Backup& snapshot = std::get<Backup>(kept);
    Outcome taken = Outcome::success(Texts::snapshotSaved(snapshot.path, snapshot.size));
    sink.info(taken.message);
    taken.cause = snapshot;
    return taken;
}
