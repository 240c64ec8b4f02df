#include "app/ResultSummary.h"

#include "app/OutcomeTable.h"

std::optional<ResultSummary> summarize(const Outcome& outcome, Texts::Audience audience) {
    if (!outcome.isFailure() && !outcome.isVerdict()) {
        return std::nullopt;
    }
    ResultSummary summary;
    if (outcome.kind == Outcome::Kind::notConfirmed) {
        summary.tone = ResultSummary::Tone::caution;
    } else if (outcome.isFailure()) {
        summary.tone = ResultSummary::Tone::bad;
    }
    summary.headline = outcome.message;
    // A machine that runs what was written needs no quoting.
    if (summary.tone != ResultSummary::Tone::good) {
        summary.details = outcome.evidence;
    }
    summary.nextStep = OutcomeTable::nextStep(outcome, audience);
    return summary;
}
