#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// Short questions to the machine on `port`, each one whole library call. They
/// block the calling thread: call them only while no other library job runs.
namespace DeviceQueries {

/// A plotter's serial port as the system lists it.
struct ListedPort {
    QString path;    ///< the node to open
    QString serial;  ///< the USB serial number; empty when it has none
};

/// Every connected plotter's port (USB `ESP_PLOTTER_VENDOR_ID`:`ESP_PLOTTER_PRODUCT_ID`),
/// in the order the system lists them. Opens nothing; safe while a job runs.
QList<ListedPort> plotters();

/// The version the running firmware reports, cleaned as the window shows it
/// ("v3.7.8"); none when it does not answer.
std::optional<QString> firmwareVersion(const QString& port);

/// The name a machine's backups are filed under: the USB serial number that
/// `esp_list_devices` reports for `port` (compared as given and with links
/// resolved), else `port` itself ("sim1", "/dev/ttyACM0"). Opens nothing; safe
/// while a job runs.
QString machineIdentity(const QString& port);

enum class PartitionTable { present, absent, unreadable };

/// Whether the machine's flash holds a partition table with an application at
/// 0x10000, read through the ROM loader with the flasher stub `stub`;
/// `unreadable` when the loader or the stub does not answer.
PartitionTable partitionTable(const QString& port, const QByteArray& stub);

}  // namespace DeviceQueries
