#pragma once

#include <QString>
#include <functional>

#include "app/JobSink.h"
#include "cli/Event.h"

/// Where a command running for one plotter sends what it reports. Every call
/// posts an event; safe from any thread, so the command can run on a worker.
class Feed {
  public:
    using Post = std::function<void(Event)>;

    /// With `verbose`, the library's own log lines become log lines too.
    Feed(Post post, bool verbose) : post_(std::move(post)), verbose_(verbose) {}

    void log(const QString& line) const { post_(event::Log{line}); }
    void error(const QString& message) const { post_(event::Error{message}); }

    /// Share, 0..1, of what a job said it would write that is written when the
    /// library reports a progress fraction.
    using WrittenShare = double (*)(float fraction);

    /// A sink for one of the application's jobs: its log lines, the library's
    /// lines when verbose, a first progress event (fraction 0) when it starts,
    /// then its progress with the bytes written, `share` of its size; without a
    /// `share` (a download, whose size XModem does not tell) the bytes are not told.
    JobSink jobSink(WrittenShare share = nullptr) const;

  private:
    Post post_;
    bool verbose_;
};
