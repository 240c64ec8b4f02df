#include <QStringDecoder>
#include <QStringList>

#include "app/VersionText.h"

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

namespace VersionText {

std::optional<QString> metaVersion(const QByteArray& bytes) {
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

QString shown(const QString& version) {
    const bool prefixed = version.size() > 1 &&
                          (version[0] == QLatin1Char('v') || version[0] == QLatin1Char('V')) &&
                          version[1].isDigit();
    return prefixed ? version.mid(1) : version;
}

}  // namespace VersionText
