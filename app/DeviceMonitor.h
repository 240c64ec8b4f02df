#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <optional>

/// Follows whether the plotter's USB serial port is present. Four times a second
/// it asks the detector for the first port with the plotter's USB ids
/// (`ESP_PLOTTER_VENDOR_ID`, `ESP_PLOTTER_PRODUCT_ID`) and publishes `portPath`, then
/// `isConnected`, on every poll, whether or not they changed.
///
/// Threading: create, start and read on the GUI thread; detection runs there too
/// (it only enumerates devices, it opens nothing).
class DeviceMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString portPath READ portPath NOTIFY portPathChanged)
    Q_PROPERTY(bool hasPort READ hasPort NOTIFY portPathChanged)
    Q_PROPERTY(bool isConnected READ isConnected NOTIFY isConnectedChanged)

  public:
    /// Finds the port for a USB vendor and product id. Returns a malloc'd path
    /// that the monitor releases with free(), or null when none is present.
    using Detector = std::function<char*(uint16_t vendorId, uint16_t productId)>;

    static constexpr int kPollIntervalMs = 250;

    /// Detects through the flasher library. Does not poll until `startPolling`.
    explicit DeviceMonitor(QObject* parent = nullptr);
    /// Detects through `detector` (tests hand in a pseudo-terminal's path).
    explicit DeviceMonitor(Detector detector, QObject* parent = nullptr);

    /// Starts the repeating timer; the first poll comes one interval later.
    void startPolling();

    /// The port found by the last poll; empty when there is none.
    QString portPath() const { return portPath_.value_or(QString()); }
    /// True when the last poll found a port (the path may in principle be empty).
    bool hasPort() const { return portPath_.has_value(); }
    /// The last poll's path, or none.
    const std::optional<QString>& port() const { return portPath_; }
    bool isConnected() const { return isConnected_; }

  signals:
    /// Emitted on every poll, before `isConnectedChanged`.
    void portPathChanged(const QString& portPath);
    /// Emitted on every poll, changed or not.
    void isConnectedChanged(bool isConnected);

  private:
    void poll();
    void publish(std::optional<QString> path);

    Detector detector_;
    QTimer timer_;
    std::optional<QString> portPath_;
    bool isConnected_ = false;
};
