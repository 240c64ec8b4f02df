#include "app/CompareMachineConfigJob.h"

#include "app/MachineConfigDownload.h"

CompareMachineConfigJob::CompareMachineConfigJob(QString port, ConfigText chosen)
    : port_(std::move(port)), chosen_(std::move(chosen)) {}

std::optional<QString> CompareMachineConfigJob::run(const JobSink& sink) {
    const MachineConfigRead config = downloadMachineConfig(port_, sink);
    if (!config.bytes) {
        return config.error;
    }
    comparison_ = compareConfigs({QStringLiteral("machine"), *config.bytes}, chosen_);
    if (!comparison_.errors.isEmpty()) {
        for (const QString& error : comparison_.errors) {
            sink.logLine(error);
        }
    } else if (comparison_.keyDifferences.isEmpty()) {
        sink.logLine(QStringLiteral("Machine config matches %1 by key").arg(chosen_.label));
    } else {
        const qsizetype count = comparison_.keyDifferences.size();
        sink.logLine(QStringLiteral("Machine config differs from %1 in %2 %3")
                         .arg(chosen_.label)
                         .arg(count)
                         .arg(count == 1 ? QStringLiteral("key") : QStringLiteral("keys")));
    }
    return std::nullopt;
}
