#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QHash>
#include <QHostAddress>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <atomic>
#include <future>
#include <memory>
#include <mutex>
#include <thread>

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
        std::promise<quint16> listening;
        std::future<quint16> port = listening.get_future();
        thread_ = std::thread([this, &listening] { serveUntilStopped(listening); });
        port_ = port.get();
    }

    ~HttpServer() {
        QMetaObject::invokeMethod(loop_.load(), &QEventLoop::quit, Qt::QueuedConnection);
        thread_.join();
    }

    void serve(const QString& path, const Response& response) {
        const std::lock_guard lock(mutex_);
        responses_.insert(path, response);
    }

    QUrl url(const QString& path) const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port_).arg(path));
    }

    /// The GET requests received for `path` so far.
    int requests(const QString& path) const {
        const std::lock_guard lock(mutex_);
        return requests_.value(path);
    }

  private:
    // Everything of Qt's lives and dies on the server's own thread; the test's thread
    // meets it only through the mutex, the promise and the join, which a thread
    // checker sees.
    void serveUntilStopped(std::promise<quint16>& listening) {
        QEventLoop loop;
        QTcpServer server;
        server.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, &server] {
            while (QTcpSocket* socket = server.nextPendingConnection()) {
                accept(socket);
            }
        });
        loop_ = &loop;
        listening.set_value(server.serverPort());
        loop.exec();
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

    std::thread thread_;
    std::atomic<QEventLoop*> loop_ = nullptr;
    quint16 port_ = 0;
    mutable std::mutex mutex_;
    QHash<QString, Response> responses_;
    QHash<QString, int> requests_;
};
