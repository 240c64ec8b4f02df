#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include "DevImages.h"
#include "SigningKey.h"
#include "tests/support/HttpServer.h"

/// A firmware catalogue as a publisher makes one, with a key made at test time:
/// development application images of the versions listed (the simulated plotter
/// reports the version of the image written), signed, served over HTTP or written
/// to a folder. Tests may spoil any part of it after signing.
struct CataloguePublisher {
    struct Release {
        QString version;
        QString channel = QStringLiteral("stable");
    };

    devset::SigningKey key = devset::SigningKey::generate();
    QDateTime published = QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    QList<Release> releases = {{"2.9.4"}, {"2.11.0"}, {"2.12.0-beta.1", "beta"}, {"2.10.9"}};
    QStringList revoked = {"2.10.9"};

    static QByteArray imageOf(const QString& version) {
        const devset::Bytes bytes = devset::application(version.toStdString());
        return QByteArray(reinterpret_cast<const char*>(bytes.data()),
                          static_cast<qsizetype>(bytes.size()));
    }

    static QString imagePath(const QString& version) {
        return QStringLiteral("images/firmware-%1.bin").arg(version);
    }

    QByteArray catalogue() const {
        QJsonArray firmware;
        for (const Release& release : releases) {
            const QByteArray image = imageOf(release.version);
            const QString sha256 = QString::fromLatin1(
                QCryptographicHash::hash(image, QCryptographicHash::Sha256).toHex());
            firmware.append(QJsonObject{{"version", release.version},
                                        {"channel", release.channel},
                                        {"date", "2026-02-20"},
                                        {"notes", "Release notes of " + release.version},
                                        {"image", QJsonObject{{"url", imagePath(release.version)},
                                                              {"size", image.size()},
                                                              {"sha256", sha256}}}});
        }
        return QJsonDocument(QJsonObject{{"schema", 1},
                                         {"published", published.toString(Qt::ISODate)},
                                         {"revoked", QJsonArray::fromStringList(revoked)},
                                         {"firmware", firmware}})
            .toJson();
    }

    QByteArray signatureOf(const QByteArray& bytes) const {
        return QByteArray::fromStdString(key.sign(bytes.toStdString()));
    }

    QByteArray publicPem() const { return QByteArray::fromStdString(key.publicPem()); }

    /// Serves catalogue.json, its signature and the images below "/fw/".
    void serve(HttpServer& server) const {
        const QByteArray bytes = catalogue();
        server.serve(QStringLiteral("/fw/catalogue.json"), {bytes});
        server.serve(QStringLiteral("/fw/catalogue.json.sig"), {signatureOf(bytes)});
        for (const Release& release : releases) {
            server.serve("/fw/" + imagePath(release.version), {imageOf(release.version)});
        }
    }

    /// Writes the same into `folder`; false when it cannot.
    bool writeTo(const QString& folder) const {
        const QByteArray bytes = catalogue();
        bool written = QDir().mkpath(folder + "/images") &&
                       write(folder + "/catalogue.json", bytes) &&
                       write(folder + "/catalogue.json.sig", signatureOf(bytes));
        for (const Release& release : releases) {
            written = written &&
                      write(folder + '/' + imagePath(release.version), imageOf(release.version));
        }
        return written;
    }

    static bool write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    /// A copy of the development resources `from` in `to`, with this publisher's
    /// key as their catalogue.pub; false when it cannot be made.
    bool resourcesIn(const QString& from, const QString& to) const {
        QDir source(from);
        bool copied = QDir().mkpath(to + "/configs");
        for (const QString& name : source.entryList(QDir::Files)) {
            copied = copied && QFile::copy(source.filePath(name), to + '/' + name);
        }
        for (const QString& name : QDir(from + "/configs").entryList(QDir::Files)) {
            copied = copied && QFile::copy(from + "/configs/" + name, to + "/configs/" + name);
        }
        QFile::remove(to + "/catalogue.pub");
        return copied && write(to + "/catalogue.pub", publicPem());
    }
};
