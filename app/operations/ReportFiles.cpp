#include "app/operations/ReportFiles.h"

#include <QFileInfo>

#include "app/MachineConfigCheck.h"
#include "app/Texts.h"
#include "app/VersionText.h"
#include "image/FirmwareCheck.h"

namespace {

QString hex(const std::array<uint8_t, 32>& digest) {
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest.data()), digest.size()).toHex());
}

QString thousands(uint64_t value) {
    return QString::fromStdString(image::withThousands(value));
}

QString chipName(uint16_t chipId) {
    const auto name = image::chipName(chipId);
    return name ? QString::fromStdString(*name) : Texts::unknownChip();
}

void logImageReport(const image::ImageReport& report, const std::optional<uint64_t>& partition,
                    const OperationSink& sink) {
    sink.info(Texts::reportSize(thousands(report.size)));
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
    if (!partition) {
        sink.info(Texts::reportPartitionUnknown());
    } else if (report.size <= *partition) {
        sink.info(Texts::reportPartitionFits(thousands(*partition)));
    } else {
        sink.info(Texts::reportPartitionTooLarge(thousands(*partition)));
    }
}

// The verdict line, and the reason as an error when refused.
bool concluded(const Outcome& checked, const OperationSink& sink) {
    sink.info(checked.isFailure() ? Texts::reportRefused() : Texts::reportPasses());
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
    const FirmwareFileCheck checked = checkFirmwareFile(path, resources_, developmentImages_);
    if (checked.report) {
        logImageReport(*checked.report, applicationPartitionSize(resources_), sink);
    }
    return concluded(checked.outcome, sink);
}

bool ReportFiles::inspectConfig(const QString& path, const OperationSink& sink) const {
    const auto checked = checkConfigFile(path);
    if (const auto* bytes = std::get_if<QByteArray>(&checked)) {
        sink.info(Texts::reportSize(thousands(static_cast<uint64_t>(bytes->size()))));
        const auto meta = VersionText::metaVersion(*bytes);
        sink.info(meta ? Texts::reportMeta(*meta) : Texts::reportNoMeta());
        return concluded(Outcome::success(QString()), sink);
    }
    return concluded(std::get<Outcome>(checked), sink);
}
