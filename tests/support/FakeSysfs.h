#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

/// A fake sysfs tree and device folder in a fresh temporary folder, laid out as the
/// kernel does it: class/tty/<name> and bus/usb/devices/<name> link into devices/,
/// a tty's `device` link points at the folder it sits in, USB device folders carry
/// idVendor and idProduct, and an interface's `driver` link names its driver.
/// Removed on destruction.
struct FakeSysfs {
    FakeSysfs() {
        char pattern[] = "/tmp/tfu-sysfs-XXXXXX";
        base = ::mkdtemp(pattern);
        sys = base + "/sys";
        dev = base + "/dev";
        std::filesystem::create_directories(sys + "/class/tty");
        std::filesystem::create_directories(sys + "/bus/usb/devices");
        std::filesystem::create_directories(dev);
    }
    ~FakeSysfs() { std::filesystem::remove_all(base); }
    FakeSysfs(const FakeSysfs&) = delete;
    FakeSysfs& operator=(const FakeSysfs&) = delete;

    /// Writes `text` and a line end into devices/<folder>/<file>, making the folder.
    void attribute(const std::string& folder, const std::string& file, const std::string& text) {
        std::filesystem::create_directories(sys + "/devices/" + folder);
        std::ofstream(sys + "/devices/" + folder + "/" + file) << text << "\n";
    }

    /// A folder below devices/ with its id files ("" leaves one out); listed under
    /// bus/usb/devices when `listed`.
    void ids(const std::string& folder, const std::string& vendor, const std::string& product,
             bool listed = false) {
        std::filesystem::create_directories(sys + "/devices/" + folder);
        for (const auto& [file, id] : {std::pair{"idVendor", vendor}, {"idProduct", product}}) {
            if (!id.empty()) {
                attribute(folder, file, id);
            }
        }
        if (listed) {
            busEntry(folder);
        }
    }

    /// A USB interface folder, listed under bus/usb/devices, bound to `driver` ("": none).
    void interface(const std::string& folder, const std::string& driver) {
        std::filesystem::create_directories(sys + "/devices/" + folder);
        busEntry(folder);
        if (!driver.empty()) {
            std::filesystem::create_directory_symlink(up(folder) + "../bus/usb/drivers/" + driver,
                                                      sys + "/devices/" + folder + "/driver");
        }
    }

    /// A tty below `folder`; virtual consoles and gadget ports have no device link.
    void tty(const std::string& name, const std::string& folder, bool link = true,
             bool node = true) {
        const std::string own = "devices/" + folder + "/tty/" + name;
        std::filesystem::create_directories(sys + "/" + own);
        std::filesystem::create_directory_symlink("../../" + own, sys + "/class/tty/" + name);
        if (link) {
            const std::string leaf = folder.substr(folder.rfind('/') + 1);
            std::filesystem::create_directory_symlink("../../../" + leaf,
                                                      sys + "/" + own + "/device");
        }
        if (node) {
            std::ofstream(dev + "/" + name);
        }
    }

    std::string base, sys, dev;

  private:
    // "../" once for every folder of devices/<folder>, which leads back to the root.
    static std::string up(const std::string& folder) {
        std::string path = "../";
        for (const char c : folder) {
            path += c == '/' ? "../" : "";
        }
        return path;
    }

    void busEntry(const std::string& folder) {
        const std::string leaf = folder.substr(folder.rfind('/') + 1);
        std::filesystem::create_directory_symlink("../../../devices/" + folder,
                                                  sys + "/bus/usb/devices/" + leaf);
    }
};
