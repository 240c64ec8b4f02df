#pragma once

#include <cstddef>
#include <string>

/// What the process holds open, from /proc/self/fd, and what its heap holds.
namespace reliability {

/// The number of open descriptors of this process.
size_t openDescriptorCount();

/// How many of this process's descriptors refer to `path` (a device node).
size_t descriptorsOn(const std::string& path);

/// Bytes in use on the allocator's heap (mallinfo2's uordblks); 0 under an
/// allocator that does not report it.
size_t heapInUse();

}  // namespace reliability
