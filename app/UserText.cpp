#include <QStringDecoder>
#include <QStringList>

#include "app/UserText.h"

namespace {

bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

QString trimmed(const QString& text, bool (*strip)(QChar)) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && strip(text[begin])) {
        ++begin;
    }
    while (end > begin && strip(text[end - 1])) {
        --end;
    }
    return text.mid(begin, end - begin);
}

bool isQuote(QChar c) {
    return c == QLatin1Char('"') || c == QLatin1Char('\'');
}

bool isLineBreak(QChar c) {
    switch (c.unicode()) {
        case 0x000A:
        case 0x000B:
        case 0x000C:
        case 0x000D:
        case 0x0085:
        case 0x2028:
        case 0x2029:
            return true;
        default:
            return false;
    }
}

QStringList splitLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isLineBreak(text[i])) {
            lines.append(text.mid(start, i - start));
            start = i + 1;
        }
    }
    lines.append(text.mid(start));
    return lines;
}

}  // namespace

namespace UserText {

QString errorMessage(esp_error_t code) {
    switch (code) {
        case 1:
            return QStringLiteral("No device found. Is it connected?");
        case 2:
            return QStringLiteral("Could not open serial port. Is another app using it?");
        case 3:
            return QStringLiteral("Failed to sync with device. Try unplugging and reconnecting.");
        case 4:
            return QStringLiteral("Unexpected chip detected. Verify hardware.");
        case 5:
            return QStringLiteral("Failed to upload communication stub.");
        case 6:
            return QStringLiteral("Flash write failed. Try again.");
        case 7:
            return QStringLiteral("Verification failed. Flash may be corrupted — try again.");
        case 8:
            return QStringLiteral("Config upload failed.");
        case 9:
            return QStringLiteral("Operation timed out. Try unplugging and reconnecting.");
        case 10:
            return QStringLiteral("Device disconnected during operation.");
        default:
            return QStringLiteral("Unknown error (code %1)").arg(code);
    }
}

std::optional<QString> extractMetaVersion(const QByteArray& bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError()) {
        return std::nullopt;
    }
    const QLatin1StringView key("meta:");
    for (const QString& rawLine : splitLines(text)) {
        const QString line = trimmed(rawLine, isBlank);
        if (!line.startsWith(key)) {
            continue;
        }
        const QString value = trimmed(trimmed(line.mid(key.size()), isBlank), isQuote);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return std::nullopt;
}

QString cleanFirmwareVersion(const QString& reply) {
    QString version = trimmed(reply, isBlank);
    const QLatin1StringView prefix("fluidnc ");
    if (version.toLower().startsWith(prefix)) {
        version = version.mid(prefix.size());
    }
    const qsizetype suffix = version.indexOf(QLatin1StringView(" ("));
    return suffix < 0 ? version : version.left(suffix);
}

QString versionSuffix(const QByteArray& configData) {
    const auto version = extractMetaVersion(configData);
    return version ? QStringLiteral(" v") + *version : QString();
}

}  // namespace UserText
