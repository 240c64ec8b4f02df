#include "serial/Sysfs.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace sysfs {

namespace {

// Inside paths start with '/'; openat needs them relative to the root's descriptor.
const char* relative(const std::string& inside) {
    return inside.c_str() + (inside.empty() ? 0 : 1);
}

std::string parentOf(const std::string& inside) {
    return inside.substr(0, inside.rfind('/'));
}

}  // namespace

Root::Root(const std::string& path) : fd_(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

Root::~Root() {
    if (fd_ >= 0) {
        ::close(fd_);
    }
}

// An absolute target would lead out of the tree; sysfs itself writes relative ones.
std::optional<std::string> Root::readLink(const std::string& inside) const {
    char target[4096];
    const ssize_t len = ::readlinkat(fd_, relative(inside), target, sizeof target);
    if (len <= 0 || static_cast<size_t>(len) == sizeof target || target[0] == '/') {
        return std::nullopt;
    }
    return std::string(target, static_cast<size_t>(len));
}

std::optional<std::string> Root::readAttribute(const std::string& inside) const {
    const int fd = ::openat(fd_, relative(inside), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return std::nullopt;
    }
    char text[4096];
    const ssize_t len = ::read(fd, text, sizeof text);
    ::close(fd);
    const std::string content(text, static_cast<size_t>(std::max<ssize_t>(len, 0)));
    return content.substr(0, content.find('\n'));
}

// The kernel lists a sysfs folder in hash order; sorting by name gives callers a
// stable order in which ttyACM0 comes before ttyACM1.
std::vector<std::string> Root::sortedEntries(const std::string& inside) const {
    std::vector<std::string> names;
    const int fd = ::openat(fd_, relative(inside), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
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

std::optional<std::string> Root::resolve(const std::string& inside) const {
    const auto link = readLink(inside);
    return link ? std::optional(joinLexically(parentOf(inside), *link)) : std::nullopt;
}

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

std::optional<std::string> ttyDeviceFolder(const Root& root, const std::string& name) {
    const std::string entry = "/class/tty/" + name;
    const auto deviceLink = root.readLink(entry + "/device");
    if (!deviceLink) {
        return std::nullopt;
    }
    return joinLexically(root.resolve(entry).value_or(entry), *deviceLink);
}

// Only the nearest folder carrying both ids decides, as interface folders between
// the tty and its USB device carry neither and hubs further up carry their own.
std::optional<UsbAncestor> nearestUsbAncestor(const Root& root, std::string folder) {
    const auto hex = [](const std::string& text) {
        return std::strtoul(text.c_str(), nullptr, 16);
    };
    while (!folder.empty()) {
        if (const auto vendor = root.readAttribute(folder + "/idVendor")) {
            if (const auto product = root.readAttribute(folder + "/idProduct")) {
                return UsbAncestor{folder, UsbIds{hex(*vendor), hex(*product)}};
            }
        }
        folder = parentOf(folder);
    }
    return std::nullopt;
}

std::string usbSerialNumber(const Root& root, const std::string& usbFolder) {
    const std::string text = root.readAttribute(usbFolder + "/serial").value_or(std::string());
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace sysfs
