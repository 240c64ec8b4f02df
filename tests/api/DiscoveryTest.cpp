#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

#include "api/PortList.h"
#include "api/esp_flasher.h"
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

// Through the flat interface, as the application sees it.
TEST(UsbSurvey, ListsPlottersWithOrWithoutAPortAndOtherSerialDevices) {
    EXPECT_EQ(esp_survey_usb_serial("/tmp/tfu-no-such-sysfs", nullptr, nullptr, 0), 0u);
    FakeSysfs tree;
    const auto device = [&](const std::string& folder, const std::string& vendor,
                            const std::string& product, const std::string& name,
                            const std::string& serial) {
        tree.ids(folder, vendor, product, true);
        for (const auto& [file, text] : {std::pair{"product", name}, {"serial", serial}}) {
            if (!text.empty()) {
                tree.attribute(folder, file, text);
            }
        }
    };
    const std::string longName(200, 'n');
    device("usb1", "1d6b", "0002", "xHCI Host Controller", "0000:00:14.0");
    device("usb1/1-1", "303a", "1001", "USB JTAG/serial debug unit", "F4:12:FA:00:00:01");
    tree.interface("usb1/1-1/1-1:1.0", "cdc_acm");
    tree.interface("usb1/1-1/1-1:1.2", "");
    tree.tty("ttyACM0", "usb1/1-1/1-1:1.0");
    // No port made: no driver on the serial interface, whatever the others have.
    device("usb1/1-2", "303a", "1001", "", "F4:12:FA:00:00:02");
    tree.interface("usb1/1-2/1-2:1.0", "");
    tree.interface("usb1/1-2/1-2:1.2", "usbfs");
    // A usb-serial adapter makes its tty one folder below the interface.
    device("usb1/1-3", "1a86", "7523", longName, "");
    tree.interface("usb1/1-3/1-3:1.0", "ch341");
    tree.tty("ttyUSB0", "usb1/1-3/1-3:1.0/ttyUSB0");
    device("usb1/1-4", "046d", "c52b", "USB Receiver", "");
    tree.interface("usb1/1-4/1-4:1.0", "usbhid");
    // Behind a hub, with a tty whose node udev has not made yet.
    device("usb1/1-5", "05e3", "0608", "USB2.0 Hub", "");
    tree.interface("usb1/1-5/1-5:1.0", "hub");
    device("usb1/1-5/1-5.2", "303a", "1001", "USB JTAG/serial debug unit", "F4:12:FA:00:00:03");
    tree.interface("usb1/1-5/1-5.2/1-5.2:1.0", "cdc_acm");
    tree.tty("ttyACM1", "usb1/1-5/1-5.2/1-5.2:1.0", true, false);
    tree.ids("platform/serial8250", "", "");
    tree.tty("ttyS0", "platform/serial8250");

    const auto text = [](const esp_usb_serial_device& d) {
        char ids[16];
        std::snprintf(ids, sizeof ids, "%04x:%04x", d.vendorId, d.productId);
        return std::string(ids) + " " + d.product + "|" + d.serial + "|" + d.driver + "|" + d.path;
    };
    const std::string acm0 = tree.dev + "/ttyACM0", usb0 = tree.dev + "/ttyUSB0";
    const std::vector<std::string> expected = {
        "303a:1001 USB JTAG/serial debug unit|F4:12:FA:00:00:01|cdc_acm|" + acm0,
        "303a:1001 |F4:12:FA:00:00:02||",
        "1a86:7523 " + longName.substr(0, 127) + "||ch341|" + usb0,
        "303a:1001 USB JTAG/serial debug unit|F4:12:FA:00:00:03|cdc_acm|",
    };
    esp_usb_serial_device found[6];
    std::memset(found, 0x7F, sizeof found);
    ASSERT_EQ(esp_survey_usb_serial(tree.sys.c_str(), tree.dev.c_str(), found, 6), 4u);
    std::vector<std::string> texts;
    std::transform(found, found + 4, std::back_inserter(texts), text);
    EXPECT_EQ(texts, expected);
    EXPECT_EQ(found[4].vendorId, 0x7F7F) << "written past the devices found";

    std::memset(found, 0x7F, sizeof found);
    EXPECT_EQ(esp_survey_usb_serial(tree.sys.c_str(), tree.dev.c_str(), found, 1), 4u);
    EXPECT_EQ(text(found[0]), expected[0]);
    EXPECT_EQ(found[1].vendorId, 0x7F7F) << "written past the capacity";
}

// The serial number is the USB device's, not its interface's; the fields of the
// exported record are cut and NUL-terminated, and the count goes past the capacity.
TEST(PortDiscovery, ListDevicesFillsSerialNumbersUpToCapacity) {
    FakeSysfs tree;
    const std::string longSerial(200, 'S');
    tree.ids("usb1/1-1", "303a", "1001");
    tree.attribute("usb1/1-1", "serial", "  F4:12:FA:6C:3B:90 ");
    tree.attribute("usb1/1-1/1-1:1.0", "serial", "interface");
    tree.tty("ttyACM0", "usb1/1-1/1-1:1.0");
    tree.ids("usb1/1-2", "303a", "1001");
    tree.tty("ttyACM1", "usb1/1-2/1-2:1.0");
    tree.ids("usb1/1-3", "303a", "1001");
    tree.attribute("usb1/1-3", "serial", longSerial);
    tree.tty("ttyACM2", "usb1/1-3/1-3:1.0");
    const auto found = listESPPorts(0x303A, 0x1001, tree.sys, tree.dev);

    esp_port_info ports[4];
    std::memset(ports, 'x', sizeof ports);
    EXPECT_EQ(esp::copyPortList(found, nullptr, 0), 3u);
    EXPECT_EQ(esp::copyPortList(found, ports, 2), 3u);
    EXPECT_EQ(std::string(ports[0].path), tree.dev + "/ttyACM0");
    EXPECT_EQ(std::string(ports[0].serial), "F4:12:FA:6C:3B:90");
    EXPECT_EQ(std::string(ports[1].path), tree.dev + "/ttyACM1");
    EXPECT_EQ(std::string(ports[1].serial), "");
    EXPECT_EQ(ports[2].path[0], 'x') << "past the capacity";

    EXPECT_EQ(esp::copyPortList(found, ports, 4), 3u);
    EXPECT_EQ(std::string(ports[2].serial), longSerial.substr(0, 127));
    EXPECT_EQ(ports[3].path[0], 'x') << "past the ports found";
}

}  // namespace
