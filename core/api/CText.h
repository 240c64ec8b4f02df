#pragma once

#include <cstdlib>
#include <cstring>
#include <string>

namespace esp {

/// A malloc'd, NUL-terminated copy of `text` for a C caller to free, or null when
/// the allocation fails.
inline char* dupString(const std::string& text) {
    auto* copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy != nullptr) {
        std::memcpy(copy, text.c_str(), text.size() + 1);
    }
    return copy;
}

}  // namespace esp
