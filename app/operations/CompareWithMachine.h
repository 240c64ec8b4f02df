#pragma once

#include <QString>
#include <optional>

#include "app/ConfigChoice.h"
#include "app/ConfigDiff.h"
#include "app/ResourceBundle.h"
#include "app/operations/Operation.h"

/// Shows what uploading a configuration would change: reads the machine's own
/// config.yaml and compares it with the chosen one.
class CompareWithMachine : public Operation {
  public:
    /// `machine`: the name the machine's backups are filed under (empty: found
    /// from the port).
    CompareWithMachine(QString port, ResourceBundle resources, ConfigChoice choice,
                       QString machine = {});

    /// The chosen configuration cannot be compared: a product's file missing from
    /// the resources, or a file refused as an upload would refuse it. Keeps what
    /// it read for `run`.
    std::optional<Outcome> refusal() override;

    /// Reads config.yaml (keeping a copy in the backups folder, or logging why not)
    /// and compares it, shown as "machine", with the chosen
    /// configuration; logs one line ("Machine config matches <name> by key",
    /// "Machine config differs from <name> in <n> key(s)", or each reason why a
    /// side could not be read). Succeeds with "Equal by key", or ends `differs`
    /// with "Different" and the differing key paths as its evidence; either way the
    /// whole `ConfigComparison` is its cause. Ends `portUnusable`, without reading,
    /// when the port cannot be used.
    Outcome run(const OperationSink& sink) override;

  private:
    QString port_;
    ResourceBundle resources_;
    ConfigChoice choice_;
    QString machine_;
    std::optional<ConfigText> chosen_;
};
