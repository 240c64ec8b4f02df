#include "app/PortDiagnosis.h"

#include "app/Texts.h"
#include "esp_flasher.h"

namespace PortDiagnosis {

PortCause check(const QString& port, Probe probe) {
    esp_port_check found{};
    esp_check_port(port.toUtf8().constData(),
                   probe == Probe::open ? ESP_PROBE_OPEN : ESP_PROBE_LOOK, &found);
    PortCause cause;
    cause.path = port;
    cause.problem = found.problem;
    cause.error = found.error;
    cause.owner = QString::fromUtf8(found.owner);
    cause.group = QString::fromUtf8(found.group);
    cause.mode = found.mode;
    cause.user = QString::fromUtf8(found.user);
    cause.userInGroup = found.userInGroup != 0;
    cause.groupInEffect = found.groupInEffect != 0;
    cause.holderPid = found.holderPid;
    cause.holderName = QString::fromUtf8(found.holderName);
    return cause;
}

std::optional<Outcome> unusable(const PortCause& cause) {
    if (cause.problem == ESP_PORT_OK) {
        return std::nullopt;
    }
    Outcome outcome = Outcome::make(Outcome::Kind::portUnusable,
                                    Texts::portUnusable(cause, Texts::ruleInWindow()));
    outcome.cause = cause;
    return outcome;
}

std::optional<Outcome> beforeJob(const QString& port) {
    return unusable(check(port, Probe::look));
}

Outcome afterJob(const QString& port, Outcome failure) {
    if (failure.kind != Outcome::Kind::failed || failure.code != 2) {
        return failure;
    }
    auto found = unusable(check(port, Probe::open));
    if (!found) {
        return failure;
    }
    found->code = failure.code;
    return *found;
}

}  // namespace PortDiagnosis
