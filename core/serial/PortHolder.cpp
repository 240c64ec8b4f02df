#include "serial/PortHolder.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>

namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};
using Dir = std::unique_ptr<DIR, DirCloser>;

std::optional<pid_t> pidOf(const char* entryName) {
    char* end = nullptr;
    const long pid = std::strtol(entryName, &end, 10);
    if (end == entryName || *end != '\0' || pid <= 0) {
        return std::nullopt;
    }
    return static_cast<pid_t>(pid);
}

// Only links into /dev are followed: stat on any other open file could wait on
// an unresponsive network file system.
bool isDeviceNode(const std::string& fdLink, dev_t device) {
    constexpr char kDev[] = "/dev/";
    char target[sizeof kDev - 1];
    if (::readlink(fdLink.c_str(), target, sizeof target) != sizeof target ||
        std::memcmp(target, kDev, sizeof target) != 0) {
        return false;
    }
    struct stat opened {};
    return ::stat(fdLink.c_str(), &opened) == 0 && S_ISCHR(opened.st_mode) &&
           opened.st_rdev == device;
}

bool holds(const std::string& processDir, dev_t device) {
    const std::string fdDir = processDir + "/fd";
    const Dir fds(::opendir(fdDir.c_str()));
    if (!fds) {
        return false;
    }
    while (const dirent* entry = ::readdir(fds.get())) {
        if (entry->d_name[0] != '.' && isDeviceNode(fdDir + "/" + entry->d_name, device)) {
            return true;
        }
    }
    return false;
}

std::string processName(const std::string& processDir) {
    std::ifstream comm(processDir + "/comm");
    std::string name;
    std::getline(comm, name);
    return name;
}

}  // namespace

std::optional<PortHolder> findOtherPortHolder(const std::string& path) {
    struct stat node {};
    if (::stat(path.c_str(), &node) != 0 || !S_ISCHR(node.st_mode)) {
        return std::nullopt;
    }
    const Dir proc(::opendir("/proc"));
    if (!proc) {
        return std::nullopt;
    }
    const pid_t self = ::getpid();
    while (const dirent* entry = ::readdir(proc.get())) {
        const auto pid = pidOf(entry->d_name);
        if (!pid || *pid == self) {
            continue;
        }
        const std::string processDir = std::string("/proc/") + entry->d_name;
        if (holds(processDir, node.st_rdev)) {
            return PortHolder{*pid, processName(processDir)};
        }
    }
    return std::nullopt;
}
