#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "serial/PortDiscovery.h"
#include "tests/support/FakeSysfs.h"

namespace {

TEST(PortDiscovery, ListsOnlyMatchingReachablePortsInNameOrder) {
    EXPECT_TRUE(listESPPorts(0x303A, 0x1001, "/tmp/tfu-no-such-sysfs", "/dev").empty())
        << "no tree";
    FakeSysfs tree;
    const std::string &sys = tree.sys, &dev = tree.dev;
    tree.tty("tty0", "virtual", false);
    tree.ids("platform/serial8250", "", "");
    tree.tty("ttyS0", "platform/serial8250");
    tree.ids("usb1/1-1", "1a86", "7523");
    tree.tty("ttyUSB0", "usb1/1-1/1-1:1.0");
    // Matches, case-blind and on the low sixteen bits only; another product id.
    tree.ids("usb1/1-2", "303a", "1001");
    tree.tty("ttyACM1", "usb1/1-2/1-2:1.0");
    tree.ids("usb1/1-3", "303A", "1001");
    tree.tty("ttyACM0", "usb1/1-3/1-3:1.0");
    tree.ids("usb1/1-7", "1303a", "71001");
    tree.tty("ttyACM3", "usb1/1-7/1-7:1.0");
    tree.ids("usb1/1-4", "303a", "1002");
    tree.tty("ttyACM2", "usb1/1-4/1-4:1.0");
    // Only the nearest folder with both ids decides: a matching hub above a foreign
    // device does not count; folders with one of the ids are passed over.
    tree.ids("usb1/1-5", "303a", "1001");
    tree.ids("usb1/1-5/1-5.1", "0403", "6001");
    tree.tty("ttyUSB1", "usb1/1-5/1-5.1/1-5.1:1.0");
    tree.ids("usb1/1-6", "303a", "1001");
    tree.ids("usb1/1-6/1-6:1.0", "0403", "");
    tree.ids("usb1/1-6/1-6:1.0/port", "", "6001");
    tree.tty("ttyACM6", "usb1/1-6/1-6:1.0/port");
    // A gadget port without a device link, and a tty without a device node.
    tree.ids("usb1/1-8", "303a", "1001");
    tree.tty("ttyGS0", "usb1/1-8", false);
    tree.tty("ttyACM4", "usb1/1-8/1-8:1.0", true, false);
    tree.tty("ttyACM5", "usb1/1-8/1-8:1.2");

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
}

}  // namespace
