#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "app/ConfigChoice.h"

/// Adds "--product NAME" to `command`: a product of the table, by its name or its
/// configuration file, stored into `product`.
CLI::Option* addProductOption(CLI::App* command, std::string* product);

/// The products, for a command's footer: "Products:" and one line each.
std::string productList();

/// The product the command line named (a name `addProductOption` accepted).
ProductConfig productNamed(const std::string& name);

/// The configuration a subcommand works with: a product's, named with --product,
/// or a file from disk. Set by the command line, read when the command runs.
class ConfigSource {
  public:
    /// Adds "--product NAME" and "FILE" to `command`, exactly one of them
    /// required, with `what` as the group's description and the product list as
    /// the command's footer.
    void define(CLI::App* command, const std::string& what);

    /// A product's configuration (the product named) or the file.
    ConfigChoice choice() const;

  private:
    std::string product_;
    std::string file_;
};
