#include "app/LogExport.h"

#include <QSaveFile>
#include <QSysInfo>

#include "app/BuildConfig.h"

namespace LogExport {

QString defaultFileName(const QDateTime& time) {
    return QStringLiteral("teskal-updater-log-") +
           time.toString(QStringLiteral("yyyyMMdd-HHmmss")) + QStringLiteral(".txt");
}

QString document(const QStringList& lines, const std::optional<QString>& port,
                 const QDateTime& time) {
    const QStringList header{
        QStringLiteral("Teskal Firmware Updater log"),
        QStringLiteral("Program version: ") + BuildConfig::programVersion(),
        QStringLiteral("Build date: ") + BuildConfig::buildDate(),
        QStringLiteral("Bundled firmware: ") + BuildConfig::firmwareVersion(),
        QStringLiteral("Operating system: ") + QSysInfo::prettyProductName() +
            QStringLiteral(", kernel ") + QSysInfo::kernelType() + QLatin1Char(' ') +
            QSysInfo::kernelVersion(),
        QStringLiteral("Qt version: ") + QString::fromLatin1(qVersion()),
        QStringLiteral("Date and time: ") + time.toString(Qt::ISODate),
        QStringLiteral("Port: ") + port.value_or(QStringLiteral("none")),
    };
    QString text = header.join(QLatin1Char('\n')) + QStringLiteral("\n\n");
    for (const QString& line : lines) {
        text += line + QLatin1Char('\n');
    }
    return text;
}

std::optional<QString> save(const QString& path, const QString& text) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        return file.errorString();
    }
    return std::nullopt;
}

}  // namespace LogExport
