#pragma once

#include <QString>
#include <optional>

/// Short questions to the machine on `port`, each one whole library call. They
/// block the calling thread: call them only while no other library job runs.
namespace DeviceQueries {

/// The version the running firmware reports, cleaned as the window shows it
/// ("v3.7.8"); none when it does not answer.
std::optional<QString> firmwareVersion(const QString& port);

}  // namespace DeviceQueries
