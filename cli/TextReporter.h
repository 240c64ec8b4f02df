#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <cstdio>
#include <vector>

#include "cli/ProgressMeter.h"
#include "cli/Reporter.h"

/// Prints events as text: log lines to standard output, errors to standard
/// error in the window's words ("ERROR: " and the message), a connection
/// checklist's rows ("✓ line", a problem's fix indented below) before its result. On a terminal
/// each plotter has a progress line (stage, bar, percentage, bytes, rate) kept below the printed
/// lines and redrawn in place at most 10 times a second; elsewhere progress is plain lines at each
/// new stage and every 10 %, without control characters.
class TextReporter : public QObject, public Reporter {
  public:
    struct Style {
        bool terminal = false;   ///< standard output is a terminal
        bool withPorts = false;  ///< several plotters: lines start with "PORT: "
        bool showLog = true;     ///< log lines are printed (errors always are)
    };

    explicit TextReporter(Style style);

    void report(const QString& port, const Event& event) override;
    void notice(const QString& text) override;
    void close() override;

  private:
    struct Row {
        QString port;
        ProgressMeter meter;
        QString printedStage;
        int printedTenth = -1;
    };

    Row& row(const QString& port);
    void onProgress(Row& row, const event::Progress& progress);
    void onResult(Row& row, const event::Result& result);
    QString prefixed(const QString& port, const QString& text) const;
    /// Prints `text` as one line on `stream`, above a terminal's progress lines.
    void printLine(std::FILE* stream, const QString& text);
    void scheduleDraw();
    void draw();
    void erase();
    QString progressLine(const Row& row, int portWidth) const;

    Style style_;
    std::vector<Row> rows_;
    int drawnLines_ = 0;
    QElapsedTimer clock_;
    qint64 lastDrawMs_ = -1000;
    QTimer drawTimer_;
};
