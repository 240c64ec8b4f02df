#pragma once

#include <QFileInfo>
#include <QString>
#include <optional>
#include <utility>

#include "app/BuildConfig.h"

/// A configuration the user picked from the Config menu: a product's, from the
/// resources, or a file on disk. A plain value, copied freely.
struct ConfigChoice {
    std::optional<ProductConfig> product;  ///< set for a product's configuration
    QString path;                          ///< the file's path when `product` is absent

    static ConfigChoice ofProduct(ProductConfig product) { return {std::move(product), {}}; }
    static ConfigChoice ofFile(QString path) { return {std::nullopt, std::move(path)}; }

    /// What the user knows it by: the product's name, or the file's name.
    QString label() const { return product ? product->name : QFileInfo(path).fileName(); }
};
