#include "app/operations/SaveMachineConfig.h"

#include "app/PortDiagnosis.h"
#include "app/operations/MachineConfigFile.h"

SaveMachineConfig::SaveMachineConfig(QString port, QString destination, QString machine)
    : port_(std::move(port)), destination_(std::move(destination)), machine_(std::move(machine)) {}

QString SaveMachineConfig::defaultFileName(const QDateTime& when) {
    return QStringLiteral("machine-config-") + when.toString(QStringLiteral("yyyyMMdd-HHmm")) +
           QStringLiteral(".yaml");
}

Outcome SaveMachineConfig::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_, sink.audience)) {
        return *unusable;
    }
    auto read = MachineConfigFile::read({port_, machine_, BackupReason::save}, sink);
    if (auto* failure = std::get_if<Outcome>(&read)) {
        return *failure;
    }
    const auto& config = std::get<MachineConfigFile::Read>(read);
    MachineConfigFile::noteUnkept(config, sink);
    return MachineConfigFile::write(destination_, config.bytes, sink);
}
