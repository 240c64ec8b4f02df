#include "cli/Fleet.h"

#include <signal.h>
#include <unistd.h>
#include <algorithm>
#include <utility>

#include "app/OutcomeTable.h"
#include "app/Texts.h"
#include "cli/Json.h"

QStringList childArguments(const QStringList& arguments, const QString& port) {
    QStringList kept;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == QLatin1String("--port")) {
            ++i;  // and its value
        } else if (!argument.startsWith(QLatin1String("--port=")) &&
                   argument != QLatin1String("--all") && argument != QLatin1String("--json")) {
            kept << argument;
        }
    }
    return kept << QStringLiteral("--port") << port << QStringLiteral("--json");
}

Fleet::Fleet(QString program, const QStringList& ports, const QStringList& arguments,
             bool writesFirmware, Reporter& reporter)
    : program_(std::move(program)),
      arguments_(arguments),
      writesFirmware_(writesFirmware),
      reporter_(reporter) {
    for (const QString& port : ports) {
        auto child = std::make_unique<Child>();
        child->port = port;
        children_.push_back(std::move(child));
    }
}

Fleet::~Fleet() {
    terminate();
}

void Fleet::start() {
    for (const auto& child : children_) {
        child->process = std::make_unique<QProcess>();
        QProcess& process = *child->process;
        process.setChildProcessModifier([] {
            ::setpgid(0, 0);
            sigset_t none;
            sigemptyset(&none);
            ::sigprocmask(SIG_SETMASK, &none, nullptr);
        });
        Child* raw = child.get();
        connect(&process, &QProcess::readyReadStandardOutput, this,
                [this, raw] { readOutput(*raw); });
        connect(&process, &QProcess::readyReadStandardError, this,
                [raw] { raw->errors += raw->process->readAllStandardError(); });
        // A child that never starts emits no finished signal.
        connect(&process, &QProcess::errorOccurred, this,
                [this, raw](QProcess::ProcessError error) {
                    if (error == QProcess::FailedToStart) {
                        raw->errors = raw->process->errorString().toUtf8();
                        childEnded(*raw, OutcomeTable::crashed, QProcess::CrashExit);
                    }
                });
        connect(&process, &QProcess::finished, this,
                [this, raw](int exitCode, QProcess::ExitStatus status) {
                    childEnded(*raw, exitCode, status);
                });
        process.start(program_, childArguments(arguments_, child->port));
    }
}

bool Fleet::writing() const {
    return std::any_of(children_.begin(), children_.end(),
                       [](const auto& child) { return child->writing; });
}

void Fleet::terminate() {
    for (const auto& child : children_) {
        if (child->process && child->process->state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(child->process->processId()), SIGTERM);
        }
    }
}

void Fleet::readOutput(Child& child) {
    child.pending += child.process->readAllStandardOutput();
    qsizetype end = 0;
    while ((end = child.pending.indexOf('\n')) >= 0) {
        const QByteArray line = child.pending.left(end);
        child.pending.remove(0, end + 1);
        const auto event = eventFromJsonLine(line);
        if (!event) {
            continue;
        }
        if (writesFirmware_ && std::holds_alternative<event::Progress>(*event)) {
            child.writing = true;
        }
        if (std::holds_alternative<event::Result>(*event)) {
            child.writing = false;
            child.reported = true;
        }
        reporter_.report(child.port, *event);
    }
}

void Fleet::childEnded(Child& child, int exitCode, QProcess::ExitStatus status) {
    readOutput(child);
    child.writing = false;
    child.exitCode = status == QProcess::NormalExit ? exitCode : OutcomeTable::crashed;
    const QString why = QString::fromUtf8(child.errors).trimmed();
    if (!child.reported) {
        const QString message = why.isEmpty() ? Texts::endedWithoutResult() : why;
        reporter_.report(child.port, event::Result{*child.exitCode,
                                                   Outcome::make(Outcome::Kind::failed, message)});
    } else if (status != QProcess::NormalExit) {
        reporter_.report(child.port,
                         LogEntry::error(why.isEmpty() ? Texts::endedAbnormally()
                                                       : Texts::endedAbnormallyBecause(why)));
    }
    const bool allEnded = std::all_of(children_.begin(), children_.end(),
                                      [](const auto& c) { return c->exitCode.has_value(); });
    if (!allEnded) {
        return;
    }
    int firstFailure = OutcomeTable::success;
    for (const auto& c : children_) {
        if (*c->exitCode != OutcomeTable::success) {
            firstFailure = *c->exitCode;
            break;
        }
    }
    emit finished(firstFailure);
}
