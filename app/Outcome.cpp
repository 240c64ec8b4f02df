#include "app/Outcome.h"

#include <iterator>

#include "app/Texts.h"

Outcome Outcome::library(esp_error_t code) {
    Outcome outcome = make(Kind::failed, Texts::errorMessage(code));
    outcome.code = code;
    return outcome;
}

namespace {

// In the order of esp_startup_verdict.
const char* const kVerdictNames[] = {"running", "wrong-version", "boot-loop",    "panic",
                                     "no-app",  "brownout",      "config-error", "no-answer"};

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
