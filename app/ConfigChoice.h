#pragma once

#include <QFileInfo>
#include <QString>
#include <optional>
#include <utility>
#include <variant>

#include "app/BuildConfig.h"
#include "app/ConfigDiff.h"
#include "app/Outcome.h"
#include "app/ResourceBundle.h"

/// A configuration the owner picked: a product's, from the resources, or a file
/// on disk, possibly read already. A plain value, copied freely.
struct ConfigChoice {
    std::optional<ProductConfig> product;  ///< set for a product's configuration
    QString path;                          ///< the file's path when `product` is absent
    std::optional<QByteArray> bytes;       ///< the file's bytes, once read

    static ConfigChoice ofProduct(ProductConfig product) { return {std::move(product), {}, {}}; }
    static ConfigChoice ofFile(QString path) { return {std::nullopt, std::move(path), {}}; }
    /// The file at `path` whose bytes were read already.
    static ConfigChoice ofData(QString path, QByteArray bytes) {
        return {std::nullopt, std::move(path), std::move(bytes)};
    }

    /// What the owner knows it by: the product's name, or the file's name.
    QString label() const { return product ? product->name : QFileInfo(path).fileName(); }
};

/// Reads `choice` as it would be uploaded, labelled with `ConfigChoice::label`: a
/// product's file from `resources` (missing: a `missingResource` outcome), or a
/// file from disk (or its bytes read already) checked as an upload checks it (a
/// `refused` outcome). Any thread.
std::variant<ConfigText, Outcome> readChosenConfig(const ResourceBundle& resources,
                                                   const ConfigChoice& choice);
