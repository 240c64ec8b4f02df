#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "api/PortList.h"
#include "serial/PortDiscovery.h"

namespace {

namespace fs = std::filesystem;

// A fake sysfs tree laid out as the kernel does it: class/tty/<name> links into
// devices/, the tty's `device` link points at the folder it sits in, and USB device
// folders carry idVendor, idProduct and, for most devices, serial.
class FakeSysfs : public ::testing::Test {
  protected:
    void SetUp() override {
        char pattern[] = "/tmp/tfu-sysfs-XXXXXX";
        base_ = ::mkdtemp(pattern);
        sys_ = base_ + "/sys";
        dev_ = base_ + "/dev";
    }
    void TearDown() override { fs::remove_all(base_); }

    void makeRoots() {
        fs::create_directories(sys_ + "/class/tty");
        fs::create_directories(dev_);
    }

    // A folder below devices/ with its id files ("" for a missing one).
    void ids(const std::string& folder, const std::string& vendor, const std::string& product) {
        fs::create_directories(sys_ + "/devices/" + folder);
        for (const auto& [file, id] : {std::pair{"/idVendor", vendor}, {"/idProduct", product}}) {
            if (!id.empty()) {
                std::ofstream(sys_ + "/devices/" + folder + file) << id << "\n";
            }
        }
    }

    // The serial attribute as the kernel writes it, with its line feed.
    void serial(const std::string& folder, const std::string& text) {
        std::ofstream(sys_ + "/devices/" + folder + "/serial") << text << "\n";
    }

    // A tty below `folder`; virtual consoles and gadget ports have no device link.
    void tty(const std::string& name, const std::string& folder, bool link = true,
             bool node = true) {
        const std::string own = "devices/" + folder + "/tty/" + name;
        fs::create_directories(sys_ + "/" + own);
        fs::create_directory_symlink("../../" + own, sys_ + "/class/tty/" + name);
        if (link) {
            const std::string leaf = folder.substr(folder.rfind('/') + 1);
            fs::create_directory_symlink("../../../" + leaf, sys_ + "/" + own + "/device");
        }
        if (node) {
            std::ofstream(dev_ + "/" + name);
        }
    }

    std::vector<ESPPortInfo> list(unsigned short product = 0x1001) const {
        return listESPPorts(0x303A, product, sys_, dev_);
    }

    std::string base_, sys_, dev_;
};

TEST_F(FakeSysfs, ListsOnlyMatchingReachablePortsInNameOrder) {
    EXPECT_TRUE(list().empty()) << "no tree";
    makeRoots();
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
        for (const auto& port : list(product)) {
            EXPECT_EQ(port.calloutPath, port.ttyPath);
            EXPECT_EQ(port.calloutPath.substr(0, dev_.size() + 1), dev_ + "/");
            names.push_back(port.calloutPath.substr(dev_.size() + 1));
        }
        return names;
    };
    EXPECT_EQ(found(0x1001),
              (std::vector<std::string>{"ttyACM0", "ttyACM1", "ttyACM3", "ttyACM5", "ttyACM6"}));
    EXPECT_EQ(found(0x1002), std::vector<std::string>{"ttyACM2"});
}

// The serial number is the USB device's, not its interface's; the fields of the
// exported record are cut and NUL-terminated, and the count goes past the capacity.
TEST_F(FakeSysfs, ListDevicesFillsSerialNumbersUpToCapacity) {
    makeRoots();
    const std::string longSerial(200, 'S');
    ids("usb1/1-1", "303a", "1001");
    serial("usb1/1-1", "  F4:12:FA:6C:3B:90 ");
    serial("usb1/1-1/1-1:1.0", "interface");
    tty("ttyACM0", "usb1/1-1/1-1:1.0");
    ids("usb1/1-2", "303a", "1001");
    tty("ttyACM1", "usb1/1-2/1-2:1.0");
    ids("usb1/1-3", "303a", "1001");
    serial("usb1/1-3", longSerial);
    tty("ttyACM2", "usb1/1-3/1-3:1.0");

    esp_port_info ports[4];
    std::memset(ports, 'x', sizeof ports);
    EXPECT_EQ(esp::copyPortList(list(), nullptr, 0), 3u);
    EXPECT_EQ(esp::copyPortList(list(), ports, 2), 3u);
    EXPECT_EQ(std::string(ports[0].path), dev_ + "/ttyACM0");
    EXPECT_EQ(std::string(ports[0].serial), "F4:12:FA:6C:3B:90");
    EXPECT_EQ(std::string(ports[1].path), dev_ + "/ttyACM1");
    EXPECT_EQ(std::string(ports[1].serial), "");
    EXPECT_EQ(ports[2].path[0], 'x') << "past the capacity";

    EXPECT_EQ(esp::copyPortList(list(), ports, 4), 3u);
    EXPECT_EQ(std::string(ports[2].serial), longSerial.substr(0, 127));
    EXPECT_EQ(ports[3].path[0], 'x') << "past the ports found";
}

}  // namespace
