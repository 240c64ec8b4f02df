#include "app/texts/CatalogueTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class CatalogueTexts {
    Q_DECLARE_TR_FUNCTIONS(CatalogueTexts)
};

QString utcTime(const QDateTime& time) {
    return QLocale::c().toString(time.toUTC(), QStringLiteral("yyyy-MM-dd HH:mm 'UTC'"));
}

}  // namespace

QString catalogueSourceUnsupported(const QString& text) {
    return CatalogueTexts::tr(
               "\"%1\" is not a firmware catalogue: give an http:// or https:// address, a "
               "catalogue.json file or a folder that holds one.")
        .arg(text);
}

QString catalogueKeyMissing(const QString& path) {
    return CatalogueTexts::tr(
               "The catalogue key %1 is missing, so no firmware catalogue can be checked. "
               "Reinstall the updater, or use the bundled firmware.")
        .arg(path);
}

QString catalogueKeyUnusable(const QString& path) {
    return CatalogueTexts::tr(
               "The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue "
               "can be checked. Reinstall the updater, or use the bundled firmware.")
        .arg(path);
}

QString catalogueKeyDevelopment(const QString& path) {
    return CatalogueTexts::tr(
               "The catalogue key %1 is the development key, which only the simulated "
               "plotter trusts. Reinstall the updater, or use the bundled firmware.")
        .arg(path);
}

QString catalogueUnreachable(const QString& address, const QString& reason) {
    return CatalogueTexts::tr(
               "The firmware catalogue could not be read from %1 (%2). Check the address and "
               "the network connection and try again, or use the bundled firmware.")
        .arg(address, reason);
}

QString catalogueTimedOut(const QString& address, int seconds) {
    return CatalogueTexts::tr(
               "The firmware catalogue at %1 did not arrive within %2 s. Check the network "
               "connection and try again, or use the bundled firmware.")
        .arg(address)
        .arg(seconds);
}

QString catalogueTooLarge(const QString& address, qint64 limit) {
    return CatalogueTexts::tr(
               "%1 is larger than a firmware catalogue can be (%2 bytes), so it was not "
               "read. Check the catalogue's address.")
        .arg(address)
        .arg(limit);
}

QString catalogueBadSignature(const QString& address) {
    return CatalogueTexts::tr(
               "The firmware catalogue at %1 does not carry a valid signature of this "
               "updater's publisher, so it was not used. Ask its publisher for a signed "
               "catalogue, or use the bundled firmware.")
        .arg(address);
}

QString catalogueMalformed(const QString& address, const QString& problem) {
    return CatalogueTexts::tr(
               "The firmware catalogue at %1 cannot be used: %2. Ask its publisher to "
               "correct it, or use the bundled firmware.")
        .arg(address, problem);
}

QString catalogueReplayed(const QString& address, const QDateTime& published,
                          const QDateTime& newest) {
    return CatalogueTexts::tr(
               "The firmware catalogue at %1 was published %2, before the one already seen "
               "(%3), so it was not used: an old catalogue could bring back a withdrawn "
               "version. Use the current catalogue.")
        .arg(address, utcTime(published), utcTime(newest));
}

QString catalogueFromCache(const QDateTime& published) {
    return CatalogueTexts::tr(
               "Offline: the firmware catalogue published %1, as last seen, is shown. Connect "
               "to the network to see newer versions.")
        .arg(utcTime(published));
}

QString catalogueNotJson(const QString& error) {
    return CatalogueTexts::tr("it is not JSON (%1)").arg(error);
}

QString catalogueSchemaUnsupported(const QString& schema) {
    return CatalogueTexts::tr("schema %1 is not supported").arg(schema);
}

QString catalogueFieldMissing(const QString& field) {
    return CatalogueTexts::tr("%1 is missing").arg(field);
}

QString catalogueFieldUnknown(const QString& field) {
    return CatalogueTexts::tr("%1 is not a field of a catalogue").arg(field);
}

QString catalogueFieldInvalid(const QString& field) {
    return CatalogueTexts::tr("%1 is not valid").arg(field);
}

QString catalogueVersionTwice(const QString& version) {
    return CatalogueTexts::tr("firmware %1 is listed twice").arg(version);
}

QString catalogueVersionNotListed(const QString& version) {
    return CatalogueTexts::tr(
               "Firmware %1 is not in the firmware catalogue. Choose one of the versions it "
               "lists.")
        .arg(version);
}

QString catalogueVersionRevoked(const QString& version) {
    return CatalogueTexts::tr(
               "Firmware %1 was withdrawn by its publisher and is not installed. Choose "
               "another version.")
        .arg(version);
}

QString catalogueImageUnreachable(const QString& version, const QString& address,
                                  const QString& reason) {
    return CatalogueTexts::tr(
               "The image of firmware %1 could not be read from %2 (%3). Check the network "
               "connection and try again.")
        .arg(version, address, reason);
}

QString catalogueImageStalled(const QString& version, int seconds) {
    return CatalogueTexts::tr(
               "The download of firmware %1 stopped: nothing arrived for %2 s. Check the "
               "network connection and try again.")
        .arg(version)
        .arg(seconds);
}

QString catalogueImageOversize(const QString& version, qint64 size) {
    return CatalogueTexts::tr(
               "The image of firmware %1 is larger than the %2 bytes the catalogue declares, "
               "so it was not used. Choose another version, or try again later.")
        .arg(version)
        .arg(size);
}

QString catalogueImageTruncated(const QString& version, qint64 received, qint64 size) {
    return CatalogueTexts::tr(
               "The image of firmware %1 ended after %2 of its %3 bytes. Check the network "
               "connection and try again.")
        .arg(version)
        .arg(received)
        .arg(size);
}

QString catalogueImageTampered(const QString& version) {
    return CatalogueTexts::tr(
               "The image of firmware %1 does not match the SHA-256 the catalogue declares, "
               "so it was not used. Choose another version, or try again later.")
        .arg(version);
}

}  // namespace Texts
