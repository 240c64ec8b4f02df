#include "cli/Wording.h"

#include "app/Texts.h"

Outcome inCommandLineWords(Outcome outcome) {
    if (const auto* port = std::get_if<PortCause>(&outcome.cause)) {
        outcome.message = Texts::portUnusable(*port, Texts::ruleOnCommandLine());
    } else if (outcome.kind == Outcome::Kind::noDevice) {
        outcome.message += QLatin1Char(' ') + Texts::doctorPointer();
    }
    return outcome;
}
