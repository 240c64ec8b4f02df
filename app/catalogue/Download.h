#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>
#include <QUrl>
#include <functional>
#include <variant>

/// Why a download delivered nothing.
struct DownloadFailure {
    enum class Kind {
        unreachable,  ///< no connection, an HTTP error, a file that cannot be read
        timedOut,     ///< the deadline passed
        stalled,      ///< nothing arrived for the stall time
        tooLarge,     ///< more bytes than allowed (declared or received)
    };
    Kind kind = Kind::unreachable;
    QString reason;  ///< for `unreachable`: the system's or the server's words
};

/// How much a download may bring and how long it may take.
struct DownloadLimits {
    qint64 maxBytes = 0;  ///< more is `tooLarge`, found by reading one byte more at most
    QDeadlineTimer deadline{QDeadlineTimer::Forever};  ///< `timedOut` once it has passed
    int stallMs = 0;  ///< `stalled` after this many milliseconds without a byte; 0: none
};

/// Called with the count of bytes received so far.
using DownloadProgress = std::function<void(qint64 received)>;

/// The bytes at `url`: a local file is read directly; an http or https address is
/// fetched with Qt Network, the only case that opens a network connection. Blocks
/// the calling thread and spins an event loop of its own there: it needs a
/// QCoreApplication and must not run on a thread that a window waits on (an
/// operation's worker is the place). `progress` is called on the calling thread.
std::variant<QByteArray, DownloadFailure> download(const QUrl& url, const DownloadLimits& limits,
                                                   const DownloadProgress& progress = {});
