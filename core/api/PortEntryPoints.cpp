#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>

#include "api/esp_flasher.h"
#include "serial/PortCheck.h"
#include "serial/UsbSurvey.h"

namespace {

template <size_t N>
void copyText(char (&field)[N], const std::string& text) {
    const size_t length = std::min(text.size(), N - 1);
    std::memcpy(field, text.data(), length);
    field[length] = '\0';
}

void fill(esp_port_check& out, const PortCheck& check) {
    out = esp_port_check{};
    out.problem = static_cast<int>(check.problem);
    out.error = check.error;
    copyText(out.owner, check.owner);
    copyText(out.group, check.group);
    out.mode = check.mode;
    copyText(out.user, check.user);
    out.userInGroup = check.userInGroup ? 1 : 0;
    out.groupInEffect = check.groupInEffect ? 1 : 0;
    if (check.holder) {
        out.holderPid = check.holder->pid;
        copyText(out.holderName, check.holder->name);
    }
}

void fill(esp_usb_serial_device& out, const UsbSerialDevice& device) {
    out = esp_usb_serial_device{};
    out.vendorId = device.vendorId;
    out.productId = device.productId;
    copyText(out.product, device.product);
    copyText(out.serial, device.serial);
    copyText(out.driver, device.driver);
    copyText(out.path, device.path);
}

}  // namespace

static_assert(ESP_PORT_OK == static_cast<int>(PortProblem::Ok) &&
              ESP_PORT_MISSING == static_cast<int>(PortProblem::Missing) &&
              ESP_PORT_NOT_SERIAL == static_cast<int>(PortProblem::NotSerial) &&
              ESP_PORT_PERMISSION == static_cast<int>(PortProblem::Permission) &&
              ESP_PORT_HELD == static_cast<int>(PortProblem::Held) &&
              ESP_PORT_UNPLUGGED == static_cast<int>(PortProblem::Unplugged));

extern "C" {

int esp_check_port(const char* port, int probe, esp_port_check* out) {
    if (out == nullptr) {
        return -1;
    }
    if (port == nullptr) {
        *out = esp_port_check{};
        out->problem = ESP_PORT_MISSING;
        out->error = EINVAL;
        return out->problem;
    }
    fill(*out, checkPort(port, probe == ESP_PROBE_OPEN ? PortProbe::Open : PortProbe::Look));
    return out->problem;
}

size_t esp_survey_usb_serial(const char* sysfsRoot, const char* devRoot,
                             esp_usb_serial_device* devices, size_t capacity) {
    const auto found = surveyUsbSerial({ESP_PLOTTER_VENDOR_ID, ESP_PLOTTER_PRODUCT_ID},
                                       sysfsRoot != nullptr ? sysfsRoot : "/sys",
                                       devRoot != nullptr ? devRoot : "/dev");
    for (size_t i = 0; devices != nullptr && i < found.size() && i < capacity; ++i) {
        fill(devices[i], found[i]);
    }
    return found.size();
}

}  // extern "C"
