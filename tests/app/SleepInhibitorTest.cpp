#include <poll.h>
#include <unistd.h>
#include <QDBusConnection>
#include <QDBusServer>
#include <QDBusUnixFileDescriptor>
#include <QTest>

#include "app/SleepInhibitor.h"

namespace {

// True once every write end of the pipe is closed.
bool writerGone(int readEnd) {
    pollfd entry{readEnd, POLLIN, 0};
    return poll(&entry, 1, 0) == 1 && (entry.revents & POLLHUP) != 0;
}

}  // namespace

/// Stands in for logind's manager on a peer-to-peer connection. Its lock is the
/// write end of a pipe, so the test sees the lock closed as a hang-up on the read end.
class FakeLogind : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

  public:
    ~FakeLogind() override {
        for (int readEnd : readEnds) {
            close(readEnd);
        }
    }

    QStringList calls;
    QList<int> readEnds;

  public slots:
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who, const QString& why,
                                    const QString& mode) {
        calls << QStringList{what, who, why, mode}.join('|');
        int ends[2];
        if (pipe(ends) != 0) {
            qFatal("pipe");
        }
        readEnds << ends[0];
        const QDBusUnixFileDescriptor lock(ends[1]);  // holds its own copy
        close(ends[1]);
        return lock;
    }
};

class SleepInhibitorTest : public QObject {
    Q_OBJECT

  private slots:
    void holdsTheLockOnlyWhileAsked();
};

void SleepInhibitorTest::holdsTheLockOnlyWhileAsked() {
    QDBusServer server(QStringLiteral("unix:tmpdir=/tmp"));
    FakeLogind logind;
    connect(&server, &QDBusServer::newConnection, &logind, [&](QDBusConnection connection) {
        connection.registerObject(QStringLiteral("/org/freedesktop/login1"), &logind,
                                  QDBusConnection::ExportAllSlots);
    });
    const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), "logind");
    QVERIFY(bus.isConnected());
    SleepInhibitor inhibitor(bus);

    inhibitor.setHeld(true);
    QTRY_VERIFY(inhibitor.isHeld());
    QCOMPARE(logind.calls,
             QStringList{"sleep:idle|Teskal Firmware Updater|Writing firmware or a configuration "
                         "to the plotter|block"});
    QVERIFY(!writerGone(logind.readEnds.last()));
    inhibitor.setHeld(false);
    QVERIFY(!inhibitor.isHeld());
    QVERIFY(writerGone(logind.readEnds.last()));

    // A lock that arrives after the job ended is closed at once.
    inhibitor.setHeld(true);
    inhibitor.setHeld(false);
    QTRY_COMPARE(logind.calls.size(), 2);
    QTRY_VERIFY(writerGone(logind.readEnds.last()));
    QVERIFY(!inhibitor.isHeld());
    QDBusConnection::disconnectFromPeer("logind");
}

QTEST_GUILESS_MAIN(SleepInhibitorTest)
#include "SleepInhibitorTest.moc"
