#include "Descriptors.h"

#include <malloc.h>

#include <filesystem>
#include <system_error>

namespace reliability {

namespace fs = std::filesystem;

size_t openDescriptorCount() {
    size_t count = 0;
    // The iterator's own descriptor is one of the entries; it is open at every count.
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        (void)entry;
        ++count;
    }
    return count;
}

size_t descriptorsOn(const std::string& path) {
    size_t count = 0;
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        count += fs::read_symlink(entry.path(), error) == path ? 1 : 0;
    }
    return count;
}

size_t heapInUse() {
    return mallinfo2().uordblks;
}

}  // namespace reliability
