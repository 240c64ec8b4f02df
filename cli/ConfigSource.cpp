#include "cli/ConfigSource.h"

#include <QString>
#include <algorithm>
#include <vector>

namespace {

std::vector<std::string> productNames() {
    std::vector<std::string> names;
    for (const ProductConfig& product : BuildConfig::products()) {
        names.push_back(product.name.toStdString());
        names.push_back(product.configFile.toStdString());
    }
    return names;
}

}  // namespace

std::string productList() {
    QString list = QStringLiteral("Products:\n");
    for (const ProductConfig& product : BuildConfig::products()) {
        list += QStringLiteral("  %1 (%2)\n").arg(product.name, product.configFile);
    }
    return (list + QLatin1Char('\n')).toStdString();
}

// The command line accepted only names of the table, so one is always found.
ProductConfig productNamed(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    const auto& products = BuildConfig::products();
    return *std::find_if(products.begin(), products.end(), [&](const ProductConfig& product) {
        return product.name == wanted || product.configFile == wanted;
    });
}

CLI::Option* addProductOption(CLI::App* command, std::string* product) {
    return command
        ->add_option("--product", *product,
                     "Product, by name (\"Corvane Halcot\") or configuration file "
                     "(\"Halcot.yaml\")")
        ->check(CLI::IsMember(productNames()).description(""))
        ->type_name("NAME");
}

void ConfigSource::define(CLI::App* command, const std::string& what) {
    CLI::Option_group* source = command->add_option_group("source", what);
    addProductOption(source, &product_);
    source->add_option("FILE", file_, "Configuration file (.yaml or .yml)")->type_name("");
    source->require_option(1);
    command->footer(productList());
}

ConfigChoice ConfigSource::choice() const {
    if (!product_.empty()) {
        return ConfigChoice::ofProduct(productNamed(product_));
    }
    return ConfigChoice::ofFile(QString::fromStdString(file_));
}
