#pragma once

#include <string>
#include <vector>

/// One USB serial port found by `listESPPorts`.
struct ESPPortInfo {
    std::string calloutPath;  ///< the node to open (on Linux the same as ttyPath)
    std::string ttyPath;      ///< the dial-in node; carried along, unused by callers
    std::string serial;       ///< the USB device's serial number, trimmed; empty when it has none
};

/// Lists the serial ports whose nearest USB ancestor carrying both ids matches
/// `vendorId` and `productId` (low 16 bits compared), in enumeration order.
/// Never fails: problems only shorten the result. Stateless and thread-safe.
std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId);

/// The same search under another sysfs root (the folder that holds `class/tty`)
/// with device nodes reported under `devRoot`; tests use it on a fake tree.
std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId,
                                      const std::string& sysfsRoot, const std::string& devRoot);
