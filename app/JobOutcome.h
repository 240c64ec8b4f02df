#pragma once

#include <QString>

#include "app/UserText.h"
#include "esp_flasher.h"

/// How the firmware job or a configuration upload ended. A plain value.
struct JobOutcome {
    enum class Kind {
        succeeded,
        refused,          ///< its input was refused before anything reached the machine
        missingResource,  ///< a resource it needs is missing from the resources folder
        failed,           ///< the library returned `code`
    };

    Kind kind = Kind::succeeded;
    esp_error_t code = 0;  ///< the library's result code when `failed`
    QString message;       ///< the user message, without "ERROR: ", unless `succeeded`

    static JobOutcome success() { return {}; }
    static JobOutcome refusal(const QString& message) { return {Kind::refused, 0, message}; }
    static JobOutcome missing(const QString& message) {
        return {Kind::missingResource, 0, message};
    }
    /// The library's result; `success` for 0.
    static JobOutcome fromLibrary(esp_error_t code) {
        return code == 0 ? success() : JobOutcome{Kind::failed, code, UserText::errorMessage(code)};
    }

    bool ok() const { return kind == Kind::succeeded; }
};
