#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "app/JobSink.h"

/// The machine's config.yaml as read over its console, or why it could not be.
struct MachineConfigRead {
    std::optional<QByteArray> bytes;
    QString error;  ///< the user message when `bytes` is absent
};

/// Downloads config.yaml from the machine on `port` through the flasher bridge,
/// with the library's progress going to `sink`. The library's failure line becomes
/// part of the error ("Could not read config.yaml from the machine: " and the
/// cause); nothing is logged. Blocks the calling thread: call it from a worker, and
/// only while no other library job runs (the bridge's rule).
MachineConfigRead downloadMachineConfig(const QString& port, const JobSink& sink);
