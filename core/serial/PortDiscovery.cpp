#include "serial/PortDiscovery.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace {

struct UsbIds {
    unsigned long vendor = 0;
    unsigned long product = 0;
};

// Folds "." and ".." of `relative` onto `base` by text. Every link in sysfs is
// relative and runs along real folders, so this gives the folder the kernel would
// reach, for the price of no system call.
std::string joinLexically(std::string_view base, std::string_view relative) {
    std::string out(base);
    if (!relative.empty() && relative.front() == '/') {
        out.clear();
    }
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

bool isBelow(const std::string& path, const std::string& root) {
    return path.size() > root.size() && path.compare(0, root.size(), root) == 0 &&
           path[root.size()] == '/';
}

std::optional<std::string> readLink(const std::string& path) {
    char target[4096];
    const ssize_t len = ::readlink(path.c_str(), target, sizeof target);
    if (len <= 0 || static_cast<size_t>(len) == sizeof target) {
        return std::nullopt;
    }
    return std::string(target, static_cast<size_t>(len));
}

// A missing file means the folder lacks that id; a present one that cannot be
// read or parsed counts as the id 0, like an unconvertible registry number.
std::optional<unsigned long> readHexFile(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return std::nullopt;
    }
    char text[32] = {};
    const ssize_t len = ::read(fd, text, sizeof text - 1);
    ::close(fd);
    return len > 0 ? std::strtoul(text, nullptr, 16) : 0UL;
}

// Only the nearest folder carrying both ids decides, as interface folders between
// the tty and its USB device carry neither and hubs further up carry their own.
std::optional<UsbIds> nearestUsbIds(std::string folder, const std::string& root) {
    while (isBelow(folder, root)) {
        if (const auto vendor = readHexFile(folder + "/idVendor")) {
            if (const auto product = readHexFile(folder + "/idProduct")) {
                return UsbIds{*vendor, *product};
            }
        }
        folder.resize(folder.rfind('/'));
    }
    return std::nullopt;
}

// The physical folder of the device behind class/tty/<name>, or none when the
// entry has no device link (virtual consoles, pseudo-terminals).
std::optional<std::string> deviceFolder(const std::string& root, const std::string& name) {
    const std::string classFolder = root + "/class/tty";
    const std::string entry = classFolder + "/" + name;
    const auto deviceLink = readLink(entry + "/device");
    if (!deviceLink) {
        return std::nullopt;
    }
    const auto entryLink = readLink(entry);
    const std::string entryFolder = entryLink ? joinLexically(classFolder, *entryLink) : entry;
    return joinLexically(entryFolder, *deviceLink);
}

// The kernel lists a sysfs folder in hash order; sorting by name gives callers a
// stable order in which ttyACM0 comes before ttyACM1.
std::vector<std::string> sortedEntries(const std::string& folder) {
    std::vector<std::string> names;
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) {
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

bool matches(const UsbIds& ids, unsigned short vendorId, unsigned short productId) {
    return (ids.vendor & 0xFFFF) == vendorId && (ids.product & 0xFFFF) == productId;
}

}  // namespace

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId) {
    return listESPPorts(vendorId, productId, "/sys", "/dev");
}

std::vector<ESPPortInfo> listESPPorts(unsigned short vendorId, unsigned short productId,
                                      const std::string& sysfsRoot, const std::string& devRoot) {
    std::vector<ESPPortInfo> ports;
    std::string root = sysfsRoot;
    while (!root.empty() && root.back() == '/') {
        root.pop_back();
    }
    for (const auto& name : sortedEntries(root + "/class/tty")) {
        const auto folder = deviceFolder(root, name);
        if (!folder) {
            continue;
        }
        const auto ids = nearestUsbIds(*folder, root);
        if (!ids || !matches(*ids, vendorId, productId)) {
            continue;
        }
        std::string node = devRoot + "/" + name;
        if (::access(node.c_str(), F_OK) != 0) {
            continue;
        }
        ports.push_back(ESPPortInfo{node, node});
    }
    return ports;
}
