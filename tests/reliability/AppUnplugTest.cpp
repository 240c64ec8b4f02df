#include <QList>
#include <QTest>
#include <cstring>
#include <memory>

#include "app/UpdateController.h"
#include "sim/PtyPlotter.h"
#include "tests/support/Descriptors.h"

// The user pulls the cable while the application writes firmware: the job fails
// with the write-failure message, the port is released, and the next poll, which
// no longer finds the device, shows the waiting state.
class AppUnplugTest : public QObject {
    Q_OBJECT

  private slots:
    void unplugDuringAnUpdateEndsInErrorThenIdle();
};

void AppUnplugTest::unplugDuringAnUpdateEndsInErrorThenIdle() {
    sim::Config config;
    config.goneAfterFlashData = 3;
    auto plotter = std::make_shared<sim::PtyPlotter>(config);
    const std::string path = plotter->path();
    // The port disappears from the system with the line, as a USB device does.
    auto detector = [plotter](uint16_t, uint16_t) -> char* {
        bool gone = false;
        plotter->inspect([&](const sim::Plotter& p) { gone = p.mode() == sim::Mode::Gone; });
        return gone ? nullptr : strdup(plotter->path().c_str());
    };
    UpdateController controller(ResourceBundle(QStringLiteral(TFU_DEV_RESOURCES_DIR)), detector,
                                UpdateController::DevelopmentImages::accept);
    controller.setDetailedLogging(true);
    QList<UpdateState> states;
    connect(&controller, &UpdateController::stateChanged,
            [&](const UpdateState& state) { states.append(state); });
    QTRY_COMPARE_WITH_TIMEOUT(controller.state(), UpdateState::ready(), 2000);

    controller.updateFirmware();
    const QString message = QStringLiteral("Flash write failed. Try again.");
    // probe and settle about 3 s, then one block time-out of 10 s
    QTRY_VERIFY_WITH_TIMEOUT(states.contains(UpdateState::error(message)), 20000);
    QTRY_COMPARE(controller.logMessages().last(), "ERROR: " + message);
    QCOMPARE(fdcheck::descriptorsOn(path), size_t{0});

    QTRY_COMPARE_WITH_TIMEOUT(controller.state(), UpdateState::idle(), 1000);
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));
    QCOMPARE(controller.logMessages().last(), "ERROR: " + message);  // the log keeps the outcome
}

QTEST_GUILESS_MAIN(AppUnplugTest)
#include "AppUnplugTest.moc"
