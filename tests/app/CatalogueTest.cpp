#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include "SigningKey.h"
#include "app/FirmwareCheck.h"
#include "app/catalogue/CatalogueClient.h"
#include "app/catalogue/FirmwareVersion.h"
#include "tests/support/HttpServer.h"

Q_DECLARE_METATYPE(CatalogueProblem)
Q_DECLARE_METATYPE(HttpServer::Response)

namespace {

const QDateTime kPublished(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
const QString kCataloguePath = QStringLiteral("/fw/catalogue.json");

// Versions as listed: one is revoked, one is a beta, one has a leading "v".
const QStringList kListed = {"2.9.4", "v2.10.10", "2.11.0", "2.12.0-beta.1", "2.10.8"};

QByteArray imageOf(const QString& version) {
    return "image " + version.toUtf8() + QByteArray(3000, 'Z');
}

QString imagePath(const QString& version) {
    return QStringLiteral("images/%1.bin").arg(version);
}

QJsonObject entryJson(const QString& version) {
    const QByteArray image = imageOf(version);
    return {
        {"version", version},
        {"channel", version.contains("beta") ? "beta" : "stable"},
        {"date", "2026-02-20"},
        {"notes", "Fixes in " + version},
        {"image",
         QJsonObject{{"url", imagePath(version)},
                     {"size", image.size()},
                     {"sha256",
                      QString::fromLatin1(
                          QCryptographicHash::hash(image, QCryptographicHash::Sha256).toHex())}}}};
}

QJsonObject catalogueJson(const QDateTime& published = kPublished) {
    QJsonArray firmware;
    for (const QString& version : kListed) {
        firmware.append(entryJson(version));
    }
    return {{"schema", 1},
            {"published", published.toString(Qt::ISODate)},
            {"revoked", QJsonArray{"2.10.8"}},
            {"firmware", firmware}};
}

QByteArray bytesOf(const QJsonObject& catalogue) {
    return QJsonDocument(catalogue).toJson();
}

QByteArray signatureOf(const devset::SigningKey& key, const QByteArray& bytes) {
    return QByteArray::fromStdString(key.sign(bytes.toStdString()));
}

CatalogueKey publicKeyOf(const devset::SigningKey& key) {
    return *CatalogueKey::fromPem(QByteArray::fromStdString(key.publicPem()));
}

bool write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Every file below `folder` with its content, to tell whether anything was written.
QMap<QString, QByteArray> snapshot(const QString& folder) {
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(path, contentOf(path));
    }
    return files;
}

// The client blocks the thread it runs on, as it does on an operation's worker.
template <typename Call>
auto onWorker(Call call) {
    std::optional<decltype(call())> result;
    std::thread worker([&] { result.emplace(call()); });
    worker.join();
    return std::move(*result);
}

template <typename Result>
CatalogueProblem problemOf(const Result& result) {
    const auto* failure = std::get_if<CatalogueFailure>(&result);
    return failure != nullptr ? failure->problem : CatalogueProblem(-1);
}

QStringList versionsOf(const QList<CatalogueEntry>& entries) {
    QStringList versions;
    for (const CatalogueEntry& entry : entries) {
        versions.append(entry.version);
    }
    return versions;
}

}  // namespace

class CatalogueTest : public QObject {
    Q_OBJECT

  private slots:
    void init() {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_STATE_HOME", home_->filePath("state").toLocal8Bit());
        qputenv("XDG_CACHE_HOME", home_->filePath("cache").toLocal8Bit());
        server_ = std::make_unique<HttpServer>();
    }
    void cleanup() { server_.reset(); }

    void versionsOrderAsReleasesDo_data();
    void versionsOrderAsReleasesDo();
    void refusesMalformedCatalogues_data();
    void refusesMalformedCatalogues();
    void listsTheTrustedReleasesAndCachesTheirImages();
    void refusesUntrustedCatalogues_data();
    void refusesUntrustedCatalogues();
    void refusesAnOlderCatalogueThanOneSeen();
    void refusesImagesThatAreNotTheDeclaredOnes_data();
    void refusesImagesThatAreNotTheDeclaredOnes();
    void givesUpOnAServerThatStopsAnswering();
    void showsTheLastCatalogueOffline();
    void readsAFolderOrAFileWithoutTheNetwork();
    void findsItsSourceInTheResources();
    void theDevelopmentCatalogueIsForTheSimulatorOnly();

  private:
    QString stateFolder() const { return home_->filePath("state/teskal-firmware-updater"); }
    QString cacheFolder() const { return home_->filePath("cache/teskal-firmware-updater"); }

    void publish(const QByteArray& catalogue, const devset::SigningKey& key) {
        server_->serve(kCataloguePath, {catalogue});
        server_->serve(kCataloguePath + ".sig", {signatureOf(key, catalogue)});
        for (const QString& version : kListed) {
            server_->serve("/fw/" + imagePath(version), {imageOf(version)});
        }
    }

    CatalogueClient webClient(const devset::SigningKey& key, CatalogueClientOptions options = {}) {
        const auto source = CatalogueSource::fromText(server_->url(kCataloguePath).toString());
        return CatalogueClient(std::get<CatalogueSource>(source), publicKeyOf(key), options);
    }

    VerifiedCatalogue accepted(const CatalogueClient& client) {
        auto result = onWorker([&] { return client.fetchCatalogue(); });
        if (const auto* failure = std::get_if<CatalogueFailure>(&result)) {
            qFatal("catalogue refused: %s", qPrintable(failure->message));
        }
        return std::get<VerifiedCatalogue>(result);
    }

    // Made here, not in initTestCase: listing the cases runs the data functions alone.
    const devset::SigningKey key_ = devset::SigningKey::generate();
    const devset::SigningKey otherKey_ = devset::SigningKey::generate();
    std::unique_ptr<QTemporaryDir> home_;
    std::unique_ptr<HttpServer> server_;
};

void CatalogueTest::versionsOrderAsReleasesDo_data() {
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("order");  // -1 before, 0 same, 1 after, 2 unordered
    QTest::newRow("numbers by value") << "2.10.10"
                                      << "2.9.12" << 1;
    QTest::newRow("leading v") << "v2.10.6"
                               << "2.10.6" << 0;
    QTest::newRow("missing number is 0") << "2.10"
                                         << "2.10.0" << 0;
    QTest::newRow("pre-release before release") << "2.11.0-beta.1"
                                                << "2.11.0" << -1;
    QTest::newRow("pre-release after older release") << "2.11.0-beta.1"
                                                     << "2.10.6" << 1;
    QTest::newRow("pre-release numbers by value") << "2.11.0-beta.10"
                                                  << "2.11.0-beta.2" << 1;
    QTest::newRow("number before word") << "2.11.0-1"
                                        << "2.11.0-beta" << -1;
    QTest::newRow("longer pre-release after") << "2.11.0-beta.1.1"
                                              << "2.11.0-beta.1" << 1;
    QTest::newRow("build note ignored") << "2.10.6+42"
                                        << "2.10.6" << 0;
    QTest::newRow("not a version") << "2.10.x"
                                   << "2.10.6" << 2;
    QTest::newRow("empty") << ""
                           << "2.10.6" << 2;
}

void CatalogueTest::versionsOrderAsReleasesDo() {
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, order);
    const std::partial_ordering found = FirmwareVersion::compare(a, b);
    const int seen = found < 0 ? -1 : found > 0 ? 1 : found == 0 ? 0 : 2;
    QCOMPARE(seen, order);
}

void CatalogueTest::refusesMalformedCatalogues_data() {
    QTest::addColumn<QByteArray>("bytes");
    const auto edited = [](const std::function<void(QJsonObject&)>& edit) {
        QJsonObject catalogue = catalogueJson();
        edit(catalogue);
        return bytesOf(catalogue);
    };
    const auto entryEdited = [&](const std::function<void(QJsonObject&)>& edit) {
        return edited([&](QJsonObject& catalogue) {
            QJsonArray firmware = catalogue["firmware"].toArray();
            QJsonObject entry = firmware[0].toObject();
            edit(entry);
            firmware[0] = entry;
            catalogue["firmware"] = firmware;
        });
    };
    const auto imageEdited = [&](const char* key, const QJsonValue& value) {
        return entryEdited([&](QJsonObject& entry) {
            QJsonObject image = entry["image"].toObject();
            image[key] = value;
            entry["image"] = image;
        });
    };
    QTest::newRow("not JSON") << QByteArray("{\"schema\": 1,");
    QTest::newRow("schema 2") << edited([](auto& c) { c["schema"] = 2; });
    QTest::newRow("no schema") << edited([](auto& c) { c.remove("schema"); });
    QTest::newRow("published local")
        << edited([](auto& c) { c["published"] = "2026-03-01T12:00:00"; });
    QTest::newRow("published not UTC")
        << edited([](auto& c) { c["published"] = "2026-03-01T12:00:00+01:00"; });
    QTest::newRow("revoked not a list") << edited([](auto& c) { c["revoked"] = "2.10.8"; });
    QTest::newRow("unknown field") << edited([](auto& c) { c["mirror"] = "elsewhere"; });
    QTest::newRow("entry without notes") << entryEdited([](auto& e) { e.remove("notes"); });
    QTest::newRow("channel nightly") << entryEdited([](auto& e) { e["channel"] = "nightly"; });
    QTest::newRow("version not one") << entryEdited([](auto& e) { e["version"] = "latest"; });
    QTest::newRow("date not one") << entryEdited([](auto& e) { e["date"] = "yesterday"; });
    QTest::newRow("version twice") << edited([](auto& c) {
        QJsonArray firmware = c["firmware"].toArray();
        firmware.append(entryJson("v2.11.0"));
        c["firmware"] = firmware;
    });
    QTest::newRow("size 0") << imageEdited("size", 0);
    QTest::newRow("size over 16 MiB") << imageEdited("size", 16 * 1024 * 1024 + 1);
    QTest::newRow("size fractional") << imageEdited("size", 3000.5);
    QTest::newRow("sha256 short") << imageEdited("sha256", QString(63, 'a'));
    QTest::newRow("url of another host") << imageEdited("url", "https://elsewhere.example/a.bin");
    QTest::newRow("url without scheme") << imageEdited("url", "//elsewhere.example/a.bin");
}

void CatalogueTest::refusesMalformedCatalogues() {
    QFETCH(QByteArray, bytes);
    QVERIFY(std::holds_alternative<Catalogue>(parseCatalogue(bytesOf(catalogueJson()))));
    const auto parsed = parseCatalogue(bytes);
    QVERIFY(std::holds_alternative<QString>(parsed));
    QVERIFY(!std::get<QString>(parsed).isEmpty());
}

void CatalogueTest::listsTheTrustedReleasesAndCachesTheirImages() {
    publish(bytesOf(catalogueJson()), key_);
    const CatalogueClient client = webClient(key_);
    const VerifiedCatalogue verified = accepted(client);
    const Catalogue& catalogue = verified.catalogue;
    QCOMPARE(verified.offline, std::nullopt);
    QCOMPARE(catalogue.published, kPublished);
    QCOMPARE(versionsOf(catalogue.offered(false)), QStringList({"2.11.0", "v2.10.10", "2.9.4"}));
    QCOMPARE(versionsOf(catalogue.offered(true)),
             QStringList({"2.12.0-beta.1", "2.11.0", "v2.10.10", "2.9.4"}));
    const CatalogueEntry newest = catalogue.offered(false).first();
    QCOMPARE(newest.channel, FirmwareChannel::stable);
    QCOMPARE(newest.date, QDate(2026, 2, 20));
    QCOMPARE(newest.notes, QStringLiteral("Fixes in 2.11.0"));
    QCOMPARE(catalogue.newerStableThan("2.10.6"), newest);
    QCOMPARE(catalogue.newerStableThan("v2.11.0"), std::nullopt);
    QCOMPARE(problemOf(catalogue.find("2.10.8")), CatalogueProblem::revoked);
    QCOMPARE(problemOf(catalogue.find("3.0.0")), CatalogueProblem::notListed);
    QCOMPARE(std::get<CatalogueEntry>(catalogue.find("2.10.10")).version, "v2.10.10");

    // Remembered for its key, kept with its signature.
    const QString keyId = publicKeyOf(key_).id();
    const QJsonObject state =
        QJsonDocument::fromJson(contentOf(stateFolder() + "/catalogues.json")).object();
    QCOMPARE(QDateTime::fromString(state[keyId].toString(), Qt::ISODateWithMs), kPublished);
    const QString kept = cacheFolder() + "/catalogues/" + keyId + "/catalogue.json";
    QCOMPARE(contentOf(kept), bytesOf(catalogueJson()));
    QCOMPARE(contentOf(kept + ".sig"), signatureOf(key_, bytesOf(catalogueJson())));

    QList<std::pair<qint64, qint64>> progress;
    const auto image = onWorker([&] {
        return client.fetchImage(verified, newest, [&](qint64 received, qint64 size) {
            progress.append({received, size});
        });
    });
    const auto& bytes = std::get<VerifiedImage>(image);
    const qint64 size = imageOf("2.11.0").size();
    QCOMPARE(bytes.bytes, imageOf("2.11.0"));
    QCOMPARE(progress.last(), std::make_pair(size, size));
    QCOMPARE(bytes.cachedPath, cacheFolder() + "/images/" + newest.image.sha256 + ".bin");
    QCOMPARE(contentOf(*bytes.cachedPath), imageOf("2.11.0"));

    // Once kept, an image is not fetched again; a revoked one is never fetched.
    const auto again = onWorker([&] { return client.fetchImage(verified, newest); });
    QCOMPARE(std::get<VerifiedImage>(again).bytes, imageOf("2.11.0"));
    QCOMPARE(server_->requests("/fw/" + imagePath("2.11.0")), 1);
    CatalogueEntry revoked = newest;
    revoked.version = "2.10.8";
    revoked.image.url = imagePath("2.10.8");
    QCOMPARE(problemOf(client.fetchImage(verified, revoked)), CatalogueProblem::revoked);
    QCOMPARE(server_->requests("/fw/" + imagePath("2.10.8")), 0);
}

void CatalogueTest::refusesUntrustedCatalogues_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<CatalogueProblem>("problem");
    const QByteArray genuine = bytesOf(catalogueJson(kPublished.addDays(1)));
    const QByteArray signature = signatureOf(key_, genuine);
    QByteArray changed = genuine;
    changed.replace("Fixes in 2.9.4", "Fixes in 2.9.5");
    const QByteArray notACatalogue = "{\"schema\": 2}";
    QTest::newRow("changed catalogue") << changed << signature << CatalogueProblem::badSignature;
    QTest::newRow("another key") << genuine << signatureOf(otherKey_, genuine)
                                 << CatalogueProblem::badSignature;
    QTest::newRow("short signature")
        << genuine << signature.chopped(1) << CatalogueProblem::badSignature;
    QTest::newRow("long signature") << genuine << signature + "x" << CatalogueProblem::badSignature;
    QTest::newRow("signed, not a catalogue")
        << notACatalogue << signatureOf(key_, notACatalogue) << CatalogueProblem::malformed;
    const QByteArray huge = genuine + QByteArray(Catalogue::kMaxFileSize, ' ');
    QTest::newRow("too large") << huge << signatureOf(key_, huge) << CatalogueProblem::tooLarge;
}

void CatalogueTest::refusesUntrustedCatalogues() {
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, signature);
    QFETCH(CatalogueProblem, problem);
    publish(bytesOf(catalogueJson()), key_);
    const CatalogueClient client = webClient(key_);
    accepted(client);
    const auto before = snapshot(home_->path());

    // Not hidden behind the cached catalogue either: a refusal is not "offline".
    server_->serve(kCataloguePath, {bytes});
    server_->serve(kCataloguePath + ".sig", {signature});
    const auto result = onWorker([&] { return client.fetchCatalogue(); });
    QCOMPARE(problemOf(result), problem);
    QVERIFY(!std::get<CatalogueFailure>(result).message.isEmpty());
    QCOMPARE(snapshot(home_->path()), before);
}

void CatalogueTest::refusesAnOlderCatalogueThanOneSeen() {
    publish(bytesOf(catalogueJson()), key_);
    const CatalogueClient client = webClient(key_);
    accepted(client);
    const auto before = snapshot(home_->path());

    publish(bytesOf(catalogueJson(kPublished.addSecs(-1))), key_);
    QCOMPARE(problemOf(onWorker([&] { return client.fetchCatalogue(); })),
             CatalogueProblem::replayed);
    QCOMPARE(snapshot(home_->path()), before);

    // The same catalogue again is no replay; another key has a history of its own.
    publish(bytesOf(catalogueJson()), key_);
    QCOMPARE(accepted(client).catalogue.published, kPublished);
    publish(bytesOf(catalogueJson(kPublished.addDays(-30))), otherKey_);
    QCOMPARE(accepted(webClient(otherKey_)).catalogue.published, kPublished.addDays(-30));
    publish(bytesOf(catalogueJson(kPublished.addDays(1))), key_);
    accepted(client);
    publish(bytesOf(catalogueJson()), key_);
    QCOMPARE(problemOf(onWorker([&] { return client.fetchCatalogue(); })),
             CatalogueProblem::replayed);
}

void CatalogueTest::refusesImagesThatAreNotTheDeclaredOnes_data() {
    QTest::addColumn<HttpServer::Response>("response");
    QTest::addColumn<CatalogueProblem>("problem");
    const QByteArray image = imageOf("2.11.0");
    QByteArray tampered = image;
    tampered[10] = 'X';
    HttpServer::Response undeclared{image + QByteArray(64 * 1024, 'Z')};
    undeclared.declareLength = false;
    QTest::newRow("tampered") << HttpServer::Response{tampered} << CatalogueProblem::imageTampered;
    QTest::newRow("larger, its length declared")
        << HttpServer::Response{image + "Z"} << CatalogueProblem::imageOversize;
    QTest::newRow("larger, read to the end") << undeclared << CatalogueProblem::imageOversize;
    QTest::newRow("shorter") << HttpServer::Response{image.chopped(10)}
                             << CatalogueProblem::imageTruncated;
    QTest::newRow("missing") << HttpServer::Response{"", 404} << CatalogueProblem::imageUnreachable;
}

void CatalogueTest::refusesImagesThatAreNotTheDeclaredOnes() {
    QFETCH(HttpServer::Response, response);
    QFETCH(CatalogueProblem, problem);
    publish(bytesOf(catalogueJson()), key_);
    const CatalogueClient client = webClient(key_);
    const VerifiedCatalogue verified = accepted(client);
    const auto before = snapshot(home_->path());
    server_->serve("/fw/" + imagePath("2.11.0"), response);
    const CatalogueEntry entry = std::get<CatalogueEntry>(verified.catalogue.find("2.11.0"));
    QCOMPARE(problemOf(onWorker([&] { return client.fetchImage(verified, entry); })), problem);
    QCOMPARE(snapshot(home_->path()), before);
}

void CatalogueTest::givesUpOnAServerThatStopsAnswering() {
    // Short waits stand in for 20 s and 30 s; nothing is timed here.
    CatalogueClientOptions impatient;
    impatient.catalogueTimeoutMs = 200;
    impatient.imageStallMs = 200;
    server_->serve(kCataloguePath, {"", 200, true, -1, true});
    QCOMPARE(problemOf(onWorker([&] { return webClient(key_, impatient).fetchCatalogue(); })),
             CatalogueProblem::timedOut);
    QVERIFY(snapshot(home_->path()).isEmpty());

    publish(bytesOf(catalogueJson()), key_);
    const VerifiedCatalogue verified = accepted(webClient(key_));
    server_->serve("/fw/" + imagePath("2.11.0"), {imageOf("2.11.0"), 200, true, 100});
    const CatalogueEntry entry = std::get<CatalogueEntry>(verified.catalogue.find("2.11.0"));
    QList<qint64> progress;
    const auto image = onWorker([&] {
        return webClient(key_, impatient).fetchImage(verified, entry, [&](qint64 received, qint64) {
            progress.append(received);
        });
    });
    QCOMPARE(problemOf(image), CatalogueProblem::imageStalled);
    QCOMPARE(progress, QList<qint64>({100}));
}

void CatalogueTest::showsTheLastCatalogueOffline() {
    publish(bytesOf(catalogueJson()), key_);
    const CatalogueClient client = webClient(key_);
    const VerifiedCatalogue online = accepted(client);
    const CatalogueEntry newest = std::get<CatalogueEntry>(online.catalogue.find("2.11.0"));
    QVERIFY(std::holds_alternative<VerifiedImage>(
        onWorker([&] { return client.fetchImage(online, newest); })));
    server_.reset();

    const VerifiedCatalogue offline = accepted(client);
    QCOMPARE(offline.catalogue, online.catalogue);
    QVERIFY(offline.offline.has_value());
    QCOMPARE(offline.offline->problem, CatalogueProblem::unreachable);
    QCOMPARE(
        std::get<VerifiedImage>(onWorker([&] { return client.fetchImage(offline, newest); })).bytes,
        imageOf("2.11.0"));
    const CatalogueEntry older = std::get<CatalogueEntry>(offline.catalogue.find("2.9.4"));
    QCOMPARE(problemOf(onWorker([&] { return client.fetchImage(offline, older); })),
             CatalogueProblem::imageUnreachable);

    // What the cache holds is verified again.
    const QString kept =
        cacheFolder() + "/catalogues/" + publicKeyOf(key_).id() + "/catalogue.json";
    QVERIFY(write(kept, contentOf(kept).replace("Fixes in 2.9.4", "Fixes in 2.9.5")));
    QCOMPARE(problemOf(onWorker([&] { return client.fetchCatalogue(); })),
             CatalogueProblem::unreachable);
}

void CatalogueTest::readsAFolderOrAFileWithoutTheNetwork() {
    const QTemporaryDir stick;
    const QByteArray bytes = bytesOf(catalogueJson());
    QVERIFY(write(stick.filePath("catalogue.json"), bytes));
    QVERIFY(write(stick.filePath("catalogue.json.sig"), signatureOf(key_, bytes)));
    for (const QString& version : kListed) {
        QVERIFY(write(stick.filePath(imagePath(version)), imageOf(version)));
    }
    for (const QString& text : {stick.path(), stick.filePath("catalogue.json")}) {
        const auto source = std::get<CatalogueSource>(CatalogueSource::fromText(text));
        QCOMPARE(source.kind(), text == stick.path() ? CatalogueSource::Kind::folder
                                                     : CatalogueSource::Kind::file);
        const CatalogueClient client(source, publicKeyOf(key_));
        const VerifiedCatalogue verified = accepted(client);
        const auto image = onWorker(
            [&] { return client.fetchImage(verified, verified.catalogue.offered(false).last()); });
        QCOMPARE(std::get<VerifiedImage>(image).bytes, imageOf("2.9.4"));
    }

    // A catalogue cannot send the updater to a network address of its own.
    QJsonObject elsewhere = catalogueJson();
    QJsonArray firmware = elsewhere["firmware"].toArray();
    QJsonObject entry = firmware[0].toObject();
    QJsonObject image = entry["image"].toObject();
    image["url"] = server_->url("/fw/" + imagePath("2.9.4")).toString();
    entry["image"] = image;
    firmware[0] = entry;
    elsewhere["firmware"] = firmware;
    const QByteArray redirected = bytesOf(elsewhere);
    QVERIFY(write(stick.filePath("catalogue.json"), redirected));
    QVERIFY(write(stick.filePath("catalogue.json.sig"), signatureOf(key_, redirected)));
    const CatalogueClient client(std::get<CatalogueSource>(CatalogueSource::fromText(stick.path())),
                                 publicKeyOf(key_));
    QCOMPARE(problemOf(onWorker([&] { return client.fetchCatalogue(); })),
             CatalogueProblem::malformed);
    QCOMPARE(server_->requests("/fw/" + imagePath("2.9.4")), 0);
}

void CatalogueTest::findsItsSourceInTheResources() {
    const QTemporaryDir resources;
    const ResourceBundle bundle(resources.path());
    QCOMPARE(CatalogueSource::configuredIn(bundle), std::nullopt);
    QVERIFY(write(resources.filePath("catalogue-url"), " \n"));
    QCOMPARE(CatalogueSource::configuredIn(bundle), std::nullopt);

    QVERIFY(write(resources.filePath("catalogue-url"), "https://updates.example/fw/\nignored\n"));
    const auto configured = CatalogueSource::configuredIn(bundle);
    QVERIFY(configured.has_value());
    const auto source = std::get<CatalogueSource>(*configured);
    QCOMPARE(source.kind(), CatalogueSource::Kind::url);
    QCOMPARE(source.catalogueUrl(), QUrl("https://updates.example/fw/catalogue.json"));
    QCOMPARE(source.signatureUrl(), QUrl("https://updates.example/fw/catalogue.json.sig"));

    // The resources name an address, never a path or another scheme.
    for (const QByteArray& line :
         {QByteArray("/media/stick"), QByteArray("ftp://updates.example/")}) {
        QVERIFY(write(resources.filePath("catalogue-url"), line));
        QCOMPARE(problemOf(*CatalogueSource::configuredIn(bundle)),
                 CatalogueProblem::sourceUnsupported);
    }

    QCOMPARE(problemOf(CatalogueKey::fromResources(bundle, DevelopmentImages::refuse)),
             CatalogueProblem::keyMissing);
    QVERIFY(write(resources.filePath("catalogue.pub"), "-----BEGIN PUBLIC KEY-----\n"));
    QCOMPARE(problemOf(CatalogueKey::fromResources(bundle, DevelopmentImages::refuse)),
             CatalogueProblem::keyUnusable);
    QVERIFY(
        write(resources.filePath("catalogue.pub"), QByteArray::fromStdString(key_.publicPem())));
    const auto key = CatalogueKey::fromResources(bundle, DevelopmentImages::refuse);
    QCOMPARE(std::get<CatalogueKey>(key).id(), publicKeyOf(key_).id());
}

void CatalogueTest::theDevelopmentCatalogueIsForTheSimulatorOnly() {
    const ResourceBundle development(QStringLiteral(TFU_DEV_RESOURCES_DIR));
    QCOMPARE(problemOf(CatalogueKey::fromResources(development, DevelopmentImages::refuse)),
             CatalogueProblem::keyUnusable);
    const auto key = CatalogueKey::fromResources(development, DevelopmentImages::accept);
    const auto source = CatalogueSource::fromText(QStringLiteral(TFU_DEV_CATALOGUE_DIR));
    const CatalogueClient client(std::get<CatalogueSource>(source), std::get<CatalogueKey>(key));
    const VerifiedCatalogue verified = accepted(client);
    QCOMPARE(versionsOf(verified.catalogue.offered(true)),
             QStringList({"2.12.0-beta.1-devset", "2.11.0-devset", "2.9.4-devset"}));
    const CatalogueEntry newest = *verified.catalogue.newerStableThan("2.10.6");
    const auto image = onWorker([&] { return client.fetchImage(verified, newest); });
    const QByteArray& bytes = std::get<VerifiedImage>(image).bytes;

    // Then the image checks of every firmware: the real programs refuse it.
    QCOMPARE(imagesRefusal(bytes, development, DevelopmentImages::accept), std::nullopt);
    QVERIFY(imagesRefusal(bytes, development, DevelopmentImages::refuse).has_value());
    QCOMPARE(QString::fromStdString(inspectFirmware(bytes).app->version), "2.11.0-devset");
}

QTEST_GUILESS_MAIN(CatalogueTest)
#include "CatalogueTest.moc"
