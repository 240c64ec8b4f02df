#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Read-only walks through a sysfs tree whose root folder callers may replace, so
/// that tests run on a fake tree. Paths inside the tree are written from its root
/// ("/class/tty/ttyACM0"); every lookup stays inside it. Stateless apart from the
/// root's descriptor; each `Root` is used by one thread at a time.
namespace sysfs {

/// The sysfs root, held open for the life of the object.
class Root {
  public:
    /// Opens `path` (normally "/sys"); `isOpen` is false when it is no folder.
    explicit Root(const std::string& path);
    ~Root();
    Root(const Root&) = delete;
    Root& operator=(const Root&) = delete;

    bool isOpen() const { return fd_ >= 0; }

    /// The target of the relative link `inside`, or none (no link, an absolute one).
    std::optional<std::string> readLink(const std::string& inside) const;

    /// The first line of the attribute file `inside` without its line end: none when
    /// the file is missing, empty when it cannot be read.
    std::optional<std::string> readAttribute(const std::string& inside) const;

    /// The names in the folder `inside`, dot entries left out, sorted.
    std::vector<std::string> sortedEntries(const std::string& inside) const;

    /// The folder that the link `inside` leads to, written from the root, or none.
    std::optional<std::string> resolve(const std::string& inside) const;

  private:
    int fd_;
};

/// Vendor and product id of a USB device, as its idVendor and idProduct files give them.
struct UsbIds {
    unsigned long vendor = 0;
    unsigned long product = 0;
};

/// The nearest folder at or above `folder` that carries both idVendor and idProduct.
struct UsbAncestor {
    std::string folder;
    UsbIds ids;
};

/// `relative` joined onto `base` with "." and ".." folded by text, which gives the
/// folder the kernel would reach since sysfs links run along real folders.
std::string joinLexically(std::string_view base, std::string_view relative);

/// The physical folder of the device behind class/tty/<name>, or none when the entry
/// has no device link (virtual consoles, pseudo-terminals).
std::optional<std::string> ttyDeviceFolder(const Root& root, const std::string& name);

/// Walks up from `folder` to the first folder carrying both ids; ids that are present
/// but unreadable count as 0. None when no folder up to the root carries both.
std::optional<UsbAncestor> nearestUsbAncestor(const Root& root, std::string folder);

/// The serial number of the USB device in `usbFolder`, without the blanks some
/// devices pad it with; empty when it has none.
std::string usbSerialNumber(const Root& root, const std::string& usbFolder);

}  // namespace sysfs
