#include <sys/stat.h>

#include <QRegularExpression>
#include <QSignalSpy>

#include "../support/HoldingProcess.h"
#include "ControllerHarness.h"
#include "app/BackupIndex.h"
#include "app/DeviceQueries.h"
#include "app/Outcome.h"
#include "app/SimulatedPlotter.h"
#include "app/Texts.h"
#include "app/operations/EraseKeepingSettings.h"
#include "app/operations/MachineConfigFile.h"
#include "app/operations/Repair.h"
#include "tests/support/Descriptors.h"
#include "tests/support/SimTranscript.h"

namespace {

const QString kComplete = QStringLiteral("Firmware update complete.");
const QString kUploaded = QStringLiteral("Upload successful; restarting machine.");
const QString kShipped = QStringLiteral("Updating firmware v2.10.6\u2026");
const QString kSaving =
    QStringLiteral("Saving the machine's settings before Erase All Flash\u2026");
const QString kErasedNote = QStringLiteral(
    "NOTE: Flash was erased. Use Config > Update Config to upload the configuration for your "
    "machine.");
const QString kRunning = QStringLiteral("Firmware 2.10.6 installed and running.");
const QString kRestarted = QStringLiteral("Configuration uploaded; the machine restarted with it.");
constexpr int kJobTimeoutMs = 60000;

std::unique_ptr<sim::PtyPlotter> simulated(sim::Config config = {}) {
    return startSimulatedPlotter(ResourceBundle(TFU_DEV_RESOURCES_DIR), SimulatedPace::instant,
                                 config);
}

QByteArray storedConfig(const sim::PtyPlotter& plotter) {
    QByteArray bytes;
    plotter.inspect([&](const sim::Plotter& p) {
        const auto stored = p.storedConfig().value_or(std::vector<uint8_t>{});
        bytes = QByteArray(reinterpret_cast<const char*>(stored.data()), stored.size());
    });
    return bytes;
}

/// The Halcot configuration as its owner tuned it on the machine.
QByteArray tunedHalcot() {
    QByteArray tuned = ResourceBundle(TFU_DEV_RESOURCES_DIR).readConfig("Halcot.yaml").value();
    return tuned.replace("  x:\n    steps_per_mm: 80.000", "  x:\n    steps_per_mm: 78.750");
}

/// A simulated plotter on a pseudo-terminal, a controller for it, and a data folder
/// of its own for the backups.
struct Rig {
    explicit Rig(sim::Config config = {}) : plotter(simulated(std::move(config))) {}

    /// Plugs the plotter in, starts `job` and waits for its result.
    bool run(const std::function<void()>& job) { return harness.run(port, job); }
    std::optional<UpdateState> outcome() { return harness.waitForOutcome(kJobTimeoutMs); }

    QTemporaryDir dir;
    const bool dataHome = qputenv("XDG_DATA_HOME", dir.filePath("data").toUtf8());
    std::unique_ptr<sim::PtyPlotter> plotter;
    const QString port = QString::fromStdString(plotter->path());
    ControllerHarness harness;
    UpdateController& controller = harness.controller;
};

}  // namespace

/// Whole jobs through the controller, the library and a pseudo-terminal to the
/// simulated plotter. Protocol waits are real, so the cases are few.
class ControllerSimTest : public QObject {
    Q_OBJECT

  private slots:
    // Dates in the window are the locale's; these cases read them in C's.
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void updatesOfAChosenImageAfterEraseAllAndUnplugged();
    void configurationsSavedComparedBackedUpAndUploaded();
    void everyStartUpComesBackAsItsVerdict_data();
    void everyStartUpComesBackAsItsVerdict();
    void aPortHeldByAnotherProgramIsRefusedBeforeAnythingIsSent();
    void eraseAllKeepsTheMachinesSettings();
    void teskalFlashErasesASilentMachineSayingNothingWasSaved();
    void aRejectedConfigurationIsOneStepFromThePreviousOne();
    void repairBringsBackAMachineThatDoesNotStartWithItsSettings();
    void repairSavesAnAnsweringFirmwareAndSendsWhatItsStepsSend();
};

void ControllerSimTest::updatesOfAChosenImageAfterEraseAllAndUnplugged() {
    Rig rig;
    auto& controller = rig.controller;
    controller.setDetailedLogging(true);
    controller.chooseCustomFirmware(TFU_DEV_RESOURCES_DIR "/firmware.bin");
    QVERIFY(rig.run([&] { controller.updateFirmware(); }));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::flashComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kRunning);
    QVERIFY(controller.logMessages().contains(kComplete));
    QCOMPARE(controller.logMessages().first(), "Updating firmware (custom: firmware.bin)\u2026");
    // A chosen image carries no version the job could expect afterwards.
    QVERIFY(!controller.logMessages().contains("Verifying firmware version..."));

    // Erase All Flash, erased without saving: the shipped image, no probe, no
    // console line before the erase, and the NOTE after success.
    controller.setDetailedLogging(false);
    controller.setCustomFirmwareURL({});
    controller.setEraseAllFlashEnabled(true);
    controller.setSettingsQuestions(
        {[] { return SettingsQuestions::BeforeErase::eraseWithoutSaving; }, {}, {}, {}});
    const qsizetype before = transcript(*rig.plotter).size();
    QVERIFY(rig.run([&] { controller.updateFirmware(); }));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::flashComplete()));
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({kShipped, kComplete, "", kErasedNote, kRunning}));
    // The erase is reported at 0.08 in single precision, and published as reported.
    QCOMPARE(rig.harness.busySpan().mid(0, 2),
             QList<UpdateState>({UpdateState::flashing(0), UpdateState::flashing(0.08f)}));
    QVERIFY(rig.harness.published.contains("status: Erasing flash..."));
    const QStringList job = transcript(*rig.plotter).mid(before);
    QCOMPARE(job.first(), "SYNC");
    QVERIFY(!job.mid(0, job.indexOf("ERASE_FLASH")).join(' ').contains('$'));
    rig.plotter->inspect([](const sim::Plotter& p) {
        const auto* flash = reinterpret_cast<const char*>(p.flash().data());
        for (const auto& [address, name] :
             {std::pair(0x0u, "bootloader"), std::pair(0x8000u, "partitions"),
              std::pair(0xE000u, "boot_app0"), std::pair(0x10000u, "firmware")}) {
            const QByteArray image =
                ResourceBundle(TFU_DEV_RESOURCES_DIR).read(name, "bin").value();
            QVERIFY2(QByteArray(flash + address, image.size()) == image, name);
        }
    });

    // The cable pulled during the write: the job fails and releases the port, and
    // the next poll, which no longer finds the device, shows the waiting state.
    sim::Config pulled;
    pulled.goneAfterFlashData = 3;
    const auto unplugged = simulated(pulled);
    controller.setEraseAllFlashEnabled(false);
    QVERIFY(rig.harness.run(QString::fromStdString(unplugged->path()),
                            [&] { controller.updateFirmware(); }));
    const QString failed = QStringLiteral("Flash write failed. Try again.");
    QCOMPARE(rig.outcome(), std::optional(UpdateState::error(failed)));
    QCOMPARE(fdcheck::descriptorsOn(unplugged->path()), size_t{0});
    QVERIFY(rig.harness.plug({}));
    QCOMPARE(controller.statusMessage(), QStringLiteral("Waiting for device\u2026"));
    QCOMPARE(controller.logMessages().last(), "ERROR: " + failed);
}

void ControllerSimTest::configurationsSavedComparedBackedUpAndUploaded() {
    const QByteArray halcot =
        ResourceBundle(TFU_DEV_RESOURCES_DIR).readConfig("Halcot.yaml").value();
    const QByteArray tuned = tunedHalcot();
    sim::Config config;
    config.machineConfig = tuned.toStdString();
    config.xmodemSendCanBlock = 1;
    Rig rig(config);
    auto& controller = rig.controller;
    auto& plotter = *rig.plotter;
    const QDir backups(rig.dir.filePath("data/teskal-firmware-updater/backups"));
    const ConfigChoice halcotChoice = ConfigChoice::ofProduct({"Corvane Halcot", "Halcot.yaml"});
    const QString cancelled = QStringLiteral(
        "Could not read config.yaml from the machine: XModem download: cancelled by the device");
    const auto savedTo = [&](const QString& path) {
        return QString("Machine config saved to %1 (%2 bytes)").arg(path).arg(tuned.size());
    };

    // A failed download leaves an earlier file as it was.
    const QString saved = writeFile(rig.dir, "saved.yaml", "earlier copy\n");
    QVERIFY(rig.run([&] { controller.saveMachineConfig(saved); }));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::error(cancelled)));
    QCOMPARE(readFile(saved), QByteArray("earlier copy\n"));

    plotter.modify([](sim::Plotter& p) { p.config().xmodemSendCanBlock.reset(); });
    QVERIFY(rig.run([&] {
        controller.saveMachineConfig(saved);
        controller.compareWithMachine(halcotChoice);  // refused; the save goes on
    }));
    QCOMPARE(controller.logMessages(),
             QStringList({"ERROR: Another operation is already running", savedTo(saved)}));
    QCOMPARE(readFile(saved), tuned);
    // It can hold network credentials: the owner's alone, as the backups are.
    struct stat status {};
    QVERIFY(::stat(qPrintable(saved), &status) == 0);
    QCOMPARE(status.st_mode & 07777, 0600u);
    QCOMPARE(QDir(rig.dir.path()).entryList(QDir::Files), QStringList{"saved.yaml"});
    // The download holds its state through every poll; only its end brings "ready".
    const QStringList published = rig.harness.publishedByJob();
    QCOMPARE(published.first(), "downloadingConfig");
    QCOMPARE(published.mid(published.indexOf("ready"), 2),
             QStringList({"ready", "status: Machine config saved"}));
    QVERIFY(published.contains(
        QString("status: Downloading config.yaml\u2026 %1 bytes").arg(tuned.size())));

    QSignalSpy compared(&controller, &UpdateController::machineConfigCompared);
    controller.compareWithMachine(halcotChoice);
    QTRY_COMPARE_WITH_TIMEOUT(compared.size(), 1, kJobTimeoutMs);
    const auto comparison = compared[0][0].value<ConfigComparison>();
    QCOMPARE(comparison.keyDifferences, QStringList{"axes/x/steps_per_mm: 78.750 → 80.000"});
    QVERIFY(comparison.lineDiff.contains("-    steps_per_mm: 78.750\n+    steps_per_mm: 80.000\n"));
    QCOMPARE(compared[0][1].value<ConfigChoice>().label(), "Corvane Halcot");
    QCOMPARE(controller.logMessages(),
             QStringList{"Machine config differs from Corvane Halcot in 1 key"});

    // The backup holds what the machine had, and the upload follows it.
    controller.setBackupBeforeUploadEnabled(true);
    QVERIFY(rig.run([&] { controller.uploadConfig("Halcot.yaml", "Corvane Halcot"); }));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::configComplete()));
    QTRY_COMPARE(controller.logMessages().last(), kRestarted);
    // Every read kept a copy: the save, the comparison and the backup before the upload.
    const QList<Backup> kept = BackupIndex(backups.path()).list();
    QCOMPARE(kept.size(), 3);
    for (const auto& [backup, reason] :
         {std::pair(kept[0], BackupReason::beforeUpload), std::pair(kept[1], BackupReason::compare),
          std::pair(kept[2], BackupReason::save)}) {
        QCOMPARE(backup.reason, reason);
        QCOMPARE(backup.machine, rig.port);
        QCOMPARE(backup.firmwareVersion, std::optional<QString>("v3.7.8"));
        QCOMPARE(readFile(backup.path), tuned);
    }
    const QString copy = QFileInfo(kept[0].path).fileName();
    QVERIFY2(QRegularExpression("^config-\\d{8}-\\d{6}(-\\d+)?\\.yaml$").match(copy).hasMatch(),
             qPrintable(copy));
    const QStringList files = backups.entryList(QDir::Files);
    QCOMPARE(controller.logMessages().mid(0, 2),
             QStringList({savedTo(kept[0].path), "Preparing Corvane Halcot config v1.2.0-devset"}));
    QCOMPARE(rig.harness.busySpan().first(), UpdateState::downloadingConfig());
    QCOMPARE(rig.harness.busySpan().last(), UpdateState::configComplete());
    QCOMPARE(storedConfig(plotter), halcot);

    // A backup that fails stops the upload before it reaches the machine.
    plotter.modify([](sim::Plotter& p) { p.config().xmodemSendCanBlock = 1; });
    const QString workshopYaml = writeFile(rig.dir, "workshop.yaml", "name: workshop\n");
    QVERIFY(rig.run([&] { controller.uploadConfigFromFile(workshopYaml); }));
    const QString message =
        "Could not back up the machine config; the upload did not start: " + cancelled;
    QCOMPARE(rig.outcome(), std::optional(UpdateState::error(message)));
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"Preparing workshop.yaml", "ERROR: " + message}));
    QCOMPARE(storedConfig(plotter), halcot);
    QCOMPARE(backups.entryList(QDir::Files), files);

    // A configuration from a file, without a backup.
    QByteArray workshop("name: \"Workshop plotter\"\nmeta: '9.9'\n");
    workshop.append(3 * 1024 - workshop.size(), '#');
    QList<float> progress;
    connect(&controller, &UpdateController::progressChanged, this,
            [&](float fraction) { progress << fraction; });
    controller.setBackupBeforeUploadEnabled(false);
    const QString workshopYml = writeFile(rig.dir, "workshop.yml", workshop);
    QVERIFY(rig.run([&] { controller.uploadConfigFromFile(workshopYml); }));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::configComplete()));
    // Each block reports the same stage, which is logged when it first differs
    // from the status line.
    QTRY_COMPARE(controller.logMessages(),
                 QStringList({"Preparing workshop.yml v9.9", "Uploading config file...",
                              "Uploading config file...", kUploaded, kRestarted}));
    // Three XModem blocks: the library reports 1/3, 2/3 and 1 in single precision,
    // which the controller must publish exactly as reported.
    QCOMPARE(rig.harness.busySpan(),
             QList<UpdateState>({UpdateState::uploadingConfig(0),
                                 UpdateState::uploadingConfig(0.333333343f),
                                 UpdateState::uploadingConfig(0.666666687f),
                                 UpdateState::uploadingConfig(1), UpdateState::configComplete()}));
    QVERIFY(progress == QList<float>({0.333333343f, 0.666666687f, 1.0f}));
    QVERIFY(storedConfig(plotter) == workshop);
}

// The write succeeds every time; what the machine prints afterwards decides the
// outcome (the core's tests judge each start-up; these are the kinds the window
// shows). The log keeps the job's lines and ends with the banner's sentence; the
// start check is a stage of its own; the state stays that of the write.
void ControllerSimTest::everyStartUpComesBackAsItsVerdict_data() {
    QTest::addColumn<int>("startup");  // sim::Startup
    QTest::addColumn<bool>("upload");
    QTest::addColumn<int>("kind");  // Outcome::Kind
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("evidence");
    using K = Outcome::Kind;
    const auto row = [](const char* name, sim::Startup startup, bool upload, K kind, int verdict,
                        const char* evidence) {
        QTest::newRow(name) << int(startup) << upload << int(kind) << verdict << QString(evidence);
    };
    row("running", sim::Startup::Healthy, false, K::succeeded, ESP_STARTUP_RUNNING, "");
    row("panic", sim::Startup::Panic, false, K::notStarting, ESP_STARTUP_PANIC, "Guru Meditation");
    row("other version", sim::Startup::OtherVersion, false, K::notConfirmed,
        ESP_STARTUP_WRONG_VERSION, "[VER:");
    row("configuration rejected", sim::Startup::ConfigError, true, K::configRejected,
        ESP_STARTUP_CONFIG_ERROR, "[MSG:ERR:");
}

void ControllerSimTest::everyStartUpComesBackAsItsVerdict() {
    QFETCH(int, startup);
    QFETCH(bool, upload);
    QFETCH(int, kind);
    QFETCH(int, verdict);
    QFETCH(QString, evidence);
    sim::Config config;
    config.startup = sim::Startup(startup);
    Rig rig(config);
    auto& controller = rig.controller;
    QVERIFY(rig.run([&] {
        upload ? controller.uploadConfig("Halcot.yaml", "Corvane Halcot")
               : controller.updateFirmware();
    }));
    const Outcome& outcome = *controller.result();
    QVERIFY2(outcome.kind == Outcome::Kind(kind), qPrintable(controller.logMessages().join('\n')));
    QCOMPARE(std::get<StartupCause>(outcome.cause).verdict, verdict);
    QVERIFY(outcome.evidence.isEmpty() || outcome.evidence.first().startsWith(evidence));
    const QStringList log = controller.logMessages();
    QVERIFY(log.contains(upload ? kUploaded : kComplete));
    // A machine that does not run what was written is quoted before the sentence.
    const QStringList quoted =
        outcome.isFailure()
            ? QStringList(outcome.evidence).replaceInStrings(QRegularExpression("^"), "  ")
            : QStringList();
    QCOMPARE(log.mid(log.size() - 1 - quoted.size()),
             quoted + QStringList{(outcome.isFailure() ? "ERROR: " : "") + outcome.message});
    // The write's state, never an error: the machine's verdict is the banner's.
    const QList<UpdateState>& states = rig.harness.states;
    QVERIFY(states.contains(UpdateState::checkingStartup()));
    QVERIFY(states.contains(upload ? UpdateState::configComplete() : UpdateState::flashComplete()));
    QVERIFY(std::none_of(states.begin(), states.end(), [](const UpdateState& s) {
        return s.kind() == UpdateState::Kind::error;
    }));
}

// A serial monitor left open on the plotter's port: the job says who holds it,
// sends nothing and asks nothing, and the window offers its Connection Check.
void ControllerSimTest::aPortHeldByAnotherProgramIsRefusedBeforeAnythingIsSent() {
    sim::PtyPlotter plotter;
    const QString port = QString::fromStdString(plotter.path());
    const HoldingProcess monitor(plotter.path());
    ControllerHarness harness;
    auto& controller = harness.controller;
    QVERIFY(harness.plug(port));
    QVERIFY(!controller.connectionHint()->offered());

    controller.updateFirmware();
    const QString held =
        QString("%1 is in use by sleep (pid %2). Close that program and try again.")
            .arg(port)
            .arg(monitor.pid);
    QCOMPARE(harness.waitForOutcome(5000), std::optional(UpdateState::error(held)));
    QCOMPARE(controller.logMessages(), QStringList{"ERROR: " + held});
    QVERIFY(controller.connectionHint()->offered());
    plotter.inspect([](const sim::Plotter& p) { QVERIFY(p.transcript().empty()); });
}

void ControllerSimTest::eraseAllKeepsTheMachinesSettings() {
    const QByteArray tuned = tunedHalcot();
    sim::Config config;
    config.machineConfig = tuned.toStdString();
    Rig rig(config);
    auto& controller = rig.controller;
    auto& plotter = *rig.plotter;
    const auto update = [&] { return rig.run([&] { controller.updateFirmware(); }); };
    controller.setEraseAllFlashEnabled(true);
    using BeforeErase = SettingsQuestions::BeforeErase;
    using AfterFailedRead = SettingsQuestions::AfterFailedRead;
    QStringList asked;
    // The questions' answers; each failed read lets the next one through.
    const auto answers = [&](BeforeErase first, bool anyway, QList<AfterFailedRead> reads) {
        asked.clear();
        auto remaining = std::make_shared<QList<AfterFailedRead>>(reads);
        controller.setSettingsQuestions(
            {[&asked, first] { return asked << "erase?", first; },
             [&asked, anyway] { return asked << "anyway?", anyway; },
             [&asked, &plotter, remaining](const QString& reason) {
                 asked << "failed: " + reason;
                 plotter.modify([](sim::Plotter& p) { p.config().xmodemSendCorruptBlock.reset(); });
                 return remaining->takeFirst();
             },
             {}});
    };
    const auto restored = [&] {
        const QStringList log = controller.logMessages();
        return !log.isEmpty() &&
               log.last().startsWith(
                   "Firmware 2.10.6 installed and running, with your settings restored from the "
                   "backup of ");
    };

    // Cancel: nothing happens.
    answers(BeforeErase::cancel, false, {});
    QVERIFY(rig.harness.plug(rig.port));
    controller.updateFirmware();
    QCOMPARE(asked, QStringList{"erase?"});
    QVERIFY(!controller.jobRunning());
    QVERIFY(transcript(plotter).isEmpty());

    // Save and Restore: read before the erase, put back after the confirmation, byte
    // for byte, the copy kept.
    answers(BeforeErase::saveAndRestore, false, {});
    QVERIFY(update());
    QTRY_VERIFY_WITH_TIMEOUT(restored(), kJobTimeoutMs);
    QCOMPARE(storedConfig(plotter), tuned);
    const QList<Backup> kept = BackupIndex().list();
    QCOMPARE(kept.size(), 1);
    QCOMPARE(kept[0].reason, BackupReason::beforeErase);
    QCOMPARE(readFile(kept[0].path), tuned);
    const QStringList wire = transcript(plotter);
    const qsizetype read = wire.indexOf("$Xmodem/Send=config.yaml");
    const qsizetype erase = wire.indexOf("ERASE_FLASH");
    const qsizetype confirmed = wire.lastIndexOf("$I", wire.indexOf("$Xmodem/Receive=config.yaml"));
    QVERIFY2(read >= 0 && read < erase && erase < confirmed, qPrintable(wire.join(' ')));
    QVERIFY(wire.mid(erase, confirmed - erase).contains("FLASH_END"));
    const QStringList log = controller.logMessages();
    QCOMPARE(
        log.mid(0, 3),
        QStringList(
            {kSaving,
             QString("Machine config saved to %1 (%2 bytes)").arg(kept[0].path).arg(tuned.size()),
             kShipped}));
    // The NOTE stays, and the next line says what the job then does by itself.
    const QString when = Texts::backupTime(kept[0].time, Texts::Audience::window);
    QCOMPARE(
        log.mid(log.indexOf(kComplete)),
        QStringList({kComplete, "", kErasedNote,
                     "Once the machine runs, your settings from " + when + " will be put back.",
                     "Preparing " + QFileInfo(kept[0].path).fileName() + " v1.2.0-devset",
                     "Uploading config file...", "Uploading config file...", kUploaded,
                     "Firmware 2.10.6 installed and running, with your settings restored "
                     "from the backup of " +
                         when + "."}));
    QCOMPARE(asked, QStringList{"erase?"});

    // A read that fails erases nothing; Retry reads again on a console that still
    // understands it, and the update goes on with the log continued.
    plotter.modify([](sim::Plotter& p) {
        p.config().xmodemSendCorruptBlock = 1;
        p.config().xmodemSendCorruptTimes = 1000;
    });
    answers(BeforeErase::saveAndRestore, false, {AfterFailedRead::retry});
    const qsizetype before = transcript(plotter).size();
    QVERIFY(update());
    QTRY_VERIFY_WITH_TIMEOUT(restored(), kJobTimeoutMs);
    const QString failed = QStringLiteral(
        "Nothing was erased: Could not read config.yaml from the machine: XModem download: block "
        "1 failed 25 times");
    QCOMPARE(asked.mid(1), QStringList{"failed: " + failed});
    QCOMPARE(controller.logMessages().mid(0, 3),
             QStringList({kSaving, "ERROR: " + failed, kSaving}));
    const QStringList retried = transcript(plotter).mid(before);
    QCOMPARE(retried.count("$Xmodem/Send=config.yaml"), 2);
    QVERIFY(retried.lastIndexOf("$Xmodem/Send=config.yaml") < retried.indexOf("ERASE_FLASH"));
    QCOMPARE(storedConfig(plotter), tuned);

    // A backups folder that cannot be made: nothing is erased, and Cancel leaves it so.
    writeFile(rig.dir, "blocked", "a file where the data folder should be\n");
    qputenv("XDG_DATA_HOME", rig.dir.filePath("blocked").toUtf8());
    answers(BeforeErase::saveAndRestore, false, {AfterFailedRead::cancel});
    const qsizetype blocked = transcript(plotter).size();
    QVERIFY(update());
    const QString unusable =
        "Nothing was erased: " +
        Texts::backupFolderUnusable(rig.dir.filePath("blocked/teskal-firmware-updater/backups"));
    QCOMPARE(rig.outcome(), std::optional(UpdateState::error(unusable)));
    QTRY_COMPARE(asked, QStringList({"erase?", "failed: " + unusable}));
    QVERIFY(!transcript(plotter).mid(blocked).contains("ERASE_FLASH"));
    qputenv("XDG_DATA_HOME", rig.dir.filePath("data").toUtf8());

    // A machine that does not start after the update cannot take its settings back:
    // the copy stays, and the log says how to restore it later. (A brown-out: the
    // erase and the full flash mend every start-up that lives in the flash.)
    plotter.modify([](sim::Plotter& p) { p.config().startup = sim::Startup::Brownout; });
    answers(BeforeErase::saveAndRestore, false, {});
    const qsizetype panicking = transcript(plotter).size();
    QVERIFY(update());
    QCOMPARE(controller.result()->kind, Outcome::Kind::notStarting);
    const Backup newest = BackupIndex().list().first();
    QCOMPARE(newest.reason, BackupReason::beforeErase);
    QCOMPARE(readFile(newest.path), tuned);
    QVERIFY(controller.logMessages().contains(Texts::restoreLaterInWindow(newest.path)));
    QVERIFY(!transcript(plotter).mid(panicking).contains("$Xmodem/Receive=config.yaml"));

    // A firmware that does not answer: nothing can be saved; "erase anyway" runs the
    // flashing job as it is, the log continued.
    plotter.modify([](sim::Plotter& p) { p.config().startup = sim::Startup::Healthy; });
    answers(BeforeErase::saveAndRestore, true, {});
    QVERIFY(rig.harness.plug(rig.port));
    controller.updateFirmware();
    const QString silent =
        QStringLiteral("The machine's firmware does not answer, so its settings cannot be saved.");
    QCOMPARE(rig.outcome(), std::optional(UpdateState::error(silent)));
    QTRY_COMPARE(asked, QStringList({"erase?", "anyway?"}));
    QTRY_VERIFY_WITH_TIMEOUT(controller.logMessages().contains(kComplete), kJobTimeoutMs);
    QCOMPARE(controller.logMessages().mid(0, 3),
             QStringList({kSaving, "ERROR: " + silent, kShipped}));
    QTRY_VERIFY(!controller.jobRunning());
}

void ControllerSimTest::teskalFlashErasesASilentMachineSayingNothingWasSaved() {
    sim::Config config;
    config.silentConsole = true;
    Rig rig(config);
    EraseKeepingSettings::Options options;
    options.flash.developmentImages = DevelopmentImages::accept;
    options.goOnWhenSilent = true;
    EraseKeepingSettings erase(rig.port, ResourceBundle(TFU_DEV_RESOURCES_DIR), options);
    QStringList log;
    OperationSink sink;
    sink.audience = Texts::Audience::commandLine;
    sink.portName = "sim1";
    sink.log = [&](const LogEntry& entry) { log << entry.line(); };
    // Written and verified; a console that stays silent cannot confirm it either.
    const Outcome erased = erase.run(sink);
    QCOMPARE(erased.kind, Outcome::Kind::notConfirmed);
    const auto& settings = std::get<SettingsCause>(erased.cause);
    QCOMPARE(settings.stop, SettingsCause::Stop::none);
    QCOMPARE(settings.saved, std::nullopt);
    QCOMPARE(log.mid(0, 4),
             QStringList({kSaving,
                          "The machine's firmware does not answer, so its settings cannot be "
                          "saved.",
                          "Erasing all flash without saving the settings.", kShipped}));
    QVERIFY(transcript(*rig.plotter).contains("ERASE_FLASH"));
    QVERIFY(BackupIndex().list().isEmpty());
}

void ControllerSimTest::aRejectedConfigurationIsOneStepFromThePreviousOne() {
    const QByteArray tuned = "name: \"Tuned\"\nmeta: '1.0'\n";
    sim::Config config;
    config.machineConfig = tuned.toStdString();
    config.startup = sim::Startup::ConfigError;
    Rig rig(config);
    auto& controller = rig.controller;
    const auto uploadRejected = [&] {
        QVERIFY(rig.run([&] { controller.uploadConfig("Halcot.yaml", "Corvane Halcot"); }));
        QCOMPARE(controller.result()->kind, Outcome::Kind::configRejected);
    };

    const auto previous = [&] { return controller.result()->startup()->previous; };

    // The backup from before the upload is offered.
    controller.setBackupBeforeUploadEnabled(true);
    uploadRejected();
    const Backup before = BackupIndex().list().value(0);
    QCOMPARE(before.reason, BackupReason::beforeUpload);
    QCOMPARE(previous(), before);

    // Without one, the machine's newest; a job that ends otherwise offers none.
    controller.setBackupBeforeUploadEnabled(false);
    uploadRejected();
    QCOMPARE(previous(), before);
    // Rejected too, the newest offers nothing: it is the file just put back.
    QVERIFY(rig.run([&] { controller.restorePreviousConfiguration(); }));
    QCOMPARE(controller.result()->kind, Outcome::Kind::configRejected);
    QCOMPARE(previous(), std::nullopt);
    QVERIFY(rig.run([&] { controller.uploadConfig("Halcot.yaml", "Corvane Halcot"); }));
    rig.plotter->modify([](sim::Plotter& p) { p.config().startup = sim::Startup::Healthy; });
    QVERIFY(rig.run([&] { controller.restorePreviousConfiguration(); }));
    QCOMPARE(controller.result()->kind, Outcome::Kind::succeeded);
    QCOMPARE(storedConfig(*rig.plotter), tuned);
    QCOMPARE(controller.logMessages().last(),
             "Settings restored from the backup of " +
                 Texts::backupTime(before.time, Texts::Audience::window) + ".");
    QCOMPARE(previous(), std::nullopt);
}

// A boot-looping machine: nothing known to go back erases nothing; with a backup of
// it, one repair brings it back running with that file, byte for byte.
void ControllerSimTest::repairBringsBackAMachineThatDoesNotStartWithItsSettings() {
    const QByteArray tuned = tunedHalcot();
    sim::Config config;
    config.startup = sim::Startup::BootLoop;
    Rig rig(config);
    auto& controller = rig.controller;
    QVERIFY(rig.run([&] { controller.updateFirmware(); }));
    QVERIFY(Repair::helps(*controller.result()));

    QVERIFY(rig.run([&] { controller.repairMachine({}); }));
    QCOMPARE(controller.result()->kind, Outcome::Kind::nothingToRestore);
    QVERIFY(!transcript(*rig.plotter).contains("ERASE_FLASH"));

    BackupIndex::Source source;
    source.machine = DeviceQueries::machineIdentity(rig.port);
    source.time = QDateTime(QDate(2026, 11, 24), QTime(14, 2));
    QVERIFY(std::holds_alternative<Backup>(BackupIndex().keep(tuned, source)));
    QVERIFY(rig.run([&] { controller.repairMachine({}); }));
    const Outcome repaired = *controller.result();
    QCOMPARE(repaired.message,
             QStringLiteral("Machine repaired: it runs firmware 2.10.6 with your settings from "
                            "24 Nov 2026 14:02:00."));
    QCOMPARE(repaired.startup()->verdict, ESP_STARTUP_RUNNING);
    QCOMPARE(storedConfig(*rig.plotter), tuned);
    const QStringList log = controller.logMessages();
    QVERIFY(log.contains(
        "Erase the machine, install firmware 2.10.6, then put back your settings from 24 Nov "
        "2026 14:02:00."));
    QCOMPARE(log.mid(log.indexOf(kErasedNote) + 1, 1),
             QStringList{"Once the machine runs, your settings from 24 Nov 2026 14:02:00 will be "
                         "put back."});
    QCOMPARE(log.last(), repaired.message);
}

// A firmware that answers is saved before the erase, and the repair sends exactly
// what the save, the flashing job and the upload send when run one by one.
void ControllerSimTest::repairSavesAnAnsweringFirmwareAndSendsWhatItsStepsSend() {
    QTemporaryDir dir;
    qputenv("XDG_DATA_HOME", dir.filePath("data").toUtf8());
    const ResourceBundle resources(TFU_DEV_RESOURCES_DIR);
    const ProductConfig halcot{"Corvane Halcot", "Halcot.yaml"};
    QStringList wires;
    for (const bool whole : {true, false}) {
        const auto plotter = simulated();
        const QString port = QString::fromStdString(plotter->path());
        FlashFirmware::Options flash;
        flash.developmentImages = DevelopmentImages::accept;
        if (whole) {
            Repair::Options options;
            options.flash = flash;
            options.putBack = {Repair::PutBack::Kind::product, {}, halcot};
            const Outcome repaired = Repair(port, resources, options).run({});
            QCOMPARE(repaired.kind, Outcome::Kind::succeeded);
            const auto& settings = std::get<SettingsCause>(repaired.cause);
            QVERIFY(settings.saved && settings.restored);
            QCOMPARE(BackupIndex().find(*settings.saved)->reason, BackupReason::beforeErase);
        } else {
            const auto version = DeviceQueries::firmwareVersion(port);
            QVERIFY(std::holds_alternative<Backup>(
                MachineConfigFile::keep({port, {}, BackupReason::beforeErase}, version, {})));
            flash.eraseAll = flash.writeBootPartitions = true;
            QCOMPARE(FlashFirmware(port, resources, flash).run({}).kind, Outcome::Kind::succeeded);
            QCOMPARE(
                UploadConfig(port, resources, ConfigChoice::ofProduct(halcot), {}).run({}).kind,
                Outcome::Kind::succeeded);
        }
        QCOMPARE(storedConfig(*plotter), resources.readConfig("Halcot.yaml").value());
        wires << transcript(*plotter).join('\n');
    }
    QVERIFY(wires[0].indexOf("$Xmodem/Send=config.yaml") < wires[0].indexOf("ERASE_FLASH"));
    QCOMPARE(wires[0], wires[1]);
}

QTEST_GUILESS_MAIN(ControllerSimTest)
#include "ControllerSimTest.moc"
