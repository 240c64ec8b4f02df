#include "app/SettingsQuestions.h"

#include "app/Outcome.h"

std::optional<SettingsQuestions::Rewrite> SettingsQuestions::askAfter(const Outcome& outcome,
                                                                      bool keepingSettings) const {
    if (const auto* older = std::get_if<OlderRelease>(&outcome.cause)) {
        if (installOlder && installOlder(older->chosen, older->running)) {
            return Rewrite{keepingSettings, true};
        }
        return std::nullopt;
    }
    const auto* settings = std::get_if<SettingsCause>(&outcome.cause);
    if (!keepingSettings || settings == nullptr) {
        return std::nullopt;
    }
    if (settings->stop == SettingsCause::Stop::firmwareSilent) {
        return eraseAnyway && eraseAnyway() ? std::optional(Rewrite{false, false}) : std::nullopt;
    }
    if (settings->stop != SettingsCause::Stop::notSaved || !afterFailedRead) {
        return std::nullopt;
    }
    switch (afterFailedRead(outcome.message)) {
        case AfterFailedRead::retry:
            return Rewrite{true, false};
        case AfterFailedRead::eraseWithoutSaving:
            return Rewrite{false, false};
        case AfterFailedRead::cancel:
            break;
    }
    return std::nullopt;
}
