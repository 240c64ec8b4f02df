#include "serial/UsbSurvey.h"

#include <unistd.h>

#include <string_view>

#include "serial/Sysfs.h"

namespace {

struct TtyPlace {
    std::string name;
    std::string interface;  // the folder right below the USB device on the tty's path
    std::string usbDevice;
};

// A tty sits in or below one interface folder of its USB device (cdc_acm makes it in
// the interface, usb-serial one level further down); the interface is what a driver
// is bound to.
std::vector<TtyPlace> usbTtys(const sysfs::Root& root) {
    std::vector<TtyPlace> ttys;
    for (const auto& name : root.sortedEntries("/class/tty")) {
        const auto folder = sysfs::ttyDeviceFolder(root, name);
        const auto usb = folder ? sysfs::nearestUsbAncestor(root, *folder) : std::nullopt;
        if (!usb) {
            continue;
        }
        const auto end = folder->find('/', usb->folder.size() + 1);
        ttys.push_back(TtyPlace{name, folder->substr(0, end), usb->folder});
    }
    return ttys;
}

std::string driverOf(const sysfs::Root& root, const std::string& interface) {
    if (interface.empty()) {
        return {};
    }
    const std::string link = root.readLink(interface + "/driver").value_or("");
    return link.substr(link.rfind('/') + 1);
}

// Interface folders are named "<device>:<configuration>.<number>", so the first in
// name order is interface 0, the communications interface of a CDC ACM device.
std::string firstInterface(const sysfs::Root& root, const std::string& device) {
    const std::string prefix = device.substr(device.rfind('/') + 1) + ":";
    for (const auto& entry : root.sortedEntries(device)) {
        if (std::string_view(entry).starts_with(prefix)) {
            return device + "/" + entry;
        }
    }
    return {};
}

std::string nodeOf(const std::string& devRoot, const std::string& ttyName) {
    const std::string node = devRoot + "/" + ttyName;
    return ::access(node.c_str(), F_OK) == 0 ? node : std::string{};
}

}  // namespace

std::vector<UsbSerialDevice> surveyUsbSerial(UsbIds plotter, const std::string& sysfsRoot,
                                             const std::string& devRoot) {
    std::vector<UsbSerialDevice> found;
    const sysfs::Root root(sysfsRoot);
    if (!root.isOpen()) {
        return found;
    }
    const auto ttys = usbTtys(root);
    for (const auto& name : root.sortedEntries("/bus/usb/devices")) {
        const auto folder = root.resolve("/bus/usb/devices/" + name);
        const auto usb = folder ? sysfs::nearestUsbAncestor(root, *folder) : std::nullopt;
        if (!usb || usb->folder != *folder) {
            continue;  // an interface, which carries no ids of its own
        }
        UsbSerialDevice device{static_cast<uint16_t>(usb->ids.vendor),
                               static_cast<uint16_t>(usb->ids.product),
                               root.readAttribute(*folder + "/product").value_or(""),
                               sysfs::usbSerialNumber(root, *folder),
                               {},
                               {}};
        bool hasTty = false;
        for (const auto& tty : ttys) {
            if (tty.usbDevice == *folder) {
                hasTty = true;
                device.driver = driverOf(root, tty.interface);
                device.path = nodeOf(devRoot, tty.name);
                found.push_back(device);
            }
        }
        if (!hasTty && device.vendorId == plotter.vendor && device.productId == plotter.product) {
            device.driver = driverOf(root, firstInterface(root, *folder));
            found.push_back(device);
        }
    }
    return found;
}
