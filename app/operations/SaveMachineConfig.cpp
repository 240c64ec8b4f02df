#include "app/operations/SaveMachineConfig.h"

#include "app/PortDiagnosis.h"
#include "app/operations/MachineConfigFile.h"

SaveMachineConfig::SaveMachineConfig(QString port, QString destination)
    : port_(std::move(port)), destination_(std::move(destination)) {}

QString SaveMachineConfig::defaultFileName(const QDateTime& when) {
    return QStringLiteral("machine-config-") + when.toString(QStringLiteral("yyyyMMdd-HHmm")) +
           QStringLiteral(".yaml");
}

Outcome SaveMachineConfig::run(const OperationSink& sink) {
    if (auto unusable = PortDiagnosis::beforeJob(port_)) {
        return *unusable;
    }
    auto read = MachineConfigFile::read(port_, sink);
    if (auto* failure = std::get_if<Outcome>(&read)) {
        return *failure;
    }
    return MachineConfigFile::write(destination_, std::get<QByteArray>(read), sink);
}
