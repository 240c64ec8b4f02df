#include <QSignalSpy>
#include <QTemporaryDir>

#include "ControllerHarness.h"
#include "app/OutcomeTable.h"
#include "app/SimulatedPlotter.h"
#include "app/operations/FlashFirmware.h"
#include "app/operations/ListFirmware.h"
#include "tests/support/CataloguePublisher.h"
#include "tests/support/SimTranscript.h"

Q_DECLARE_METATYPE(CatalogueProblem)

namespace {

constexpr int kJobTimeoutMs = 60000;

bool wroteFlash(const sim::PtyPlotter& plotter) {
    return transcript(plotter).filter(QStringLiteral("FLASH_BEGIN")).size() > 0;
}

std::unique_ptr<sim::PtyPlotter> olderPlotter(const QString& resources) {
    sim::Config config;
    config.versionReport = kSimulatedOlderRelease;
    return startSimulatedPlotter(ResourceBundle(resources), SimulatedPace::instant, config);
}

// How a publisher's catalogue is spoilt, or what the updater met before.
enum class Spoil {
    imageTampered,  // an image's bytes differ from its SHA-256
    imageOversize,  // the server sends more than the declared size
    changedAfterSigning,
    anotherKey,
    replayed,  // an older catalogue after a newer one was accepted
    revoked,
    olderThanRunning,
    neverAnswers,
    unreachable,
};

}  // namespace

Q_DECLARE_METATYPE(Spoil)

/// The firmware job with a catalogue's release and the window's road to it,
/// against a real HTTP server on 127.0.0.1, keys made here, and the simulated
/// plotter on a pseudo-terminal (running the older release 2.10.5).
class CatalogueJobTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void init();
    void aRefusedReleaseWritesNothing_data();
    void aRefusedReleaseWritesNothing();
    void aReleaseFromAFolderIsWrittenAndConfirmed();
    void theWindowInstallsAChosenReleaseThenFromTheCacheOffline();
    void theWindowAsksBeforeAnOlderRelease();
    void theListingOffersBundledThenNewestWithoutRevoked();

  private:
    Outcome flash(const CatalogueRelease& release, sim::PtyPlotter& plotter) const;

    QTemporaryDir home_;
    QString resources_;
    CataloguePublisher publisher_;
};

void CatalogueJobTest::initTestCase() {
    qRegisterMetaType<Outcome>();
    QVERIFY(home_.isValid());
    resources_ = home_.filePath("resources");
    QVERIFY(publisher_.resourcesIn(TFU_DEV_RESOURCES_DIR, resources_));
}

// What one case accepted or cached must not help or hinder the next.
void CatalogueJobTest::init() {
    static int round = 0;
    const QString base = home_.filePath(QString::number(++round));
    qputenv("XDG_STATE_HOME", (base + "/state").toUtf8());
    qputenv("XDG_CACHE_HOME", (base + "/cache").toUtf8());
    qputenv("XDG_DATA_HOME", (base + "/data").toUtf8());
}

Outcome CatalogueJobTest::flash(const CatalogueRelease& release, sim::PtyPlotter& plotter) const {
    FlashFirmware::Options options;
    options.release = release;
    options.developmentImages = DevelopmentImages::accept;
    return FlashFirmware(QString::fromStdString(plotter.path()), ResourceBundle(resources_),
                         options)
        .run({});
}

void CatalogueJobTest::aRefusedReleaseWritesNothing_data() {
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("named");  // what the message says the reason is

    QTest::newRow("tampered image") << Spoil::imageTampered << "2.11.0" << 11 << "SHA-256";
    QTest::newRow("oversize image") << Spoil::imageOversize << "2.11.0" << 11 << "larger than";
    QTest::newRow("changed catalogue")
        << Spoil::changedAfterSigning << "2.11.0" << 19 << "valid signature";
    QTest::newRow("another key") << Spoil::anotherKey << "2.11.0" << 19 << "valid signature";
    QTest::newRow("replay") << Spoil::replayed << "2.11.0" << 19 << "before the one already seen";
    QTest::newRow("revoked") << Spoil::revoked << "2.10.9" << 11 << "withdrawn";
    QTest::newRow("older than running")
        << Spoil::olderThanRunning << "2.9.4" << 11 << "older than the firmware 2.10.5";
    QTest::newRow("never answers") << Spoil::neverAnswers << "2.11.0" << 19 << "did not arrive";
    QTest::newRow("unreachable") << Spoil::unreachable << "2.11.0" << 19 << "could not be read";
}

void CatalogueJobTest::aRefusedReleaseWritesNothing() {
    QFETCH(Spoil, spoil);
    QFETCH(QString, version);
    QFETCH(int, status);
    QFETCH(QString, named);

    HttpServer server;
    CataloguePublisher served = publisher_;
    if (spoil == Spoil::anotherKey) {
        served.key = devset::SigningKey::generate();
    }
    served.serve(server);
    const QByteArray image = CataloguePublisher::imageOf(version);
    const QString imageAt = "/fw/" + CataloguePublisher::imagePath(version);
    CatalogueRelease release;
    release.catalogue = server.url("/fw/catalogue.json").toString();
    release.version = version;
    release.client.catalogueTimeoutMs = 1500;
    switch (spoil) {
        case Spoil::imageTampered:
            server.serve(imageAt, {QByteArray(image).replace(4096, 4, "EVIL")});
            break;
        case Spoil::imageOversize:
            server.serve(imageAt, {image + QByteArray(1, '\0')});
            break;
        case Spoil::changedAfterSigning:
            server.serve("/fw/catalogue.json",
                         {served.catalogue().replace("\"stable\"", "\"beta\"  ")});
            break;
        case Spoil::replayed: {
            CataloguePublisher newer = publisher_;
            newer.published = publisher_.published.addDays(1);
            HttpServer current;
            newer.serve(current);
            CatalogueRelease seen = release;
            seen.catalogue = current.url("/fw/catalogue.json").toString();
            auto accepted = olderPlotter(resources_);
            QCOMPARE(flash(seen, *accepted).kind, Outcome::Kind::succeeded);
            break;
        }
        case Spoil::neverAnswers:
            server.serve("/fw/catalogue.json", {"", 200, true, -1, true});
            break;
        case Spoil::unreachable:
            release.catalogue = QStringLiteral("http://127.0.0.1:1/fw/catalogue.json");
            break;
        case Spoil::revoked:
        case Spoil::olderThanRunning:
        case Spoil::anotherKey:
            break;
    }

    auto plotter = olderPlotter(resources_);
    const Outcome outcome = flash(release, *plotter);
    QVERIFY2(outcome.message.contains(named), qPrintable(outcome.message));
    QCOMPARE(OutcomeTable::exitStatus(outcome), status);
    QVERIFY(!wroteFlash(*plotter));
    if (spoil == Spoil::olderThanRunning) {
        QCOMPARE(std::get<OlderRelease>(outcome.cause), (OlderRelease{"2.9.4", "2.10.5"}));
        release.allowOlder = true;
        QCOMPARE(flash(release, *plotter).kind, Outcome::Kind::succeeded);
    }
}

void CatalogueJobTest::aReleaseFromAFolderIsWrittenAndConfirmed() {
    QTemporaryDir stick;
    QVERIFY(publisher_.writeTo(stick.path()));
    CatalogueRelease release;
    release.catalogue = stick.path();
    release.version = "2.12.0-beta.1";
    auto plotter = olderPlotter(resources_);
    const Outcome outcome = flash(release, *plotter);
    QCOMPARE(outcome.kind, Outcome::Kind::succeeded);
    QCOMPARE(outcome.startup()->version, std::optional<QString>("2.12.0-beta.1"));
    QCOMPARE(outcome.message, "Firmware 2.12.0-beta.1 installed and running.");
}

void CatalogueJobTest::theWindowInstallsAChosenReleaseThenFromTheCacheOffline() {
    auto plotter = olderPlotter(resources_);
    const QString port = QString::fromStdString(plotter->path());
    ControllerHarness harness(resources_);
    UpdateController& controller = harness.controller;
    QString catalogue;
    {
        HttpServer server;
        publisher_.serve(server);
        catalogue = server.url("/fw/catalogue.json").toString();
        FirmwareChoice* choice = controller.firmwareChoice();
        QSignalSpy listed(choice, &FirmwareChoice::listed);
        choice->setCatalogue(catalogue);
        QVERIFY(listed.wait(kJobTimeoutMs));
        const auto& listing = std::get<FirmwareListing>(choice->listing().cause);
        QCOMPARE(listing.newerStable, std::optional<QString>("2.11.0"));

        controller.chooseRelease("2.11.0");
        QCOMPARE(controller.firmwareLabel(), "Firmware version 2.11.0 from the catalogue");
        QVERIFY(harness.run(port, [&] { controller.updateFirmware(); }));
        QCOMPARE(harness.waitForOutcome(kJobTimeoutMs),
                 std::optional(UpdateState::flashComplete()));
        QTRY_COMPARE(controller.logMessages().last(), "Firmware 2.11.0 installed and running.");
        QCOMPARE(controller.logMessages().first(),
                 "Updating firmware 2.11.0 from the catalogue\u2026");
    }
    // The server is gone: the catalogue and the image come from the cache.
    QVERIFY(harness.run(port, [&] { controller.updateFirmware(); }));
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs), std::optional(UpdateState::flashComplete()));
    QTRY_COMPARE(controller.logMessages().last(), "Firmware 2.11.0 installed and running.");
    QCOMPARE(controller.logMessages().filter("Offline: the firmware catalogue published").size(),
             1);

    // "Use Bundled Firmware" goes back.
    controller.setCustomFirmwareURL({});
    QCOMPARE(controller.firmwareLabel(), "Firmware version 2.10.6");
}

void CatalogueJobTest::theWindowAsksBeforeAnOlderRelease() {
    QTemporaryDir stick;
    QVERIFY(publisher_.writeTo(stick.path()));
    auto plotter = olderPlotter(resources_);
    const QString port = QString::fromStdString(plotter->path());
    ControllerHarness harness(resources_);
    UpdateController& controller = harness.controller;
    QStringList asked;
    bool agree = false;
    SettingsQuestions questions;
    questions.installOlder = [&](const QString& chosen, const QString& running) {
        asked << chosen + " < " + running;
        return agree;
    };
    controller.setSettingsQuestions(questions);
    controller.firmwareChoice()->setCatalogue(stick.path());
    controller.chooseRelease("2.9.4");

    QVERIFY(harness.run(port, [&] { controller.updateFirmware(); }));
    QCOMPARE(harness.waitForOutcome(kJobTimeoutMs)->kind(), UpdateState::Kind::error);
    QTRY_COMPARE(asked, QStringList("2.9.4 < 2.10.5"));
    QVERIFY(!wroteFlash(*plotter));

    agree = true;
    QVERIFY(harness.run(port, [&] { controller.updateFirmware(); }));
    QTRY_COMPARE_WITH_TIMEOUT(controller.logMessages().last(),
                              "Firmware 2.9.4 installed and running.", kJobTimeoutMs);
    QCOMPARE(asked.size(), 2);
    QVERIFY(wroteFlash(*plotter));
}

void CatalogueJobTest::theListingOffersBundledThenNewestWithoutRevoked() {
    QTemporaryDir stick;
    QVERIFY(publisher_.writeTo(stick.path()));
    ListFirmware::Options options;
    options.catalogue = stick.path();
    const auto versions = [&](bool beta) {
        options.beta = beta;
        const Outcome listed = ListFirmware(ResourceBundle(resources_), options).run({});
        QStringList shown;
        for (const FirmwareRelease& release : std::get<FirmwareListing>(listed.cause).releases) {
            shown << release.version;
        }
        return shown;
    };
    QCOMPARE(versions(false), QStringList({"2.10.6", "2.11.0", "2.9.4"}));
    QCOMPARE(versions(true), QStringList({"2.10.6", "2.12.0-beta.1", "2.11.0", "2.9.4"}));

    // The real application's resources know no catalogue: nothing is fetched.
    const Outcome alone = ListFirmware(ResourceBundle(resources_), {}).run({});
    QCOMPARE(std::get<FirmwareListing>(alone.cause).releases.size(), 1);
}

QTEST_GUILESS_MAIN(CatalogueJobTest)
#include "CatalogueJobTest.moc"
