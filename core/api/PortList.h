#pragma once

#include <cstddef>
#include <vector>

#include "api/esp_flasher.h"
#include "serial/PortDiscovery.h"

namespace esp {

/// The body of `esp_list_devices` over a list already made (tests make it from a
/// fake sysfs tree): copies the first `capacity` ports of `found` into `ports`,
/// each text cut to its field and always NUL-terminated, and returns
/// `found.size()`. `ports` is borrowed and may be null when `capacity` is 0.
size_t copyPortList(const std::vector<ESPPortInfo>& found, esp_port_info* ports, size_t capacity);

}  // namespace esp
