#include "app/Outcome.h"

#include <iterator>

#include "app/OutcomeTable.h"

Outcome Outcome::library(esp_error_t code) {
    Outcome outcome = make(Kind::failed, OutcomeTable::libraryMessage(code));
    outcome.code = code;
    return outcome;
}

namespace {

// In the order of esp_startup_verdict.
const char* const kVerdictNames[] = {"running", "wrong-version", "boot-loop",    "panic",
                                     "no-app",  "brownout",      "config-error", "no-answer"};

// In the order of Outcome::Kind.
const char* const kKindNames[] = {"succeeded",
                                  "differs",
                                  "no-partition-table",
                                  "no-device",
                                  "failed",
                                  "no-answer",
                                  "refused",
                                  "missing-resource",
                                  "not-written",
                                  "busy",
                                  "not-confirmed",
                                  "not-starting",
                                  "config-rejected",
                                  "port-unusable",
                                  "not-ready",
                                  "no-backup",
                                  "nothing-to-restore",
                                  "catalogue-unusable",
                                  "snapshot-failed"};
static_assert(std::size(kKindNames) == static_cast<size_t>(Outcome::Kind::snapshotFailed) + 1);

}  // namespace

QString verdictName(int verdict) {
    const bool known = verdict >= 0 && verdict < static_cast<int>(std::size(kVerdictNames));
    return QString::fromLatin1(kVerdictNames[known ? verdict : ESP_STARTUP_NO_ANSWER]);
}

std::optional<int> verdictNamed(const QString& name) {
    for (int verdict = 0; verdict < static_cast<int>(std::size(kVerdictNames)); ++verdict) {
        if (name == QLatin1String(kVerdictNames[verdict])) {
            return verdict;
        }
    }
    return std::nullopt;
}

QString kindName(Outcome::Kind kind) {
    return QString::fromLatin1(kKindNames[static_cast<size_t>(kind)]);
}

std::optional<Outcome::Kind> kindNamed(const QString& name) {
    for (size_t kind = 0; kind < std::size(kKindNames); ++kind) {
        if (name == QLatin1String(kKindNames[kind])) {
            return static_cast<Outcome::Kind>(kind);
        }
    }
    return std::nullopt;
}
