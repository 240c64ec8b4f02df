#pragma once

#include <QString>
#include <compare>

/// Firmware version texts as catalogues list them and machines answer them:
/// "2.11.0", "v2.10.6", "2.12.0-beta.1". Pure functions; any thread.
namespace FirmwareVersion {

/// Whether `text` reads as a version: an optional "v", numbers separated by dots,
/// then an optional "-" pre-release and an optional "+" build note, each made of
/// dot-separated identifiers of letters, digits and "-".
bool isValid(const QString& text);

/// How `a` orders against `b`, as semantic versioning orders releases: numbers by
/// value (a missing one counts as 0, so "2.10" equals "2.10.0"), a pre-release
/// before its release, pre-release identifiers one by one (numbers by value and
/// before words). A leading "v" and build notes do not count. Unordered when
/// either text is not a version.
std::partial_ordering compare(const QString& a, const QString& b);

}  // namespace FirmwareVersion
