#include "app/Outcome.h"

#include "app/Texts.h"

Outcome Outcome::library(esp_error_t code) {
    Outcome outcome = make(Kind::failed, Texts::errorMessage(code));
    outcome.code = code;
    return outcome;
}
