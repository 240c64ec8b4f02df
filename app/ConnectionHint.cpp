#include "app/ConnectionHint.h"

#include "app/Texts.h"

ConnectionHint::ConnectionHint(const QString& status, int patienceMs, QObject* parent)
    : QObject(parent) {
    patience_.setSingleShot(true);
    patience_.setInterval(patienceMs);
    connect(&patience_, &QTimer::timeout, this, [this] { change(waitedLong_, true); });
    followStatus(status);
    clock_.start();
}

// The status is published on every poll, changed or not: only a status that was
// not waiting before starts the wait.
void ConnectionHint::followStatus(const QString& status) {
    if (status != Texts::waitingForDevice()) {
        patience_.stop();
        change(waitedLong_, false);
    } else if (!patience_.isActive() && !waitedLong_) {
        patience_.start();
    }
}

void ConnectionHint::jobStarted() {
    change(portRefused_, false);
}

void ConnectionHint::jobEnded(const Outcome& outcome) {
    change(portRefused_, outcome.kind == Outcome::Kind::portUnusable);
}

void ConnectionHint::followPresence(bool present) {
    flapping_.sample(clock_.elapsed(), present);
    if (flapping_.keepsRestarting() != restarting_) {
        change(restarting_, flapping_.keepsRestarting());
        emit keepsRestartingChanged(restarting_);
    }
}

void ConnectionHint::change(bool& flag, bool value) {
    const bool before = offered();
    flag = value;
    if (offered() != before) {
        emit offeredChanged(offered());
    }
}
