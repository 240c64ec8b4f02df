#include "cli/LocalRun.h"

LocalRun::LocalRun(const Command& command, CommandContext context, Reporter& reporter, bool verbose)
    : command_(command), context_(std::move(context)), reporter_(reporter), verbose_(verbose) {}

LocalRun::~LocalRun() {
    if (worker_.joinable()) {
        worker_.join();
    }
}

void LocalRun::start() {
    const Feed feed(
        [this](const Event& event) {
            QMetaObject::invokeMethod(
                this, [this, event] { deliver(event); }, Qt::QueuedConnection);
        },
        verbose_);
    worker_ = std::thread([this, feed] {
        const event::Result result = command_.run(context_, feed);
        QMetaObject::invokeMethod(
            this, [this, result] { deliver(result); }, Qt::QueuedConnection);
    });
}

void LocalRun::deliver(const Event& event) {
    if (command_.writesFirmware() && std::holds_alternative<event::Progress>(event)) {
        writing_ = true;
    }
    reporter_.report(context_.portName, event);
    if (const auto* result = std::get_if<event::Result>(&event)) {
        writing_ = false;
        emit finished(result->code);
    }
}
