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

void PublishedState::followConnection(bool connected) {
    if (state_.isBusy()) {
        return;
    }
    assignState(connected ? UpdateState::ready() : UpdateState::idle());
    assignStatus(connected ? Texts::deviceConnected() : Texts::waitingForDevice());
}

void PublishedState::enterPhase(Phase phase) {
    phase_ = phase;
    switch (phase) {
        case Phase::writingFirmware:
            return assignState(UpdateState::flashing(0.0f));
        case Phase::firmwareWritten:
            written_ = UpdateState::flashComplete();
            return assignState(written_);
        case Phase::uploadingConfig:
            return assignState(UpdateState::uploadingConfig(0.0f));
        case Phase::configUploaded:
            written_ = UpdateState::configComplete();
            return assignState(written_);
        case Phase::readingConfig:
            return assignState(UpdateState::downloadingConfig());
        case Phase::checkingStartup:
            assignState(UpdateState::checkingStartup());
            return assignStatus(Texts::checkingStartup());
    }
}

// A download's byte count changes with every block, so it is shown but not logged.
void PublishedState::showProgress(float fraction, const QString& stage) {
    assignProgress(fraction);
    if (phase_ == Phase::writingFirmware) {
        assignState(UpdateState::flashing(fraction));
    } else if (phase_ == Phase::uploadingConfig) {
        assignState(UpdateState::uploadingConfig(fraction));
        if (!stage.isEmpty() && stage != statusMessage_) {
            appendLog(LogEntry::info(stage));
        }
    }
    if (!stage.isEmpty()) {
        assignStatus(stage);
    }
}

void PublishedState::showFailure(const Outcome& outcome) {
    appendLog(LogEntry::error(outcome.message));
    assignState(UpdateState::error(outcome.message));
    assignStatus(outcome.message);
}

void PublishedState::showVerdict(const Outcome& outcome) {
    if (outcome.isFailure()) {
        appendLog(LogEntry::error(outcome.message));
        for (const QString& line : outcome.evidence) {
            appendLog(LogEntry::info(QStringLiteral("  ") + line));
        }
    }
    if (state_.kind() == UpdateState::Kind::checkingStartup) {
        assignState(written_);
    }
}

void PublishedState::settle(const QString& status) {
    assignState(UpdateState::ready());
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

void PublishedState::assignState(const UpdateState& state) {
    state_ = state;
    emit stateChanged(state_);
}

void PublishedState::assignProgress(float progress) {
    progress_ = progress;
    emit progressChanged(progress_);
}

void PublishedState::assignStatus(const QString& message) {
    statusMessage_ = message;
    emit statusMessageChanged(statusMessage_);
}
