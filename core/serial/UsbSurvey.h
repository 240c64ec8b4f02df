#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One USB device seen by `surveyUsbSerial`, with one of its serial ports.
struct UsbSerialDevice {
    uint16_t vendorId = 0;
    uint16_t productId = 0;
    std::string product;  ///< the device's product name, empty when it gives none
    std::string serial;   ///< its serial number, empty when it gives none
    std::string driver;   ///< the driver bound to the port's interface, empty for none
    std::string path;     ///< the port's device node, empty when none was made
};

/// A USB device's vendor and product id.
struct UsbIds {
    uint16_t vendor = 0;
    uint16_t product = 0;
};

/// What is attached over USB that matters for finding the plotter's port: every
/// device with the `plotter`'s ids whether or not a port was made for it, and every
/// other USB device that has a tty. A device with several ttys gives one entry per tty; a plotter
/// without any gives one entry with an empty `path`, whose `driver` is that of its first interface.
/// Ordered by the device's bus position, then by tty name.
///
/// `sysfsRoot` is the folder that holds `bus/usb/devices` and `class/tty` ("/sys");
/// nodes are looked for under `devRoot` ("/dev"). Reads sysfs only, opens no device
/// node and never fails: problems only shorten the result. Stateless, thread-safe.
std::vector<UsbSerialDevice> surveyUsbSerial(UsbIds plotter, const std::string& sysfsRoot = "/sys",
                                             const std::string& devRoot = "/dev");
