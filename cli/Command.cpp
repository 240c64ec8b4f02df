#include "cli/Command.h"

event::Result resultOf(const JobOutcome& outcome, const QString& success) {
    switch (outcome.kind) {
        case JobOutcome::Kind::succeeded:
            return {ExitCode::success, success, false};
        case JobOutcome::Kind::refused:
            return {ExitCode::refused, outcome.message, true};
        case JobOutcome::Kind::missingResource:
            return {ExitCode::missingResource, outcome.message, true};
        case JobOutcome::Kind::failed:
            break;
    }
    return {static_cast<int>(outcome.code), outcome.message, true};
}
