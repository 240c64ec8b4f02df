#include "app/MachineConfigDownload.h"

MachineConfigRead downloadMachineConfig(const QString& port, const JobSink& sink) {
    // The library describes a failure in its last log line; the result code alone
    // cannot tell a silent console from a cancelled transfer.
    QString cause;
    auto download = FlasherBridge::downloadFile(port, QStringLiteral("config.yaml"), sink.progress,
                                                [&cause](const QString& line) { cause = line; });
    if (download.result == 0) {
        return {std::move(download.data), {}};
    }
    if (cause.isEmpty()) {
        cause = QStringLiteral("error code %1").arg(download.result);
    }
    return {std::nullopt, QStringLiteral("Could not read config.yaml from the machine: ") + cause};
}
