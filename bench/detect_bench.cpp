// Cost of one device poll: esp_detect_device runs four times a second on the GUI
// thread; and of the Connection Check's pass, once a second. The fake tree has 64 tty entries
// shaped like a desktop's: virtual consoles without a device link, platform UARTs without USB ids,
// foreign USB adapters behind a hub, and two matching controllers.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "api/esp_flasher.h"
#include "serial/PortDiscovery.h"

namespace {

namespace fs = std::filesystem;

class FakeTree {
  public:
    FakeTree() {
        char pattern[] = "/tmp/tfu-detect-XXXXXX";
        base_ = ::mkdtemp(pattern);
        fs::create_directories(sys() + "/class/tty");
        fs::create_directories(dev());
        for (int i = 0; i < 40; ++i) {
            linkless("tty" + std::to_string(i));
        }
        for (int i = 0; i < 16; ++i) {
            tty("ttyS" + std::to_string(i), "devices/platform/serial8250", "", "");
        }
        for (int i = 0; i < 6; ++i) {
            const std::string hub = "devices/pci0000:00/usb1/1-" + std::to_string(i + 1);
            tty("ttyUSB" + std::to_string(i), hub + "/1-" + std::to_string(i + 1) + ".1", "0403",
                "6001");
        }
        tty("ttyACM0", "devices/pci0000:00/usb2/2-1", "303a", "1001");
        tty("ttyACM1", "devices/pci0000:00/usb2/2-2", "303a", "1001");
    }
    ~FakeTree() { fs::remove_all(base_); }

    std::string sys() const { return base_ + "/sys"; }
    std::string dev() const { return base_ + "/dev"; }

  private:
    void linkless(const std::string& name) {
        fs::create_directories(sys() + "/devices/virtual/tty/" + name);
        fs::create_directory_symlink("../../devices/virtual/tty/" + name,
                                     sys() + "/class/tty/" + name);
    }

    void tty(const std::string& name, const std::string& usbDevice, const std::string& vendor,
             const std::string& product) {
        const std::string usbInterface =
            usbDevice + "/" + usbDevice.substr(usbDevice.rfind('/') + 1) + ":1.0";
        const std::string folder = usbInterface + "/tty/" + name;
        fs::create_directories(sys() + "/" + folder);
        if (!vendor.empty()) {
            std::ofstream(sys() + "/" + usbDevice + "/idVendor") << vendor << "\n";
            std::ofstream(sys() + "/" + usbDevice + "/idProduct") << product << "\n";
        }
        const std::string leaf = usbInterface.substr(usbInterface.rfind('/') + 1);
        fs::create_directory_symlink("../../../" + leaf, sys() + "/" + folder + "/device");
        fs::create_directory_symlink("../../" + folder, sys() + "/class/tty/" + name);
        std::ofstream(dev() + "/" + name);
    }

    std::string base_;
};

// The body of esp_detect_device under another sysfs root.
char* detectUnder(const FakeTree& tree) {
    const auto ports = listESPPorts(0x303A, 0x1001, tree.sys(), tree.dev());
    return ports.empty() ? nullptr : ::strdup(ports.front().calloutPath.c_str());
}

void BM_DetectFakeTree64(benchmark::State& state) {
    const FakeTree tree;
    for (auto _ : state) {
        char* path = detectUnder(tree);
        if (path == nullptr) {
            state.SkipWithError("device not found");
            break;
        }
        benchmark::DoNotOptimize(path);
        std::free(path);
    }
}
BENCHMARK(BM_DetectFakeTree64)->Unit(benchmark::kMicrosecond);

// The entry point itself on this machine's own /sys, for comparison.
void BM_DetectDeviceOnThisMachine(benchmark::State& state) {
    for (auto _ : state) {
        char* path = esp_detect_device(0x303A, 0x1001);
        benchmark::DoNotOptimize(path);
        std::free(path);
    }
}
BENCHMARK(BM_DetectDeviceOnThisMachine)->Unit(benchmark::kMicrosecond);

// The Connection Check's two library calls, which it repeats once a second on the
// GUI thread: the survey of this machine's USB serial devices, and the look at a
// port (stat, the account database, /proc/tty/drivers and the scan of every
// process's descriptors for a holder) on a free pseudo-terminal.
void BM_SurveyUsbSerialOnThisMachine(benchmark::State& state) {
    esp_usb_serial_device devices[16];
    for (auto _ : state) {
        benchmark::DoNotOptimize(esp_survey_usb_serial(nullptr, nullptr, devices, 16));
    }
}
BENCHMARK(BM_SurveyUsbSerialOnThisMachine)->Unit(benchmark::kMicrosecond);

void BM_CheckPortLook(benchmark::State& state) {
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0) {
        state.SkipWithError("no pseudo-terminal");
        return;
    }
    const std::string port = ::ptsname(master);
    esp_port_check check{};
    for (auto _ : state) {
        if (esp_check_port(port.c_str(), ESP_PROBE_LOOK, &check) != ESP_PORT_OK) {
            state.SkipWithError("the free pseudo-terminal was found unusable");
            break;
        }
    }
    ::close(master);
}
BENCHMARK(BM_CheckPortLook)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
