#include <QFileInfo>

#include "app/UpdateController.h"
#include "image/FirmwareCheck.h"
#include "image/Partitions.h"

namespace {

const uint8_t* bytesOf(const QByteArray& bytes) {
    return reinterpret_cast<const uint8_t*>(bytes.constData());
}

image::ImageReport inspect(const QByteArray& firmware) {
    return image::inspectImage(bytesOf(firmware), static_cast<size_t>(firmware.size()));
}

QString description(const image::AppDescription& app) {
    return QStringLiteral("Firmware image: version ") + QString::fromStdString(app.version) +
           QStringLiteral(", project ") + QString::fromStdString(app.projectName) +
           QStringLiteral(", built ") + QString::fromStdString(app.date + ' ' + app.time);
}

}  // namespace

std::optional<QString> UpdateController::firmwareRefusal(const image::ImageReport& report) const {
    image::FirmwareRules rules;
    rules.allowDevelopment = m_developmentImages == DevelopmentImages::accept;
    // An application-only update runs without the boot images, so without the
    // partition table no limit is known.
    if (const auto table = m_resources.read(QStringLiteral("partitions"), QStringLiteral("bin"))) {
        rules.partitionSize =
            image::inspectPartitionTable(bytesOf(*table), static_cast<size_t>(table->size()))
                .applicationSize;
    }
    const auto refusal = image::firmwareRefusal(report, rules);
    if (!refusal) {
        return std::nullopt;
    }
    return QString::fromStdString(*refusal);
}

bool UpdateController::imagesAccepted(const QByteArray& firmware) {
    if (const auto refusal = firmwareRefusal(inspect(firmware))) {
        logError(QStringLiteral("Firmware image refused: ") + *refusal);
        return false;
    }
    if (m_developmentImages == DevelopmentImages::accept) {
        return true;
    }
    const QByteArray marker =
        QByteArray::fromRawData(image::kDevelopmentMarker.data(), image::kDevelopmentMarker.size());
    for (const char* name : {"bootloader", "partitions", "boot_app0", "esp32s3_stub"}) {
        const auto bundled = m_resources.read(QString::fromLatin1(name), QStringLiteral("bin"));
        if (bundled && bundled->contains(marker)) {
            logError(QStringLiteral("Bundled %1.bin refused: a development image, not firmware")
                         .arg(QLatin1String(name)));
            return false;
        }
    }
    return true;
}

void UpdateController::chooseCustomFirmware(const std::optional<QString>& path) {
    if (!path) {
        setCustomFirmwareURL(QUrl());
        log(QStringLiteral("Custom firmware: unknown"));
        return;
    }
    const QString fileName = QFileInfo(*path).fileName();
    const QString refused =
        QStringLiteral("ERROR: ") + fileName + QStringLiteral(" cannot be used: ");
    QString failure;
    const auto firmware = readWhole(*path, &failure);
    if (!firmware) {
        log(refused + QStringLiteral("it could not be read (") + failure + ')');
        return;
    }
    const image::ImageReport report = inspect(*firmware);
    if (const auto refusal = firmwareRefusal(report)) {
        log(refused + *refusal);
        return;
    }
    setCustomFirmwareURL(QUrl::fromLocalFile(*path));
    log(QStringLiteral("Custom firmware: ") + fileName);
    log(description(*report.app));
}
