#include "app/operations/OperationRunner.h"

OperationRunner::OperationRunner(Texts::Audience audience, QString portName, QObject* parent)
    : QObject(parent), audience_(audience), portName_(std::move(portName)) {}

OperationRunner::~OperationRunner() {
    if (worker_.joinable()) {
        worker_.join();
    }
}

bool OperationRunner::start(std::shared_ptr<Operation> operation) {
    if (running_) {
        return false;
    }
    if (worker_.joinable()) {
        worker_.join();
    }
    running_ = true;
    worker_ = std::thread([this, operation = std::move(operation), sink = postingSink()] {
        const Outcome outcome = operation->run(sink);
        // Posted behind every report of the operation, so that nothing it said
        // arrives after its end.
        post([this, outcome] {
            running_ = false;
            emit finished(outcome);
        });
    });
    return true;
}

OperationSink OperationRunner::postingSink() {
    OperationSink sink;
    sink.audience = audience_;
    sink.portName = portName_;
    sink.phase = [this](Phase phase, qint64 bytes) {
        post([this, phase, bytes] { emit phaseEntered(phase, bytes); });
    };
    sink.progress = [this](float fraction, const QString& stage) {
        post([this, fraction, stage] { emit progressed(fraction, stage); });
    };
    sink.log = [this](const LogEntry& entry) { post([this, entry] { emit logged(entry); }); };
    sink.libraryLog = [this](const QString& line) {
        post([this, line] { emit libraryLogged(line); });
    };
    return sink;
}

void OperationRunner::post(std::function<void()> step) {
    QMetaObject::invokeMethod(this, std::move(step), Qt::QueuedConnection);
}
