#include "Descriptors.h"

#include <malloc.h>

#include <filesystem>
#include <iterator>
#include <system_error>

namespace reliability {

namespace fs = std::filesystem;

// The iterator's own descriptor is one of the entries; it is open at every count.
size_t openDescriptorCount() {
    return static_cast<size_t>(std::distance(fs::directory_iterator("/proc/self/fd"), {}));
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
