#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "serial/PortDiscovery.h"

namespace {

namespace fs = std::filesystem;

// A sysfs tree laid out as the kernel does it: class/tty/<name> links into the
// device hierarchy, the tty's `device` link points at its USB interface folder,
// and the USB device folder above that carries idVendor and idProduct.
class FakeSysfs {
  public:
    FakeSysfs() {
        char pattern[] = "/tmp/tfu-sysfs-XXXXXX";
        base_ = ::mkdtemp(pattern);
        fs::create_directories(sys() + "/class/tty");
        fs::create_directories(dev());
        ids("devices/pci0000:00/usb1", "1d6b", "0002");
    }
    ~FakeSysfs() { fs::remove_all(base_); }

    std::string sys() const { return base_ + "/sys"; }
    std::string dev() const { return base_ + "/dev"; }

    // A USB device folder below the root hub, with the ids given (empty: file absent).
    void ids(const std::string& folder, const std::string& vendor, const std::string& product) {
        fs::create_directories(sys() + "/" + folder);
        for (const auto& [file, value] :
             {std::pair{"/idVendor", vendor}, {"/idProduct", product}}) {
            if (!value.empty()) {
                std::ofstream(sys() + "/" + folder + file) << value << "\n";
            }
        }
    }

    // A tty below `deviceFolder`; without `link` it has no device link, as virtual
    // consoles and gadget ports have.
    void tty(const std::string& name, const std::string& deviceFolder, bool link = true,
             bool node = true) {
        const std::string ttyFolder = deviceFolder + "/tty/" + name;
        fs::create_directories(sys() + "/" + ttyFolder);
        fs::create_directory_symlink("../../" + ttyFolder, sys() + "/class/tty/" + name);
        const std::string leaf = deviceFolder.substr(deviceFolder.rfind('/') + 1);
        if (link) {
            fs::create_directory_symlink("../../../" + leaf, sys() + "/" + ttyFolder + "/device");
        }
        if (node) {
            std::ofstream(dev() + "/" + name);
        }
    }

    // The names of the ports found, checking each path points into dev().
    std::vector<std::string> found(unsigned short vendor = 0x303A,
                                   unsigned short product = 0x1001) const {
        std::vector<std::string> names;
        for (const auto& port : listESPPorts(vendor, product, sys(), dev())) {
            EXPECT_EQ(port.calloutPath, port.ttyPath);
            EXPECT_TRUE(port.calloutPath.starts_with(dev() + "/"));
            names.push_back(port.calloutPath.substr(dev().size() + 1));
        }
        return names;
    }

  private:
    std::string base_;
};

const std::string kHub = "devices/pci0000:00/usb1";

TEST(PortDiscovery, ListsOnlyMatchingReachablePortsInNameOrder) {
    FakeSysfs tree;
    EXPECT_TRUE(tree.found().empty());
    EXPECT_TRUE(listESPPorts(0x303A, 0x1001, tree.sys() + "/missing", tree.dev()).empty());
    // Foreign and id-less devices, and a virtual console without a device link.
    tree.tty("tty0", "devices/virtual", false);
    tree.ids("devices/platform/serial8250", "", "");
    tree.tty("ttyS0", "devices/platform/serial8250");
    tree.ids(kHub + "/1-1", "1a86", "7523");
    tree.tty("ttyUSB0", kHub + "/1-1/1-1:1.0");
    // Matches, case-blind, and on the low sixteen bits only; another product id.
    tree.ids(kHub + "/1-2", "303a", "1001");
    tree.tty("ttyACM1", kHub + "/1-2/1-2:1.0");
    tree.ids(kHub + "/1-3", "303A", "1001");
    tree.tty("ttyACM0", kHub + "/1-3/1-3:1.0");
    tree.ids(kHub + "/1-4", "303a", "1002");
    tree.tty("ttyACM2", kHub + "/1-4/1-4:1.0");
    tree.ids(kHub + "/1-7", "1303a", "71001");
    tree.tty("ttyACM3", kHub + "/1-7/1-7:1.0");
    // Only the nearest folder with both ids decides: a matching hub above a foreign
    // device does not count; folders with one of the ids are passed over.
    tree.ids(kHub + "/1-5", "303a", "1001");
    tree.ids(kHub + "/1-5/1-5.1", "0403", "6001");
    tree.tty("ttyUSB1", kHub + "/1-5/1-5.1/1-5.1:1.0");
    tree.ids(kHub + "/1-6", "303a", "1001");
    tree.ids(kHub + "/1-6/1-6:1.0", "0403", "");
    tree.ids(kHub + "/1-6/1-6:1.0/port", "", "6001");
    tree.tty("ttyACM6", kHub + "/1-6/1-6:1.0/port");
    // A gadget port without a device link, and a tty without a device node.
    tree.ids(kHub + "/1-8", "303a", "1001");
    tree.tty("ttyGS0", kHub + "/1-8", false);
    tree.tty("ttyACM4", kHub + "/1-8/1-8:1.0", true, false);
    tree.tty("ttyACM5", kHub + "/1-8/1-8:1.2");

    EXPECT_EQ(tree.found(),
              (std::vector<std::string>{"ttyACM0", "ttyACM1", "ttyACM3", "ttyACM5", "ttyACM6"}));
    EXPECT_EQ(tree.found(0x303A, 0x1002), std::vector<std::string>{"ttyACM2"});
}

}  // namespace
