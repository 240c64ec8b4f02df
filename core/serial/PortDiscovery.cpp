#include "serial/PortDiscovery.h"

#include <unistd.h>

#include "serial/Sysfs.h"

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId) {
    return listESPPorts(vendorId, productId, "/sys", "/dev");
}

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId,
                                      const std::string& sysfsRoot, const std::string& devRoot) {
    std::vector<ESPPortInfo> ports;
    const sysfs::Root root(sysfsRoot);
    if (!root.isOpen()) {
        return ports;
    }
    for (const auto& name : root.sortedEntries("/class/tty")) {
        const auto folder = sysfs::ttyDeviceFolder(root, name);
        const auto usb = folder ? sysfs::nearestUsbAncestor(root, *folder) : std::nullopt;
        if (!usb || (usb->ids.vendor & 0xFFFF) != vendorId ||
            (usb->ids.product & 0xFFFF) != productId) {
            continue;
        }
        std::string node = devRoot + "/" + name;
        if (::access(node.c_str(), F_OK) != 0) {
            continue;
        }
        ports.push_back(ESPPortInfo{node, node, sysfs::usbSerialNumber(root, usb->folder)});
    }
    return ports;
}
