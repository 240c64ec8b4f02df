#include "app/operations/CompareWithMachine.h"

#include "app/PortDiagnosis.h"
#include "app/Texts.h"
#include "app/operations/MachineConfigFile.h"

CompareWithMachine::CompareWithMachine(QString port, ResourceBundle resources, ConfigChoice choice,
                                       QString machine)
    : port_(std::move(port)),
      resources_(std::move(resources)),
      choice_(std::move(choice)),
      machine_(std::move(machine)) {}

std::optional<Outcome> CompareWithMachine::refusal() {
    auto chosen = readChosenConfig(resources_, choice_);
    if (auto* refused = std::get_if<Outcome>(&chosen)) {
        return *refused;
    }
    chosen_ = std::get<ConfigText>(std::move(chosen));
    return std::nullopt;
}

Outcome CompareWithMachine::run(const OperationSink& sink) {
    if (!chosen_) {
        if (auto refused = refusal()) {
            return *refused;
        }
    }
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    auto read = MachineConfigFile::read({port_, machine_, BackupReason::compare}, sink);
    if (auto* failure = std::get_if<Outcome>(&read)) {
        return *failure;
    }
    const auto& machineConfig = std::get<MachineConfigFile::Read>(read);
    MachineConfigFile::noteUnkept(machineConfig, sink);
    ConfigComparison comparison =
        compareConfigs({QStringLiteral("machine"), machineConfig.bytes}, *chosen_);
    for (const QString& error : comparison.errors) {
        sink.info(error);
    }
    Outcome compared = Outcome::make(Outcome::Kind::differs, Texts::different());
    if (comparison.equalByKey()) {
        sink.info(Texts::configMatches(chosen_->label));
        compared = Outcome::success(Texts::equalByKey());
    } else if (comparison.errors.isEmpty()) {
        sink.info(Texts::configDiffers(chosen_->label, comparison.keyDifferences.size()));
    }
    if (compared.kind == Outcome::Kind::differs) {
        compared.evidence = comparison.keyDifferences;
    }
    compared.cause = std::move(comparison);
    return compared;
}
