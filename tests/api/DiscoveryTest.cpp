#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "serial/PortDiscovery.h"

namespace {

namespace fs = std::filesystem;

// A fake sysfs tree laid out as the kernel does it: class/tty/<name> links into
// devices/, the tty's `device` link points at the folder it sits in, and USB device
// folders carry idVendor and idProduct.
TEST(PortDiscovery, ListsOnlyMatchingReachablePortsInNameOrder) {
    char pattern[] = "/tmp/tfu-sysfs-XXXXXX";
    const std::string base = ::mkdtemp(pattern), sys = base + "/sys", dev = base + "/dev";
    EXPECT_TRUE(listESPPorts(0x303A, 0x1001, sys, dev).empty()) << "no tree";
    fs::create_directories(sys + "/class/tty");
    fs::create_directories(dev);
    // A folder below devices/ with its id files ("" for a missing one).
    const auto ids = [&](const std::string& folder, const std::string& vendor,
                         const std::string& product) {
        fs::create_directories(sys + "/devices/" + folder);
        for (const auto& [file, id] : {std::pair{"/idVendor", vendor}, {"/idProduct", product}}) {
            if (!id.empty()) {
                std::ofstream(sys + "/devices/" + folder + file) << id << "\n";
            }
        }
    };
    // A tty below `folder`; virtual consoles and gadget ports have no device link.
    const auto tty = [&](const std::string& name, const std::string& folder, bool link = true,
                         bool node = true) {
        const std::string own = "devices/" + folder + "/tty/" + name;
        fs::create_directories(sys + "/" + own);
        fs::create_directory_symlink("../../" + own, sys + "/class/tty/" + name);
        if (link) {
            const std::string leaf = folder.substr(folder.rfind('/') + 1);
            fs::create_directory_symlink("../../../" + leaf, sys + "/" + own + "/device");
        }
        if (node) {
            std::ofstream(dev + "/" + name);
        }
    };
    tty("tty0", "virtual", false);
    ids("platform/serial8250", "", "");
    tty("ttyS0", "platform/serial8250");
    ids("usb1/1-1", "1a86", "7523");
    tty("ttyUSB0", "usb1/1-1/1-1:1.0");
    // Matches, case-blind and on the low sixteen bits only; another product id.
    ids("usb1/1-2", "303a", "1001");
    tty("ttyACM1", "usb1/1-2/1-2:1.0");
    ids("usb1/1-3", "303A", "1001");
    tty("ttyACM0", "usb1/1-3/1-3:1.0");
    ids("usb1/1-7", "1303a", "71001");
    tty("ttyACM3", "usb1/1-7/1-7:1.0");
    ids("usb1/1-4", "303a", "1002");
    tty("ttyACM2", "usb1/1-4/1-4:1.0");
    // Only the nearest folder with both ids decides: a matching hub above a foreign
    // device does not count; folders with one of the ids are passed over.
    ids("usb1/1-5", "303a", "1001");
    ids("usb1/1-5/1-5.1", "0403", "6001");
    tty("ttyUSB1", "usb1/1-5/1-5.1/1-5.1:1.0");
    ids("usb1/1-6", "303a", "1001");
    ids("usb1/1-6/1-6:1.0", "0403", "");
    ids("usb1/1-6/1-6:1.0/port", "", "6001");
    tty("ttyACM6", "usb1/1-6/1-6:1.0/port");
    // A gadget port without a device link, and a tty without a device node.
    ids("usb1/1-8", "303a", "1001");
    tty("ttyGS0", "usb1/1-8", false);
    tty("ttyACM4", "usb1/1-8/1-8:1.0", true, false);
    tty("ttyACM5", "usb1/1-8/1-8:1.2");

    const auto found = [&](unsigned short product) {
        std::vector<std::string> names;
        for (const auto& port : listESPPorts(0x303A, product, sys, dev)) {
            EXPECT_EQ(port.calloutPath, port.ttyPath);
            EXPECT_EQ(port.calloutPath.substr(0, dev.size() + 1), dev + "/");
            names.push_back(port.calloutPath.substr(dev.size() + 1));
        }
        return names;
    };
    EXPECT_EQ(found(0x1001),
              (std::vector<std::string>{"ttyACM0", "ttyACM1", "ttyACM3", "ttyACM5", "ttyACM6"}));
    EXPECT_EQ(found(0x1002), std::vector<std::string>{"ttyACM2"});
    fs::remove_all(base);
}

}  // namespace
