#include "cli/Feed.h"

#include <atomic>
#include <cmath>
#include <memory>

JobSink Feed::jobSink(WrittenShare share) const {
    const auto total = std::make_shared<std::atomic<qint64>>(0);
    JobSink sink;
    sink.log = [post = post_](const QString& line) { post(event::Log{line}); };
    if (verbose_) {
        sink.libraryLog = sink.log;
    }
    sink.started = [post = post_, total](qint64 bytes) {
        total->store(bytes);
        post(event::Progress{0.0f, QString(), 0});
    };
    sink.progress = [post = post_, total, share](float fraction, const QString& stage) {
        const auto bytes = share != nullptr
                               ? static_cast<qint64>(std::llround(share(fraction) * total->load()))
                               : qint64{-1};
        post(event::Progress{fraction, stage, bytes});
    };
    return sink;
}
