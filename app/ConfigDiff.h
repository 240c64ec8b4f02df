#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// One side of a comparison: a configuration's bytes and the name it is shown
/// under ("machine", a product's name, a file name).
struct ConfigText {
    QString label;
    QByteArray bytes;
};

/// How two machine configurations differ, from the first (the machine's) to the
/// second (the one an upload would write).
struct ConfigComparison {
    /// One line per side that is not valid YAML (or too deep or too large to walk),
    /// naming the side, the position and the parser's message. Empty when both
    /// sides could be read.
    QStringList errors;

    /// One line per key path, sorted by path; empty when `errors` is not. Values as
    /// written in the files, mappings and sequences walked down to their scalars
    /// (sequence items by index: "path/0"):
    ///   "axes/x/steps_per_mm: 80.000 → 100.000"  the value differs
    ///   "+ axes/z/max_travel_mm: 10.000"          only in the second
    ///   "- axes/z/max_travel_mm: 10.000"          only in the first
    /// Key order and comments do not count.
    QStringList keyDifferences;

    /// The texts compared line by line, in unified form ("--- first", "+++ second",
    /// then hunks); empty when every line is the same. Line endings do not count.
    QString lineDiff;

    /// True when both sides were read and no key path differs.
    bool equalByKey() const { return errors.isEmpty() && keyDifferences.isEmpty(); }
};

/// Compares two configurations by key path and by line. Pure; any thread.
ConfigComparison compareConfigs(const ConfigText& first, const ConfigText& second);
