#include <poll.h>
#include <unistd.h>
#include <QDBusConnection>
#include <QDBusServer>
#include <QDBusUnixFileDescriptor>
#include <QTest>
#include <cstring>
#include <memory>

#include "app/DesktopNotifier.h"
#include "app/DeviceMonitor.h"
#include "app/FlasherBridge.h"
#include "app/SleepInhibitor.h"

namespace {

const QString kMissingPort = QStringLiteral("/dev/tfu-no-such-port");

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

/// Stands in for the desktop's notification service.
class FakeNotifications : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

  public:
    QStringList calls;

  public slots:
    uint Notify(const QString& app, uint replaces, const QString& icon, const QString& title,
                const QString& body, const QStringList& actions, const QVariantMap& hints,
                int timeout) {
        const QString extras = QString::number(actions.size() + hints.size());
        calls << QStringList{app,    QString::number(replaces), icon, title, body,
                             extras, QString::number(timeout)}
                     .join('|');
        return 1;
    }
};

/// The application's ways out: the flasher library's callbacks, device detection
/// and logind's sleep lock.
class SeamsTest : public QObject {
    Q_OBJECT

  private slots:
    void bridgeParksHandlersForOneCallAndConvertsTheirTexts();
    void monitorPublishesPathBeforeConnectionOnEveryPoll();
    void sleepInhibitorHoldsTheLockOnlyWhileAsked();
    void notifierPostsToTheDesktopsServiceOrNowhere();
};

void SeamsTest::bridgeParksHandlersForOneCallAndConvertsTheirTexts() {
    auto token = std::make_shared<int>(0);
    QList<std::pair<float, QString>> progress;
    QStringList lines;
    bool parkedDuringCall = false;
    // The trampolines are driven from inside the call, as the library would.
    const esp_error_t result = FlasherBridge::flashFirmware(
        kMissingPort, QByteArray(16, 'x'), {}, {}, {}, QByteArray(32, 's'), true, false,
        std::nullopt,
        [&, token](float f, const QString& m) {
            progress.append({f, m});
        },
        [&, token](const QString& line) {
            parkedDuringCall = FlasherBridge::detail::hasParkedHandlers();
            lines << line;
            if (lines.size() == 1) {
                FlasherBridge::detail::progressTrampoline(0.1f, nullptr);
                FlasherBridge::detail::progressTrampoline(0.333333343f, "Flashing \xff");
                FlasherBridge::detail::logTrampoline(nullptr);
            }
        });
    QCOMPARE(result, esp_error_t(2));
    QCOMPARE(lines,
             QStringList({"Opening port: " + kMissingPort, QString(), "Failed to open port"}));
    QCOMPARE(progress, (QList<std::pair<float, QString>>{
                           {0.1f, QString()}, {0.333333343f, QStringLiteral("Flashing \ufffd")}}));
    QVERIFY(parkedDuringCall);
    QVERIFY(!FlasherBridge::detail::hasParkedHandlers());
    QCOMPARE(token.use_count(), 1);  // both closures released

    // A late callback from the library reaches nobody.
    FlasherBridge::detail::logTrampoline("late");
    FlasherBridge::detail::progressTrampoline(1.0f, "late");
    QCOMPARE(lines.size(), 3);
    QCOMPARE(progress.size(), 2);

    const auto record = [&](const QString& line) { lines << line; };
    QCOMPARE(FlasherBridge::uploadConfig(kMissingPort, "meta: 1\n", {}, record), esp_error_t(2));
    QCOMPARE(lines.size(), 3);  // the port never opened
    QVERIFY(!FlasherBridge::detail::hasParkedHandlers());
}

void SeamsTest::monitorPublishesPathBeforeConnectionOnEveryPoll() {
    DeviceMonitor monitor([](uint16_t vendor, uint16_t product) -> char* {
        return vendor == 0x303A && product == 0x1001 ? strdup("/dev/pts/77") : nullptr;
    });
    QStringList publications;
    connect(&monitor, &DeviceMonitor::portPathChanged, this,
            [&](const QString& path) { publications << "path " + path; });
    connect(&monitor, &DeviceMonitor::isConnectedChanged, this,
            [&](bool connected) { publications << QStringLiteral("connected %1").arg(connected); });

    monitor.startPolling();
    QCoreApplication::processEvents();  // the first poll is one interval away
    QVERIFY(publications.isEmpty() && !monitor.isConnected());

    QTRY_VERIFY_WITH_TIMEOUT(publications.size() >= 4, 2000);  // unchanged values republished
    QCOMPARE(publications.mid(0, 4),
             QStringList({"path /dev/pts/77", "connected 1", "path /dev/pts/77", "connected 1"}));
}

void SeamsTest::sleepInhibitorHoldsTheLockOnlyWhileAsked() {
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

void SeamsTest::notifierPostsToTheDesktopsServiceOrNowhere() {
    QDBusServer server(QStringLiteral("unix:tmpdir=/tmp"));
    FakeNotifications service;
    connect(&server, &QDBusServer::newConnection, &service, [&](QDBusConnection connection) {
        connection.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &service,
                                  QDBusConnection::ExportAllSlots);
    });
    const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), "notifications");
    DesktopNotifier(bus).notify("Firmware 2.10.6 installed and running.", "");
    QTRY_COMPARE(service.calls, QStringList{"Teskal Firmware Updater|0|teskal-firmware-updater|"
                                            "Firmware 2.10.6 installed and running.||0|-1"});
    QDBusConnection::disconnectFromPeer("notifications");
    DesktopNotifier(QDBusConnection(QStringLiteral("none"))).notify("unheard", "");
}

QTEST_GUILESS_MAIN(SeamsTest)
#include "SeamsTest.moc"
