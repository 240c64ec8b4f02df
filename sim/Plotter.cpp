#include "sim/Plotter.h"

#include <algorithm>
#include <stdexcept>

#include "serial/Clock.h"
#include "sim/Framing.h"
#include "sim/PlotterImpl.h"

namespace sim {

namespace {

constexpr uint32_t kAppOffset = 0x10000;
constexpr size_t kDescriptorOffset = 32;  // after the image header and first segment header
constexpr uint32_t kDescriptorMagic = 0xABCD5432;
constexpr size_t kVersionOffset = 16;
constexpr size_t kVersionLength = 32;

bool isLoaderMode(Mode mode) {
    return mode == Mode::RomLoader || mode == Mode::Stub;
}

std::optional<std::string> reported(const Config& config, std::optional<std::string> own) {
    if (own && config.standIn && config.standIn->first == *own) {
        return config.standIn->second;
    }
    return own;
}

std::optional<std::string> appVersion(const std::vector<uint8_t>& flash) {
    const size_t descriptor = kAppOffset + kDescriptorOffset;
    if (flash.size() < descriptor + kVersionOffset + kVersionLength ||
        detail::le32(&flash[descriptor]) != kDescriptorMagic) {
        return std::nullopt;
    }
    const char* text = reinterpret_cast<const char*>(&flash[descriptor + kVersionOffset]);
    size_t length = 0;
    while (length < kVersionLength && text[length] != '\0') {
        ++length;
    }
    return std::string(text, length);
}

int ceilMs(int64_t ns) {
    return static_cast<int>((ns + 999'999) / 1'000'000);
}

}  // namespace

std::vector<uint8_t> Plotter::Impl::onHostBytes(const uint8_t* data, size_t len) {
    size_t pos = 0;
    while (pos < len && device.mode != Mode::Gone && !device.hung) {
        const Mode before = device.mode;
        pos += isLoaderMode(before) ? loader.consume(data + pos, len - pos)
                                    : console.consume(data + pos, len - pos);
        if (device.mode != before) {
            enter(before, device.mode);
        }
    }
    return device.outbox.takeReply();
}

void Plotter::Impl::enter(Mode from, Mode to) {
    if (!isLoaderMode(from) && isLoaderMode(to)) {
        loader.reset();
    } else if (isLoaderMode(from) && to == Mode::Console) {
        device.outbox.cancelScheduled();
        if (device.appFlashed) {
            device.reportedVersion = device.config.versionAfterUpdate
                                         ? device.config.versionAfterUpdate
                                         : reported(device.config, appVersion(device.flash));
        }
        // The chip ran from the host's reset on, however late a read notices it.
        const int64_t restartNs = std::min(mono::nowNs(), device.restartNs);
        console.restart(restartNs, device.loaderDoneNs + int64_t{device.config.bootMs} * 1'000'000,
                        true);
    }
}

std::vector<uint8_t> Plotter::Impl::takeDue(int64_t nowNs) {
    const Mode before = device.mode;
    std::vector<uint8_t> bytes = device.outbox.takeDue(nowNs);
    if (device.mode != before) {
        enter(before, device.mode);
    }
    return bytes;
}

std::vector<uint8_t> Plotter::Impl::onIdle(int timeoutMs) {
    const int64_t end = mono::nowNs() + int64_t{timeoutMs} * 1'000'000;
    for (;;) {
        const int64_t now = mono::nowNs();
        const std::optional<int64_t> due = device.outbox.nextDueNs();
        if (!due || *due > end) {
            mono::sleepMs(static_cast<int>((end - now) / 1'000'000));
            return {};
        }
        if (*due > now) {
            mono::sleepMs(ceilMs(*due - now));
        }
        std::vector<uint8_t> bytes = takeDue(mono::nowNs());
        if (!bytes.empty()) {
            return bytes;
        }
    }
}

Plotter::Plotter(Config config) : impl_(std::make_unique<Impl>(std::move(config))) {}
Plotter::~Plotter() = default;
Plotter::Plotter(Plotter&&) noexcept = default;
Plotter& Plotter::operator=(Plotter&&) noexcept = default;

std::vector<uint8_t> Plotter::onHostBytes(const uint8_t* data, size_t len) {
    return impl_->onHostBytes(data, len);
}

std::vector<uint8_t> Plotter::onIdle(int timeoutMs) {
    return impl_->onIdle(timeoutMs);
}

std::optional<int64_t> Plotter::nextOutputNs() const {
    return impl_->device.outbox.nextDueNs();
}

std::vector<uint8_t> Plotter::takeDueOutput(int64_t nowNs) {
    return impl_->takeDue(nowNs);
}

Plotter::Mode Plotter::mode() const {
    return impl_->device.mode;
}

bool Plotter::hung() const {
    return impl_->device.hung;
}

const std::vector<uint8_t>& Plotter::flash() const {
    return impl_->device.flash;
}

void Plotter::loadFlash(uint32_t address, const std::vector<uint8_t>& bytes) {
    std::vector<uint8_t>& flash = impl_->device.flash;
    if (uint64_t{address} + bytes.size() > flash.size()) {
        throw std::out_of_range("sim::Plotter::loadFlash: beyond the end of flash");
    }
    std::copy(bytes.begin(), bytes.end(), flash.begin() + address);
}

const std::map<uint32_t, std::vector<uint8_t>>& Plotter::ram() const {
    return impl_->device.ram;
}

std::optional<std::vector<uint8_t>> Plotter::storedConfig() const {
    const auto found = impl_->device.files.find("config.yaml");
    if (found == impl_->device.files.end()) {
        return std::nullopt;
    }
    return found->second;
}

const std::vector<std::string>& Plotter::transcript() const {
    return impl_->device.transcript;
}

std::string Plotter::versionReport() const {
    return impl_->device.reportedVersion.value_or(impl_->device.config.versionReport);
}

Startup Plotter::startup() const {
    return impl_->device.starts.current();
}

Config& Plotter::config() {
    return impl_->device.config;
}
const Config& Plotter::config() const {
    return impl_->device.config;
}

}  // namespace sim
