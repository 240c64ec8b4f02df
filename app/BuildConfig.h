#pragma once

#include <QList>
#include <QString>

/// One supported machine: its display name and the file name, with extension, of
/// its configuration in the resources folder "configs".
struct ProductConfig {
    QString name;
    QString configFile;

    friend bool operator==(const ProductConfig&, const ProductConfig&) = default;
};

/// Facts fixed when the application is built. Every function may be called from
/// any thread.
namespace BuildConfig {

/// Version of the firmware image shipped in the resources: "2.10.6".
QString firmwareVersion();

/// Version of this program, the project version it was built from ("1.0.0").
QString programVersion();

/// The supported machines in menu order; a row's index is its menu item's tag.
const QList<ProductConfig>& products();

/// The date this program was built, "yyyyMMdd" in UTC (the date of
/// SOURCE_DATE_EPOCH when the build had it set, for reproducible builds). Fixed
/// when the program is built; defined in a source the build generates.
const QString& buildDate();

}  // namespace BuildConfig
