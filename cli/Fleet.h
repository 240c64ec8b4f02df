#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "cli/Reporter.h"

/// The arguments of the child that runs a command for `port`: `arguments` (the
/// parent's, without the program name) without their --port, --all and --json
/// options, then "--port PORT --json".
QStringList childArguments(const QStringList& arguments, const QString& port);

/// Runs one command for several plotters at once: a child process per plotter,
/// `program` for that one port with --json, whose events the reporter gets with
/// the plotter's port. Each child runs in a process group of its own, so
/// that a terminal's Ctrl+C reaches only this process, which decides.
class Fleet : public QObject {
    Q_OBJECT

  public:
    /// `program`: the child to start for each port, as a rule this same program.
    /// `arguments`: this program's, without the program name. With
    /// `writesFirmware`, a child counts as writing from its first progress report to
    /// its result. `reporter` must outlive the fleet.
    Fleet(QString program, const QStringList& ports, const QStringList& arguments,
          bool writesFirmware, Reporter& reporter);
    /// Ends the children still running.
    ~Fleet() override;

    void start();
    bool writing() const;
    /// Ends every child still running at once.
    void terminate();

  signals:
    /// When every child has ended: 0 when every plotter succeeded, else the first
    /// non-zero status in port order.
    void finished(int exitCode);

  private:
    struct Child {
        QString port;
        std::unique_ptr<QProcess> process;
        QByteArray pending;  // output after the last complete line
        QByteArray errors;   // standard error, kept for a child that ends without a result
        bool writing = false;
        bool reported = false;
        std::optional<int> exitCode;
    };

    void readOutput(Child& child);
    void childEnded(Child& child, int exitCode, QProcess::ExitStatus status);

    const QString program_;
    const QStringList arguments_;
    const bool writesFirmware_;
    Reporter& reporter_;
    std::vector<std::unique_ptr<Child>> children_;
};
