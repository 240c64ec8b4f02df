#include "app/PublishedState.h"

#include "app/Texts.h"

PublishedState::PublishedState(QObject* parent)
    : QObject(parent), statusMessage_(Texts::waitingForDevice()) {}

QStringList PublishedState::logMessages() const {
    QStringList lines;
    lines.reserve(log_.size());
    for (const LogEntry& entry : log_) {
        lines.append(entry.line());
    }
    return lines;
}

void PublishedState::log(const QString& line) {
    post(LogEntry::info(line));
}

void PublishedState::logError(const QString& message) {
    appendLog(LogEntry::error(message));
    setState(UpdateState::error(message));
    assignStatus(message);
}

void PublishedState::setState(const UpdateState& state) {
    state_ = state;
    emit stateChanged(state_);
}

void PublishedState::followConnection(bool connected) {
    if (state_.isBusy()) {
        return;
    }
    setState(connected ? UpdateState::ready() : UpdateState::idle());
    assignStatus(connected ? Texts::deviceConnected() : Texts::waitingForDevice());
}

void PublishedState::enterPhase(Phase phase) {
    phase_ = phase;
    switch (phase) {
        case Phase::writingFirmware:
            return setState(UpdateState::flashing(0.0f));
        case Phase::firmwareWritten:
            written_ = UpdateState::flashComplete();
            return setState(written_);
        case Phase::uploadingConfig:
            return setState(UpdateState::uploadingConfig(0.0f));
        case Phase::configUploaded:
            written_ = UpdateState::configComplete();
            return setState(written_);
        case Phase::readingConfig:
        case Phase::readingFlash:
            return setState(UpdateState::downloadingConfig());
        case Phase::checkingStartup:
            setState(UpdateState::checkingStartup());
            return assignStatus(Texts::checkingStartup());
    }
}

// A download's byte count changes with every block, so it is shown but not logged.
void PublishedState::showProgress(float fraction, const QString& stage) {
    assignProgress(fraction);
    if (phase_ == Phase::writingFirmware) {
        setState(UpdateState::flashing(fraction));
    } else if (phase_ == Phase::uploadingConfig) {
        setState(UpdateState::uploadingConfig(fraction));
        if (!stage.isEmpty() && stage != statusMessage_) {
            appendLog(LogEntry::info(stage));
        }
    }
    if (!stage.isEmpty()) {
        assignStatus(stage);
    }
}

void PublishedState::tell(const Outcome& outcome) {
    if (!outcome.isVerdict()) {
        if (outcome.isFailure()) {
            logError(outcome.message);
        }
        return;
    }
    if (outcome.isFailure()) {
        for (const QString& line : outcome.evidence) {
            appendLog(LogEntry::info(QStringLiteral("  ") + line));
        }
    }
    appendLog(outcome.isFailure() ? LogEntry::error(outcome.message)
                                  : LogEntry::info(outcome.message));
    if (state_.kind() == UpdateState::Kind::checkingStartup) {
        setState(written_);
    }
    assignStatus(outcome.message);
}

void PublishedState::settle(const QString& status) {
    setState(UpdateState::ready());
    assignStatus(status);
}

void PublishedState::assignResult(std::optional<Outcome> result) {
    result_ = std::move(result);
    emit resultChanged(result_);
}

void PublishedState::post(const LogEntry& entry) {
    QMetaObject::invokeMethod(
        this, [this, entry] { appendLog(entry); }, Qt::QueuedConnection);
}

void PublishedState::appendLog(const LogEntry& entry) {
    log_.append(entry);
    emit logChanged(log_);
}

void PublishedState::clearLog() {
    log_.clear();
    emit logChanged(log_);
}

void PublishedState::assignProgress(float progress) {
    progress_ = progress;
    emit progressChanged(progress_);
}

void PublishedState::assignStatus(const QString& message) {
    statusMessage_ = message;
    emit statusMessageChanged(statusMessage_);
}
