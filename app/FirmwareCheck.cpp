#include "app/FirmwareCheck.h"

#include <QFileInfo>

#include "app/Texts.h"
#include "image/FirmwareCheck.h"
#include "image/Partitions.h"

namespace {

const uint8_t* bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const uint8_t*>(bytes.constData());
}

}  // namespace

image::ImageReport inspectFirmware(const QByteArray& firmware) {
    return image::inspectImage(bytesOf(firmware), static_cast<size_t>(firmware.size()));
}

std::optional<uint64_t> applicationPartitionSize(const ResourceBundle& resources) {
    const auto table = resources.read(QStringLiteral("partitions"), QStringLiteral("bin"));
    if (!table) {
        return std::nullopt;
    }
    return image::inspectPartitionTable(bytesOf(*table), static_cast<size_t>(table->size()))
        .applicationSize;
}

std::optional<QString> firmwareRefusal(const image::ImageReport& report,
                                       const ResourceBundle& resources,
                                       DevelopmentImages developmentImages) {
    image::FirmwareRules rules;
    rules.allowDevelopment = developmentImages == DevelopmentImages::accept;
    // An application-only update runs without the boot images, so without the
    // partition table no limit is known.
    rules.partitionSize = applicationPartitionSize(resources);
    const auto refusal = image::firmwareRefusal(report, rules);
    if (!refusal) {
        return std::nullopt;
    }
    return QString::fromStdString(*refusal);
}

std::optional<QString> bundledImageRefusal(const ResourceBundle& resources, const QString& name,
                                           DevelopmentImages developmentImages) {
    if (developmentImages == DevelopmentImages::accept) {
        return std::nullopt;
    }
    const QByteArray marker =
        QByteArray::fromRawData(image::kDevelopmentMarker.data(), image::kDevelopmentMarker.size());
    const auto bundled = resources.read(name, QStringLiteral("bin"));
    if (bundled && bundled->contains(marker)) {
        return Texts::shippedImageRefused(name);
    }
    return std::nullopt;
}

std::optional<QString> bundledImagesRefusal(const ResourceBundle& resources,
                                            DevelopmentImages developmentImages) {
    for (const char* name : {"bootloader", "partitions", "boot_app0", "esp32s3_stub"}) {
        if (auto refusal =
                bundledImageRefusal(resources, QString::fromLatin1(name), developmentImages)) {
            return refusal;
        }
    }
    return std::nullopt;
}

std::optional<QString> imagesRefusal(const QByteArray& firmware, const ResourceBundle& resources,
                                     DevelopmentImages developmentImages) {
    if (const auto refusal =
            firmwareRefusal(inspectFirmware(firmware), resources, developmentImages)) {
        return Texts::imageRefused(*refusal);
    }
    return bundledImagesRefusal(resources, developmentImages);
}

QString describeFirmware(const image::AppDescription& app) {
    return Texts::imageDescription(QString::fromStdString(app.version),
                                   QString::fromStdString(app.projectName),
                                   QString::fromStdString(app.date + ' ' + app.time));
}

FirmwareFileCheck checkFirmwareFile(const QString& path, const ResourceBundle& resources,
                                    DevelopmentImages developmentImages) {
    const QString fileName = QFileInfo(path).fileName();
    QString failure;
    const auto firmware = readWholeFile(path, &failure);
    if (!firmware) {
        return {Outcome::make(Outcome::Kind::refused,
                              Texts::cannotBeUsed(fileName, Texts::couldNotBeRead(failure))),
                std::nullopt};
    }
    image::ImageReport report = inspectFirmware(*firmware);
    if (const auto refusal = firmwareRefusal(report, resources, developmentImages)) {
        return {Outcome::make(Outcome::Kind::refused, Texts::cannotBeUsed(fileName, *refusal)),
                std::move(report)};
    }
    Outcome accepted = Outcome::success(describeFirmware(*report.app));
    return {std::move(accepted), std::move(report)};
}
