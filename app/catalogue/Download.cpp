#include "app/catalogue/Download.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <optional>

namespace {

using Kind = DownloadFailure::Kind;

std::variant<QByteArray, DownloadFailure> readLocalFile(const QUrl& url,
                                                        const DownloadLimits& limits,
                                                        const DownloadProgress& progress) {
    QFile file(url.toLocalFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return DownloadFailure{Kind::unreachable, file.errorString()};
    }
    const QByteArray bytes = file.read(limits.maxBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return DownloadFailure{Kind::unreachable, file.errorString()};
    }
    if (bytes.size() > limits.maxBytes) {
        return DownloadFailure{Kind::tooLarge, {}};
    }
    if (progress) {
        progress(bytes.size());
    }
    return bytes;
}

// One GET, followed in an event loop of its own until it ends or is given up.
class NetworkFetch {
  public:
    NetworkFetch(const QUrl& url, const DownloadLimits& limits, const DownloadProgress& progress)
        : limits_(limits), progress_(progress), reply_(manager_.get(QNetworkRequest(url))) {
        QObject::connect(reply_.get(), &QNetworkReply::metaDataChanged, &loop_,
                         [this] { checkHeaders(); });
        QObject::connect(reply_.get(), &QNetworkReply::readyRead, &loop_, [this] { take(); });
        QObject::connect(reply_.get(), &QNetworkReply::finished, &loop_, &QEventLoop::quit);
        whole_.setSingleShot(true);
        stall_.setSingleShot(true);
        QObject::connect(&whole_, &QTimer::timeout, &loop_, [this] { giveUp(Kind::timedOut); });
        QObject::connect(&stall_, &QTimer::timeout, &loop_, [this] { giveUp(Kind::stalled); });
    }

    std::variant<QByteArray, DownloadFailure> run() {
        if (!limits_.deadline.isForever()) {
            whole_.start(static_cast<int>(std::max<qint64>(0, limits_.deadline.remainingTime())));
        }
        restartStall();
        loop_.exec();
        if (!failure_ && reply_->error() == QNetworkReply::NoError) {
            take();
        }
        if (!failure_ && reply_->error() != QNetworkReply::NoError) {
            failure_ = DownloadFailure{Kind::unreachable, reply_->errorString()};
        }
        if (failure_) {
            return *failure_;
        }
        return body_;
    }

  private:
    void checkHeaders() {
        const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const QVariant length = reply_->header(QNetworkRequest::ContentLengthHeader);
        // An error page is no answer, however long, so it is not read.
        if (status >= 400) {
            const QString phrase =
                reply_->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
            giveUp(Kind::unreachable, QStringLiteral("HTTP %1 %2").arg(status).arg(phrase));
        } else if (length.isValid() && length.toLongLong() > limits_.maxBytes) {
            giveUp(Kind::tooLarge);
        }
    }

    void take() {
        if (failure_) {
            return;
        }
        body_ += reply_->read(limits_.maxBytes + 1 - body_.size());
        if (body_.size() > limits_.maxBytes) {
            giveUp(Kind::tooLarge);
            return;
        }
        restartStall();
        if (progress_) {
            progress_(body_.size());
        }
    }

    void restartStall() {
        if (limits_.stallMs > 0) {
            stall_.start(limits_.stallMs);
        }
    }

    void giveUp(Kind kind, const QString& reason = {}) {
        if (!failure_) {
            failure_ = DownloadFailure{kind, reason};
        }
        reply_->abort();
    }

    const DownloadLimits& limits_;
    const DownloadProgress& progress_;
    // The loop comes first: it gives a thread that has none its event dispatcher.
    QEventLoop loop_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
    QTimer whole_;
    QTimer stall_;
    QByteArray body_;
    std::optional<DownloadFailure> failure_;
};

}  // namespace

std::variant<QByteArray, DownloadFailure> download(const QUrl& url, const DownloadLimits& limits,
                                                   const DownloadProgress& progress) {
    if (url.isLocalFile()) {
        return readLocalFile(url, limits, progress);
    }
    return NetworkFetch(url, limits, progress).run();
}
