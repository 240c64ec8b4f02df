#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

/// Ctrl+C as a Qt signal on the main thread: while an instance lives, SIGINT no
/// longer ends the process; each press emits `pressed` instead.
///
/// Create it on the main thread before any other thread starts: SIGINT is blocked
/// in this thread and so in every thread started after it, and read from a
/// signalfd. Child processes must unblock it themselves.
class Interrupts : public QObject {
    Q_OBJECT

  public:
    Interrupts();
    ~Interrupts() override;

    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

  signals:
    void pressed();

  private:
    void drain();

    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};
