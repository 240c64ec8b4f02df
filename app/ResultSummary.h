#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "app/Outcome.h"
#include "app/texts/Audience.h"

/// How the end of a job reads for the owner: the window's result banner, its
/// desktop notification and the last lines of teskal-flash all show this.
struct ResultSummary {
    enum class Tone {
        good,     ///< written, and the machine runs it
        caution,  ///< written and verified, but not confirmed
        bad,      ///< a failure, or a machine that does not start or rejects its configuration
    };

    Tone tone = Tone::good;
    QString headline;     ///< the outcome's message
    QStringList details;  ///< the outcome's evidence, the machine's own lines
    QString nextStep;     ///< what to do, in the audience's words; empty when nothing
};

/// The summary of `outcome`, or none for one that needs no more than its own log
/// lines: a success that says nothing about the machine's start. Pure; any thread.
std::optional<ResultSummary> summarize(const Outcome& outcome, Texts::Audience audience);
