#include "app/catalogue/FirmwareVersion.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace FirmwareVersion {
namespace {

struct Parsed {
    QList<quint64> numbers;
    QStringList preRelease;
};

std::optional<Parsed> parse(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral("^[vV]?([0-9]+(?:\\.[0-9]+)*)"
                       "(?:-([0-9A-Za-z-]+(?:\\.[0-9A-Za-z-]+)*))?"
                       "(?:\\+[0-9A-Za-z-]+(?:\\.[0-9A-Za-z-]+)*)?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    Parsed parsed;
    for (const QString& part : match.captured(1).split(QLatin1Char('.'))) {
        bool ok = false;
        parsed.numbers.append(part.toULongLong(&ok));
        if (!ok) {
            return std::nullopt;
        }
    }
    if (match.hasCaptured(2)) {
        parsed.preRelease = match.captured(2).split(QLatin1Char('.'));
    }
    return parsed;
}

std::optional<quint64> numeric(const QString& identifier) {
    bool ok = false;
    const quint64 value = identifier.toULongLong(&ok);
    const bool digitsOnly =
        std::all_of(identifier.begin(), identifier.end(), [](QChar c) { return c.isDigit(); });
    return ok && digitsOnly ? std::optional<quint64>(value) : std::nullopt;
}

std::strong_ordering compareIdentifiers(const QString& a, const QString& b) {
    const auto numberA = numeric(a);
    const auto numberB = numeric(b);
    if (numberA && numberB) {
        return *numberA <=> *numberB;
    }
    if (numberA || numberB) {
        return numberA ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    return QString::compare(a, b, Qt::CaseSensitive) <=> 0;
}

std::strong_ordering comparePreReleases(const QStringList& a, const QStringList& b) {
    if (a.isEmpty() || b.isEmpty()) {
        return b.size() <=> a.size();
    }
    for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i) {
        if (const auto order = compareIdentifiers(a[i], b[i]); order != 0) {
            return order;
        }
    }
    return a.size() <=> b.size();
}

}  // namespace

bool isValid(const QString& text) {
    return parse(text).has_value();
}

std::partial_ordering compare(const QString& a, const QString& b) {
    const auto parsedA = parse(a);
    const auto parsedB = parse(b);
    if (!parsedA || !parsedB) {
        return std::partial_ordering::unordered;
    }
    const qsizetype length = std::max(parsedA->numbers.size(), parsedB->numbers.size());
    for (qsizetype i = 0; i < length; ++i) {
        const quint64 numberA = parsedA->numbers.value(i, 0);
        const quint64 numberB = parsedB->numbers.value(i, 0);
        if (numberA != numberB) {
            return numberA <=> numberB;
        }
    }
    return comparePreReleases(parsedA->preRelease, parsedB->preRelease);
}

}  // namespace FirmwareVersion
