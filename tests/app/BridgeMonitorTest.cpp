#include <QTest>
#include <cstring>
#include <memory>

#include "app/DeviceMonitor.h"
#include "app/FlasherBridge.h"

namespace {

const QString kMissingPort = QStringLiteral("/dev/tfu-no-such-port");

}  // namespace

class BridgeMonitorTest : public QObject {
    Q_OBJECT

  private slots:
    void bridgeParksHandlersForOneCallAndConvertsTheirTexts();
    void monitorPublishesPathBeforeConnectionOnEveryPoll();
};

void BridgeMonitorTest::bridgeParksHandlersForOneCallAndConvertsTheirTexts() {
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

void BridgeMonitorTest::monitorPublishesPathBeforeConnectionOnEveryPoll() {
    QByteArray present("/dev/pts/77");
    DeviceMonitor monitor([&](uint16_t vendor, uint16_t product) -> char* {
        if (vendor != 0x303A || product != 0x1001 || present.isEmpty()) {
            return nullptr;
        }
        return strdup(present.constData());
    });
    QStringList publications;
    connect(&monitor, &DeviceMonitor::portPathChanged, this,
            [&](const QString& path) { publications << "path " + path; });
    connect(&monitor, &DeviceMonitor::isConnectedChanged, this, [&](bool connected) {
        // The path must already match when the connection is published.
        QCOMPARE(monitor.hasPort(), connected);
        publications << QStringLiteral("connected %1").arg(connected);
    });

    monitor.startPolling();
    QCoreApplication::processEvents();  // the first poll is one interval away
    QVERIFY(publications.isEmpty() && !monitor.isConnected());

    QTRY_VERIFY_WITH_TIMEOUT(publications.size() >= 4, 2000);  // unchanged values republished
    QCOMPARE(publications.mid(0, 4),
             QStringList({"path /dev/pts/77", "connected 1", "path /dev/pts/77", "connected 1"}));

    present.clear();
    publications.clear();
    QTRY_VERIFY_WITH_TIMEOUT(publications.size() >= 2, 2000);
    QCOMPARE(publications.mid(0, 2), QStringList({"path ", "connected 0"}));
}

QTEST_GUILESS_MAIN(BridgeMonitorTest)
#include "BridgeMonitorTest.moc"
