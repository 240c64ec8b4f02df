#include "app/SimulatedPlotter.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "app/BuildConfig.h"
#include "app/FirmwareCheck.h"

namespace {

constexpr uint32_t kPartitionTableOffset = 0x8000;

// Milliseconds a real plotter takes for each step, shortened for a terminal and
// stretched so that the window shows every stage.
struct Pauses {
    int flashBegin, flashBlock, erase, md5, boot, console, handshake;
};
constexpr Pauses kBrisk{50, 5, 500, 20, 100, 5, 200};
constexpr Pauses kVisible{300, 25, 3000, 250, 400, 30, 500};

void setPace(sim::Config& config, SimulatedPace pace) {
    if (pace == SimulatedPace::instant) {
        return;
    }
    const Pauses& pauses = pace == SimulatedPace::brisk ? kBrisk : kVisible;
    config.flashBeginDelayMs = pauses.flashBegin;
    config.flashBlockDelayMs = pauses.flashBlock;
    config.eraseDelayMs = pauses.erase;
    config.md5DelayMs = pauses.md5;
    config.bootMs = pauses.boot;
    config.consoleDelayMs = pauses.console;
    config.handshakeFirstMs = pauses.handshake;
    config.handshakeIntervalMs = pauses.handshake;
}

}  // namespace

UsbSurvey simulatedSurvey(const std::string& path) {
    return [path] {
        esp_usb_serial_device plotter{};
        plotter.vendorId = ESP_PLOTTER_VENDOR_ID;
        plotter.productId = ESP_PLOTTER_PRODUCT_ID;
        std::strncpy(plotter.driver, "pty", sizeof plotter.driver - 1);
        std::strncpy(plotter.path, path.c_str(), sizeof plotter.path - 1);
        return std::vector<esp_usb_serial_device>{plotter};
    };
}

std::unique_ptr<sim::PtyPlotter> startSimulatedPlotter(const ResourceBundle& resources,
                                                       SimulatedPace pace, sim::Config config) {
    setPace(config, pace);
    // The bundled development image stands in for the bundled firmware, so a
    // simulated plotter updated with it reports the version the updater expects;
    // any other image (a catalogue's release) reports its own.
    if (const auto bundled = resources.read(QStringLiteral("firmware"), QStringLiteral("bin"))) {
        if (const auto& app = inspectFirmware(*bundled).app) {
            config.standIn = std::pair(app->version, BuildConfig::firmwareVersion().toStdString());
        }
    }
    auto plotter = std::make_unique<sim::PtyPlotter>(config);
    // The bootloader's header tells how large the flash is, so a snapshot of it can
    // be taken and written back.
    const std::pair<const char*, uint32_t> regions[] = {{"bootloader", 0x0},
                                                        {"partitions", kPartitionTableOffset}};
    for (const auto& [name, offset] : regions) {
        if (const auto image = resources.read(QString::fromLatin1(name), QStringLiteral("bin"))) {
            const std::vector<uint8_t> bytes(image->begin(), image->end());
            plotter->modify([&](sim::Plotter& p) { p.loadFlash(offset, bytes); });
        }
    }
    return plotter;
}
