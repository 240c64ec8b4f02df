#pragma once

#include <QFileInfo>
#include <QString>
#include <optional>
#include <utility>

#include "app/BuildConfig.h"
#include "app/ConfigDiff.h"
#include "app/ResourceBundle.h"

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

/// The configuration a choice names, as it would be uploaded, or why it cannot be.
struct ChosenConfig {
    std::optional<ConfigText> text;  ///< labelled with `ConfigChoice::label`
    /// When absent, the user message (without "ERROR: "): "Config file not found in
    /// bundle: FILE", "Could not read file: NAME" or "NAME is not a valid machine
    /// configuration: PROBLEM".
    QString refusal;
};

/// Reads `choice`: a product's file from `resources`, or a file from disk checked
/// as an upload checks it. Any thread.
ChosenConfig readChosenConfig(const ResourceBundle& resources, const ConfigChoice& choice);
