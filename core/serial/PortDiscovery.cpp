#include "serial/PortDiscovery.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

struct UsbDevice {
    unsigned long vendor = 0;
    unsigned long product = 0;
    std::string folder;
};

// The sysfs root held open, so that every lookup below walks only the path
// inside the tree. Paths inside it are written "/class/tty/..." here.
class SysfsRoot {
  public:
    explicit SysfsRoot(const std::string& path)
        : fd_(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}
    ~SysfsRoot() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    SysfsRoot(const SysfsRoot&) = delete;
    SysfsRoot& operator=(const SysfsRoot&) = delete;

    bool isOpen() const { return fd_ >= 0; }

    int open(const std::string& inside, int flags) const {
        return ::openat(fd_, inside.c_str() + 1, flags | O_CLOEXEC);
    }

    // Sysfs links are relative; an absolute one would lead out of the tree.
    std::optional<std::string> readLink(const std::string& inside) const {
        char target[4096];
        const ssize_t len = ::readlinkat(fd_, inside.c_str() + 1, target, sizeof target);
        if (len <= 0 || static_cast<size_t>(len) == sizeof target || target[0] == '/') {
            return std::nullopt;
        }
        return std::string(target, static_cast<size_t>(len));
    }

  private:
    int fd_;
};

// Folds "." and ".." of a relative link target onto `base` by text. Every link in
// sysfs runs along real folders, so this gives the folder the kernel would reach,
// for the price of no system call.
std::string joinLexically(std::string_view base, std::string_view relative) {
    std::string out(base);
    while (!relative.empty()) {
        const auto slash = relative.find('/');
        const auto part = relative.substr(0, slash);
        relative =
            slash == std::string_view::npos ? std::string_view{} : relative.substr(slash + 1);
        if (part.empty() || part == ".") {
            continue;
        }
        if (part == "..") {
            out.resize(std::min(out.size(), out.rfind('/')));
            continue;
        }
        out.push_back('/');
        out.append(part);
    }
    return out;
}

// Up to `limit` bytes of a sysfs attribute; none when the file is missing.
std::optional<std::string> readAttribute(const SysfsRoot& root, const std::string& inside,
                                         size_t limit) {
    const int fd = root.open(inside, O_RDONLY);
    if (fd < 0) {
        return std::nullopt;
    }
    std::string text(limit, '\0');
    const ssize_t len = ::read(fd, text.data(), limit);
    ::close(fd);
    text.resize(len > 0 ? static_cast<size_t>(len) : 0);
    return text;
}

// A missing file means the folder lacks that id; a present one that cannot be
// read or parsed counts as the id 0, like an unconvertible registry number.
std::optional<unsigned long> readHexFile(const SysfsRoot& root, const std::string& inside) {
    const auto text = readAttribute(root, inside, 31);
    if (!text) {
        return std::nullopt;
    }
    return std::strtoul(text->c_str(), nullptr, 16);
}

// The kernel ends the attribute with a line feed; some devices pad their serial
// number string descriptor with blanks.
std::string serialNumber(const SysfsRoot& root, const std::string& usbFolder) {
    constexpr size_t kDescriptorLimit = 512;  // 126 UTF-16 units as UTF-8, with room
    const std::string text =
        readAttribute(root, usbFolder + "/serial", kDescriptorLimit).value_or(std::string());
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// Only the nearest folder carrying both ids decides, as interface folders between
// the tty and its USB device carry neither and hubs further up carry their own.
std::optional<UsbDevice> nearestUsbDevice(const SysfsRoot& root, std::string folder) {
    while (!folder.empty()) {
        if (const auto vendor = readHexFile(root, folder + "/idVendor")) {
            if (const auto product = readHexFile(root, folder + "/idProduct")) {
                return UsbDevice{*vendor, *product, folder};
            }
        }
        folder.resize(folder.rfind('/'));
    }
    return std::nullopt;
}

// The physical folder of the device behind class/tty/<name>, or none when the
// entry has no device link (virtual consoles, pseudo-terminals).
std::optional<std::string> deviceFolder(const SysfsRoot& root, const std::string& name) {
    const std::string entry = "/class/tty/" + name;
    const auto deviceLink = root.readLink(entry + "/device");
    if (!deviceLink) {
        return std::nullopt;
    }
    const auto entryLink = root.readLink(entry);
    const std::string entryFolder = entryLink ? joinLexically("/class/tty", *entryLink) : entry;
    return joinLexically(entryFolder, *deviceLink);
}

// The kernel lists a sysfs folder in hash order; sorting by name gives callers a
// stable order in which ttyACM0 comes before ttyACM1.
std::vector<std::string> sortedEntries(const SysfsRoot& root, const std::string& inside) {
    std::vector<std::string> names;
    const int fd = root.open(inside, O_RDONLY | O_DIRECTORY);
    DIR* dir = fd >= 0 ? ::fdopendir(fd) : nullptr;
    if (dir == nullptr) {
        if (fd >= 0) {
            ::close(fd);
        }
        return names;
    }
    while (const dirent* entry = ::readdir(dir)) {
        if (entry->d_name[0] != '.') {
            names.emplace_back(entry->d_name);
        }
    }
    ::closedir(dir);
    std::sort(names.begin(), names.end());
    return names;
}

bool matches(const UsbDevice& usb, unsigned short vendorId, unsigned short productId) {
    return (usb.vendor & 0xFFFF) == vendorId && (usb.product & 0xFFFF) == productId;
}

}  // namespace

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId) {
    return listESPPorts(vendorId, productId, "/sys", "/dev");
}

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId,
                                      const std::string& sysfsRoot, const std::string& devRoot) {
    std::vector<ESPPortInfo> ports;
    const SysfsRoot root(sysfsRoot);
    if (!root.isOpen()) {
        return ports;
    }
    for (const auto& name : sortedEntries(root, "/class/tty")) {
        const auto folder = deviceFolder(root, name);
        if (!folder) {
            continue;
        }
        const auto usb = nearestUsbDevice(root, *folder);
        if (!usb || !matches(*usb, vendorId, productId)) {
            continue;
        }
        std::string node = devRoot + "/" + name;
        if (::access(node.c_str(), F_OK) != 0) {
            continue;
        }
        ports.push_back(ESPPortInfo{node, node, serialNumber(root, usb->folder)});
    }
    return ports;
}
