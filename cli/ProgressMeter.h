#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

#include "cli/Event.h"

/// The progress of one plotter as a terminal line or a log line shows it: stage,
/// percentage, bytes written and the rate since the first bytes of the transfer
/// went out.
class ProgressMeter {
  public:
    /// Takes a report that arrived `elapsedMs` after the run began.
    void update(const event::Progress& progress, qint64 elapsedMs);
    /// The command has ended: a success shows 100 %.
    void finish(bool succeeded);

    /// True once a report has arrived.
    bool active() const { return active_; }
    int percent() const;
    /// The last stage text, or what stands in for it before the first one and
    /// after the end.
    QString stage() const;
    /// "40%  612,352 bytes  180 KiB/s"; the rate once it can be told. Empty while
    /// the job does not tell its bytes.
    QString figures() const;
    /// "[########------------]", `width` cells between the brackets.
    QString bar(int width) const;

  private:
    bool active_ = false;
    std::optional<bool> succeeded_;
    float fraction_ = 0.0f;
    QString stage_;
    qint64 bytes_ = 0;                                     // -1: not told
    std::optional<std::pair<qint64, qint64>> firstBytes_;  // (elapsed ms, bytes)
    std::optional<double> bytesPerSecond_;
};
