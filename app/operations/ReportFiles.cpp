#include "app/operations/ReportFiles.h"

#include <QFileInfo>

#include "app/Texts.h"
#include "app/VersionText.h"
#include "app/operations/CheckConfigFile.h"
#include "app/operations/CheckFirmwareFile.h"
#include "image/FirmwareCheck.h"

namespace {

QString hex(const std::array<uint8_t, 32>& digest) {
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest.data()), digest.size()).toHex());
}

QString chipName(uint16_t chipId) {
    const auto name = image::chipName(chipId);
    return name ? QString::fromStdString(*name) : Texts::unknownChip();
}

void logImageReport(const image::ImageReport& report, const std::optional<uint64_t>& partition,
                    const OperationSink& sink) {
    sink.info(Texts::reportSize(static_cast<qint64>(report.size)));
    sink.info(Texts::reportSha256(hex(report.fileSha256)));
    if (report.layoutFault.empty()) {
        sink.info(Texts::reportChip(chipName(report.chipId), report.chipId));
    }
    if (!report.app) {
        return;
    }
    sink.info(Texts::reportVersion(QString::fromStdString(report.app->version)));
    sink.info(Texts::reportProject(QString::fromStdString(report.app->projectName)));
    sink.info(
        Texts::reportBuilt(QString::fromStdString(report.app->date + ' ' + report.app->time)));
    sink.info(partition ? Texts::reportPartition(report.size <= *partition,
                                                 static_cast<qint64>(*partition))
                        : Texts::reportPartitionUnknown());
}

// The verdict line, and the reason as an error when refused.
bool concluded(const Outcome& checked, const OperationSink& sink) {
    sink.info(Texts::reportResult(!checked.isFailure()));
    if (checked.isFailure()) {
        sink.error(checked.message);
    }
    return !checked.isFailure();
}

}  // namespace

ReportFiles::ReportFiles(QStringList paths, ResourceBundle resources,
                         DevelopmentImages developmentImages)
    : paths_(std::move(paths)),
      resources_(std::move(resources)),
      developmentImages_(developmentImages) {}

Outcome ReportFiles::run(const OperationSink& sink) {
    qsizetype refused = 0;
    for (const QString& path : paths_) {
        sink.info(QFileInfo(path).fileName());
        const QString suffix = QFileInfo(path).suffix().toLower();
        bool passes = false;
        if (suffix == QLatin1String("bin")) {
            passes = inspectImage(path, sink);
        } else if (suffix == QLatin1String("yaml") || suffix == QLatin1String("yml")) {
            passes = inspectConfig(path, sink);
        } else {
            concluded(Outcome::make(Outcome::Kind::refused,
                                    Texts::neitherImageNorConfig(QFileInfo(path).fileName())),
                      sink);
        }
        refused += passes ? 0 : 1;
    }
    if (refused > 0) {
        return Outcome::make(Outcome::Kind::refused, Texts::filesRefused(refused, paths_.size()));
    }
    return Outcome::success(Texts::allFilesPass());
}

bool ReportFiles::inspectImage(const QString& path, const OperationSink& sink) const {
    CheckFirmwareFile check(path, resources_, developmentImages_);
    const Outcome checked = check.run(sink);
    if (check.report()) {
        logImageReport(*check.report(), applicationPartitionSize(resources_), sink);
    }
    return concluded(checked, sink);
}

bool ReportFiles::inspectConfig(const QString& path, const OperationSink& sink) const {
    CheckConfigFile check(path);
    const Outcome checked = check.run(sink);
    if (check.bytes()) {
        sink.info(Texts::reportSize(check.bytes()->size()));
        sink.info(Texts::reportMeta(
            VersionText::metaVersion(*check.bytes()).value_or(QStringLiteral("none"))));
    }
    return concluded(checked, sink);
}
