#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QUrl>
#include <atomic>
#include <memory>
#include <mutex>

/// A small HTTP/1.1 server on 127.0.0.1 for tests, on a thread of its own so that a
/// client may block the test's thread. It answers GET requests from a table of
/// paths (404 for the rest) and closes each connection after its answer.
class HttpServer {
  public:
    struct Response {
        QByteArray body;
        int status = 200;
        bool declareLength = true;  ///< else the body ends where the connection closes
        qint64 stallAfter = -1;     ///< send this many body bytes, then hold the line open
        bool silent = false;        ///< read the request and never answer
    };

    HttpServer() {
        thread_.start();
        context_.moveToThread(&thread_);
        onServerThread([this] {
            server_ = new QTcpServer(&context_);
            server_->listen(QHostAddress::LocalHost, 0);
            port_ = server_->serverPort();
            QObject::connect(server_, &QTcpServer::newConnection, &context_, [this] {
                while (QTcpSocket* socket = server_->nextPendingConnection()) {
                    accept(socket);
                }
            });
        });
    }

    ~HttpServer() {
        onServerThread([this] { qDeleteAll(context_.children()); });
        thread_.quit();
        thread_.wait();
    }

    void serve(const QString& path, const Response& response) {
        const std::lock_guard lock(mutex_);
        responses_.insert(path, response);
    }

    QUrl url(const QString& path) const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port_.load()).arg(path));
    }

    /// The GET requests received for `path` so far.
    int requests(const QString& path) const {
        const std::lock_guard lock(mutex_);
        return requests_.value(path);
    }

  private:
    template <typename Step>
    void onServerThread(Step step) {
        QMetaObject::invokeMethod(&context_, step, Qt::BlockingQueuedConnection);
    }

    void accept(QTcpSocket* socket) {
        auto received = std::make_shared<QByteArray>();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, received] {
            *received += socket->readAll();
            if (received->contains("\r\n\r\n")) {
                answer(socket, QString::fromLatin1(received->split(' ').value(1)));
                received->clear();
            }
        });
    }

    void answer(QTcpSocket* socket, const QString& path) {
        Response response{"", 404};
        {
            const std::lock_guard lock(mutex_);
            ++requests_[path];
            response = responses_.value(path, response);
        }
        if (response.silent) {
            return;
        }
        QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) +
                          (response.status == 200 ? " OK" : " Not Found") +
                          "\r\nConnection: close\r\n";
        if (response.declareLength) {
            head += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
        }
        socket->write(head + "\r\n");
        if (response.stallAfter >= 0) {
            socket->write(response.body.left(response.stallAfter));
            return;
        }
        socket->write(response.body);
        socket->disconnectFromHost();
    }

    QThread thread_;
    QObject context_;
    QTcpServer* server_ = nullptr;
    // Shared with the test's thread by means ThreadSanitizer sees, not Qt's own.
    std::atomic<quint16> port_ = 0;
    mutable std::mutex mutex_;
    QHash<QString, Response> responses_;
    QHash<QString, int> requests_;
};
