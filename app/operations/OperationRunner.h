#pragma once

#include <QObject>
#include <memory>
#include <thread>

#include "app/operations/Operation.h"

/// Runs one operation at a time on a worker thread of its own and hands what it
/// reports back to the thread this object lives on, as signals in the order the
/// operation made them; `finished` comes last. The window's controller and
/// teskal-flash both run their operations through one.
///
/// Threading: create it, call `start` and receive its signals on one thread (the
/// GUI or main thread). Destroying it waits for a running operation to end.
class OperationRunner : public QObject {
    Q_OBJECT

  public:
    /// Its operations speak to `audience`, who names the plotter's port `portName`
    /// (see `OperationSink`).
    explicit OperationRunner(Texts::Audience audience = Texts::Audience::window,
                             QString portName = {}, QObject* parent = nullptr);
    ~OperationRunner() override;

    /// True from `start` until `finished` has been emitted.
    bool isRunning() const { return running_; }

    /// Starts `operation` unless one is still running (then false and nothing
    /// happens). Its outcome is all that comes back of it.
    bool start(std::shared_ptr<Operation> operation);

  signals:
    void phaseEntered(Phase phase, qint64 bytes);
    void progressed(float fraction, const QString& stage);
    void logged(const LogEntry& entry);
    void libraryLogged(const QString& line);
    /// The operation's outcome; `isRunning` is already false.
    void finished(const Outcome& outcome);

  private:
    OperationSink postingSink();
    void post(std::function<void()> step);

    const Texts::Audience audience_;
    const QString portName_;
    bool running_ = false;
    // Joined rather than detached: a join also waits for the thread's exit handlers,
    // where the crypto library frees its per-thread state.
    std::thread worker_;
};
