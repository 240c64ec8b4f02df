#include "serial/PortCheck.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

// The reentrant account lookups want a buffer; sysconf may answer "no limit".
constexpr size_t kAccountBufferSize = 16384;

struct Account {
    passwd entry{};
    std::vector<char> buffer = std::vector<char>(kAccountBufferSize);
    bool found = false;

    explicit Account(uid_t uid) {
        passwd* result = nullptr;
        found = ::getpwuid_r(uid, &entry, buffer.data(), buffer.size(), &result) == 0 &&
                result != nullptr;
    }
};

std::string userName(uid_t uid) {
    const Account account(uid);
    return account.found ? account.entry.pw_name : std::to_string(uid);
}

std::string groupName(gid_t gid) {
    group entry{};
    group* result = nullptr;
    std::vector<char> buffer(kAccountBufferSize);
    const bool found =
        ::getgrgid_r(gid, &entry, buffer.data(), buffer.size(), &result) == 0 && result != nullptr;
    return found ? entry.gr_name : std::to_string(gid);
}

// What a new login would give the user: the primary group and every group that
// lists them, through the system's account sources (files, LDAP, ...).
bool accountHasGroup(uid_t uid, gid_t gid) {
    const Account account(uid);
    if (!account.found) {
        return false;
    }
    std::vector<gid_t> groups(64);
    int count = static_cast<int>(groups.size());
    if (::getgrouplist(account.entry.pw_name, account.entry.pw_gid, groups.data(), &count) < 0) {
        groups.resize(static_cast<size_t>(count));
        if (::getgrouplist(account.entry.pw_name, account.entry.pw_gid, groups.data(), &count) <
            0) {
            return false;
        }
    }
    groups.resize(static_cast<size_t>(count));
    return std::find(groups.begin(), groups.end(), gid) != groups.end();
}

bool processHasGroup(gid_t gid) {
    if (::getgid() == gid || ::getegid() == gid) {
        return true;
    }
    std::vector<gid_t> groups(static_cast<size_t>(std::max(::getgroups(0, nullptr), 0)));
    const int count = ::getgroups(static_cast<int>(groups.size()), groups.data());
    groups.resize(static_cast<size_t>(std::max(count, 0)));
    return std::find(groups.begin(), groups.end(), gid) != groups.end();
}

void describeAccess(const struct stat& node, PortCheck& check) {
    check.owner = userName(node.st_uid);
    check.group = groupName(node.st_gid);
    check.mode = node.st_mode & 07777;
    check.user = userName(::getuid());
    check.userInGroup = accountHasGroup(::getuid(), node.st_gid);
    check.groupInEffect = processHasGroup(node.st_gid);
}

bool inMinorRange(const std::string& range, unsigned minor) {
    char* end = nullptr;
    const unsigned long first = std::strtoul(range.c_str(), &end, 10);
    const unsigned long last = *end == '-' ? std::strtoul(end + 1, nullptr, 10) : first;
    return minor >= first && minor <= last;
}

// Every tty driver lists its major and minor range here with its type. A device
// outside the table belongs to a driver that is no terminal (/dev/null is mem's);
// /dev/tty, consoles and the pty master are terminals but no serial line. Without
// the table nothing can be told by looking, and the node counts as serial.
bool isSerialLine(dev_t device) {
    std::ifstream table("/proc/tty/drivers");
    if (!table) {
        return true;
    }
    std::string line;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        std::string name, node, range, type;
        unsigned driverMajor = 0;
        if (fields >> name >> node >> driverMajor >> range >> type &&
            driverMajor == major(device) && inMinorRange(range, minor(device))) {
            return type == "serial" || type == "pty:slave";
        }
    }
    return false;
}

PortProblem problemFor(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return PortProblem::Missing;
        case ENOTTY:
            return PortProblem::NotSerial;
        case EACCES:
        case EPERM:
        case EROFS:
            return PortProblem::Permission;
        case EBUSY:
            return PortProblem::Held;
        default:
            return PortProblem::Unplugged;
    }
}

PortCheck& failed(PortCheck& check, PortProblem problem, int error) {
    check.problem = problem;
    check.error = error;
    return check;
}

// A terminal held exclusively by another user's program refuses the open with
// EBUSY; a USB node left behind by a pulled cable, or a serial port without its
// hardware, with EIO, ENXIO or ENODEV.
void openBriefly(const std::string& path, PortCheck& check) {
    const int fd = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        failed(check, problemFor(errno), errno);
        return;
    }
    termios attributes{};
    const bool terminal = ::tcgetattr(fd, &attributes) == 0;
    const int error = errno;
    ::close(fd);
    if (!terminal) {
        failed(check, problemFor(error), error);
    }
}

}  // namespace

PortCheck checkPort(const std::string& path, PortProbe probe) {
    PortCheck check;
    struct stat node {};
    if (::stat(path.c_str(), &node) != 0) {
        const int error = errno;
        return failed(check, error == EACCES ? PortProblem::Permission : PortProblem::Missing,
                      error);
    }
    describeAccess(node, check);
    if (!S_ISCHR(node.st_mode) || !isSerialLine(node.st_rdev)) {
        return failed(check, PortProblem::NotSerial, ENOTTY);
    }
    if (::access(path.c_str(), R_OK | W_OK) != 0) {
        const int error = errno;
        return failed(check, problemFor(error), error);
    }
    check.holder = findOtherPortHolder(path);
    if (check.holder) {
        return failed(check, PortProblem::Held, EBUSY);
    }
    if (probe == PortProbe::Open) {
        openBriefly(path, check);
    }
    return check;
}
