#pragma once

#include <malloc.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>

/// What the process holds open, from /proc/self/fd, and what its heap holds.
namespace fdcheck {

/// The number of open descriptors of this process (the count's own is one of them).
inline size_t openDescriptorCount() {
    return static_cast<size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

/// How many of this process's descriptors refer to `path` (a device node).
inline size_t descriptorsOn(const std::string& path) {
    size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        count += std::filesystem::read_symlink(entry.path(), error) == path ? 1 : 0;
    }
    return count;
}

/// Bytes in use on the allocator's heap; 0 under an allocator that does not say.
inline size_t heapInUse() {
    return mallinfo2().uordblks;
}

}  // namespace fdcheck
