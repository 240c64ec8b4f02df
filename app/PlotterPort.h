#pragma once

#include <QString>
#include <optional>

/// The plotter's serial port, and how to find it again: the chip's USB serial unit
/// may vanish and come back, possibly under another name, when the chip restarts.
/// A plain value; any thread.
class PlotterPort {
  public:
    /// The plotter on `path`, with the USB serial number sysfs gives for it (none
    /// for a port that is no USB plotter, such as a simulated one).
    static PlotterPort at(const QString& path);

    const QString& path() const { return path_; }
    /// The USB serial number; empty when there is none.
    const QString& serialNumber() const { return serialNumber_; }
    /// What tells this machine from others: its serial number, else its port.
    QString identity() const { return serialNumber_.isEmpty() ? path_ : serialNumber_; }

    /// The plotter's port once it is there again: the port of the same USB serial
    /// number, or `path` itself for a plotter without one. None when it has not
    /// come back within `timeoutMs`. Blocks the calling thread, looking ten times
    /// a second; opens nothing.
    std::optional<QString> findAgain(int timeoutMs) const;

  private:
    PlotterPort(QString path, QString serialNumber);

    QString path_;
    QString serialNumber_;
};
