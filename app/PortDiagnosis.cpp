#include "app/PortDiagnosis.h"

#include "app/PermissionRule.h"
#include "app/texts/PortTexts.h"
#include "esp_flasher.h"

namespace PortDiagnosis {
namespace {

QString permissionProblem(const PortCause& cause) {
    if (groupWouldHelp(cause)) {
        return Texts::permissionDeniedForGroup(cause.path, cause.group);
    }
    if (!cause.owner.isEmpty()) {
        return Texts::permissionDeniedForOwner(cause.path, cause.owner, cause.mode);
    }
    return Texts::permissionDenied(cause.path);
}

// A user who joined the group sees it only in a session that began afterwards.
QString permissionFix(const PortCause& cause, const QString& rule) {
    if (!groupWouldHelp(cause)) {
        return Texts::installTheRule(rule);
    }
    if (cause.userInGroup && !cause.groupInEffect) {
        return Texts::logOutAndIn(cause.group);
    }
    return Texts::installRuleOrJoinGroup(rule, cause.group);
}

}  // namespace

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

bool groupWouldHelp(const PortCause& cause) {
    return !cause.group.isEmpty() && cause.group != QLatin1String("root") &&
           (cause.mode & 0060) == 0060;
}

QString problem(const PortCause& cause) {
    switch (cause.problem) {
        case ESP_PORT_MISSING:
            return Texts::portMissing(cause.path);
        case ESP_PORT_NOT_SERIAL:
            return Texts::portNotSerial(cause.path);
        case ESP_PORT_PERMISSION:
            return permissionProblem(cause);
        case ESP_PORT_HELD:
            return cause.holderPid > 0
                       ? Texts::portHeldBy(cause.path, cause.holderName, cause.holderPid)
                       : Texts::portHeld(cause.path);
        case ESP_PORT_UNPLUGGED:
            return Texts::portGone(cause.path);
        default:
            return Texts::portUsable(cause.path);
    }
}

QString fix(const PortCause& cause, const QString& rule) {
    switch (cause.problem) {
        case ESP_PORT_MISSING:
            return Texts::plugInOrNameAnother();
        case ESP_PORT_NOT_SERIAL:
            return Texts::nameThePlotterPort();
        case ESP_PORT_PERMISSION:
            return permissionFix(cause, rule);
        case ESP_PORT_HELD:
            return cause.holderPid > 0 ? Texts::closeThatProgram() : Texts::closeIt();
        case ESP_PORT_UNPLUGGED:
            return Texts::replugPlotter();
        default:
            return QString();
    }
}

QString ruleFor(Texts::Audience audience) {
    return audience == Texts::Audience::window ? Texts::ruleInWindow()
                                               : PermissionRule::installed().howTo();
}

std::optional<Outcome> unusable(const PortCause& cause, Texts::Audience audience) {
    if (cause.problem == ESP_PORT_OK) {
        return std::nullopt;
    }
    Outcome outcome = Outcome::make(Outcome::Kind::portUnusable, problem(cause) + QLatin1Char(' ') +
                                                                     fix(cause, ruleFor(audience)));
    outcome.cause = cause;
    return outcome;
}

std::optional<Outcome> beforeJob(const QString& port, Texts::Audience audience) {
    return unusable(check(port, Probe::look), audience);
}

Outcome afterJob(const QString& port, Outcome failure, Texts::Audience audience) {
    if (failure.kind != Outcome::Kind::failed || failure.code != ESP_RESULT_PORT_NOT_OPENED) {
        return failure;
    }
    auto found = unusable(check(port, Probe::open), audience);
    if (!found) {
        return failure;
    }
    found->code = failure.code;
    return *found;
}

}  // namespace PortDiagnosis
