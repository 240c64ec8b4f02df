#pragma once

#include <QDateTime>
#include <QString>
#include <QtGlobal>

/// The owner-facing texts of the firmware catalogue. Each refusal is a whole
/// sentence that names the cause and the next step. Pure functions; any thread.
namespace Texts {

// Where a catalogue comes from, and the key it must be signed with.
QString catalogueSourceUnsupported(const QString& text);
QString catalogueKeyMissing(const QString& path);
QString catalogueKeyUnusable(const QString& path);
QString catalogueKeyDevelopment(const QString& path);

// Fetching and trusting the catalogue.
QString catalogueUnreachable(const QString& address, const QString& reason);
QString catalogueTimedOut(const QString& address, int seconds);
QString catalogueTooLarge(const QString& address, qint64 limit);
QString catalogueBadSignature(const QString& address);
QString catalogueMalformed(const QString& address, const QString& problem);
QString catalogueReplayed(const QString& address, const QDateTime& published,
                          const QDateTime& newest);
/// The mark of a catalogue shown from the cache because its source failed.
QString catalogueFromCache(const QDateTime& published);

// What is wrong with a catalogue file, read inside catalogueMalformed.
QString catalogueNotJson(const QString& error);             ///< "it is not JSON (ERROR)"
QString catalogueSchemaUnsupported(const QString& schema);  ///< "schema S is not supported"
QString catalogueFieldMissing(const QString& field);        ///< "FIELD is missing"
QString catalogueFieldUnknown(const QString& field);
QString catalogueFieldInvalid(const QString& field);    ///< "FIELD is not valid"
QString catalogueVersionTwice(const QString& version);  ///< "firmware V is listed twice"

// A release and its image.
QString catalogueVersionNotListed(const QString& version);
QString catalogueVersionRevoked(const QString& version);
QString catalogueImageUnreachable(const QString& version, const QString& address,
                                  const QString& reason);
QString catalogueImageStalled(const QString& version, int seconds);
QString catalogueImageOversize(const QString& version, qint64 size);
QString catalogueImageTruncated(const QString& version, qint64 received, qint64 size);
QString catalogueImageTampered(const QString& version);

}  // namespace Texts
