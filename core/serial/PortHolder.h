#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

/// A process that has a device node open.
struct PortHolder {
    pid_t pid = 0;
    std::string name;  ///< the process name, as /proc/<pid>/comm gives it
};

/// Finds a process other than the calling one that has the character device at
/// `path` open, by looking through the descriptors listed under /proc. Processes
/// whose descriptors cannot be read (another user's, without privileges) are
/// passed over, so an empty result does not prove that the port is free; neither
/// does it for a path that is no character device. Reads /proc only; thread-safe.
std::optional<PortHolder> findOtherPortHolder(const std::string& path);
