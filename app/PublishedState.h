#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>

#include "app/LogEntry.h"
#include "app/Outcome.h"
#include "app/UpdateState.h"
#include "app/operations/Operation.h"

/// What the main window shows of the controller's work, and how an operation's
/// reports change it: the state, the latest progress, the status line and the
/// log. `UpdateController` publishes these as its own.
///
/// GUI thread only, except `log`. Each NOTIFY signal fires on every assignment,
/// also when the value did not change.
class PublishedState : public QObject {
    Q_OBJECT
    Q_PROPERTY(UpdateState state READ state NOTIFY stateChanged)
    Q_PROPERTY(float progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString statusMessage READ statusMessage NOTIFY statusMessageChanged)
    Q_PROPERTY(QStringList logMessages READ logMessages NOTIFY logChanged)

  public:
    explicit PublishedState(QObject* parent = nullptr);

    UpdateState state() const { return state_; }
    /// Latest progress fraction reported by an operation, as reported.
    float progress() const { return progress_; }
    QString statusMessage() const { return statusMessage_; }
    /// The log with each line's severity, oldest first; emptied when a job starts.
    const LogEntries& log() const { return log_; }
    /// The log as its lines are shown.
    QStringList logMessages() const;
    /// How the last job ended; none while a job runs and before the first one.
    const std::optional<Outcome>& result() const { return result_; }

    /// Appends a line to the log, asynchronously on the GUI thread, in call order;
    /// callable from any thread.
    void log(const QString& line);
    /// A failure: "ERROR: " and `message` in the log, the `error` state and the
    /// message as the status. GUI thread.
    void logError(const QString& message);
    /// GUI thread.
    void setState(const UpdateState& state);

  signals:
    void stateChanged(const UpdateState& state);
    void progressChanged(float progress);
    void statusMessageChanged(const QString& statusMessage);
    void logChanged(const LogEntries& log);
    /// A job has ended (an outcome) or started (none).
    void resultChanged(const std::optional<Outcome>& result);

  protected:
    /// Follows the monitor while nothing runs: `ready` and "Device connected", or
    /// `idle` and "Waiting for device…".
    void followConnection(bool connected);
    /// An operation enters a stage that has a state of its own.
    void enterPhase(Phase phase);
    /// A progress report: the fraction; the state of a transfer; the stage text in
    /// the status line, and an upload's new stage text in the log too.
    void showProgress(float fraction, const QString& stage);
    /// The end of a job's story in the log, so that its last line is the result
    /// banner's sentence: after a write the machine's own lines, then the message
    /// (an error when it did not run what was written), the write's state staying
    /// (or coming back after the check); after any other failure `logError`. A
    /// success that tells nothing of the machine adds nothing.
    void tell(const Outcome& outcome);
    /// `ready` with `status`, after an operation that leaves no state of its own.
    void settle(const QString& status);

    void assignResult(std::optional<Outcome> result);
    void post(const LogEntry& entry);
    void appendLog(const LogEntry& entry);
    void clearLog();

  private:
    void assignProgress(float progress);
    void assignStatus(const QString& message);

    UpdateState state_ = UpdateState::idle();
    float progress_ = 0.0f;
    QString statusMessage_;
    LogEntries log_;
    std::optional<Outcome> result_;
    Phase phase_ = Phase::writingFirmware;
    UpdateState written_ = UpdateState::flashComplete();  // the state a write ended in
};
