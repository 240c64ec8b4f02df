#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

class QMessageBox;

/// The question asked when the program is to end while a job runs, not yet
/// shown: "An update is running. Quitting now can leave the machine unable to
/// start. Quit anyway?" with "Keep Running" (the default, and Escape's answer)
/// and "Quit Anyway".
std::unique_ptr<QMessageBox> quitDuringJobQuestion(QWidget* parent);

/// Asks `quitDuringJobQuestion` modally; true for "Quit Anyway".
bool askToQuitDuringJob(QWidget* parent);

/// Ends the process at once: no destructors, no waiting for the worker. The
/// system closes the serial port and every other descriptor.
[[noreturn]] void exitAtOnce();

/// Keeps the program from ending unseen while a job writes to the machine.
/// Closing the watched window (from the program or the window manager) and
/// `requestQuit` ask first while `jobRunning` says so: "Keep Running" leaves
/// everything as it was; "Quit Anyway" calls `exitNow`, which is to end the
/// process at once, since the worker is blocked inside the library and an
/// orderly quit would wait for the job with the window gone. With no job
/// running nothing is asked. GUI thread only.
class QuitGuard : public QObject {
    Q_OBJECT

  public:
    using Question = std::function<bool(QWidget* parent)>;

    QuitGuard(QWidget* window, std::function<bool()> jobRunning, Question askToQuit,
              std::function<void()> exitNow, QObject* parent = nullptr);

  public slots:
    /// The Quit command: quits the application unless the user keeps the job running.
    void requestQuit();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// True when the program may end the orderly way.
    bool mayEnd();

    QPointer<QWidget> window_;
    std::function<bool()> jobRunning_;
    Question askToQuit_;
    std::function<void()> exitNow_;
};
