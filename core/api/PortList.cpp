#include "api/PortList.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace esp {
namespace {

template <size_t N>
void copyField(char (&field)[N], const std::string& text) {
    const size_t length = std::min(text.size(), N - 1);
    std::memset(field, 0, N);
    std::memcpy(field, text.data(), length);
}

}  // namespace

size_t copyPortList(const std::vector<ESPPortInfo>& found, esp_port_info* ports, size_t capacity) {
    const size_t filled = ports == nullptr ? 0 : std::min(capacity, found.size());
    for (size_t i = 0; i < filled; ++i) {
        copyField(ports[i].path, found[i].calloutPath);
        copyField(ports[i].serial, found[i].serial);
    }
    return found.size();
}

}  // namespace esp
