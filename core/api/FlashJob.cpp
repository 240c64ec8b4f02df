#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "api/JobSteps.h"
#include "api/Jobs.h"
#include "esp/EspLoader.h"
#include "fluidnc/Transcript.h"
#include "serial/Clock.h"

namespace esp {
namespace {

struct FlashEntry {
    uint32_t address;
    const uint8_t* data;
    size_t size;
};

std::vector<FlashEntry> buildPlan(const FlashRequest& request) {
    std::vector<FlashEntry> plan;
    if (request.fullFlash) {
        plan.push_back({0x0, request.bootloader, request.bootloaderLen});
        plan.push_back({0x8000, request.partitions, request.partitionsLen});
    }
    if (request.bootApp != nullptr && request.bootAppLen != 0) {
        plan.push_back({0xE000, request.bootApp, request.bootAppLen});
    }
    plan.push_back({0x10000, request.firmware, request.firmwareLen});
    return plan;
}

void logPlan(const std::vector<FlashEntry>& plan, bool fullFlash, const JobLog& log) {
    log("Flash plan: " + std::to_string(plan.size()) + " entries" +
        (fullFlash ? " (FULL)" : " (app only)"));
    for (const auto& entry : plan) {
        char line[64];
        std::snprintf(line, sizeof line, "  0x%05X: %zu bytes", entry.address, entry.size);
        log(line);
    }
}

esp_error_t writePlan(EspLoader& loader, const std::vector<FlashEntry>& plan,
                      esp_progress_cb progress) {
    size_t totalBytes = 0;
    for (const auto& entry : plan) {
        totalBytes += entry.size;
    }
    const auto total = static_cast<float>(totalBytes);
    float done = 0.0f;
    for (const auto& entry : plan) {
        const auto size = static_cast<float>(entry.size);
        const float start =
            total > 0.0f ? ESP_PROGRESS_REGIONS_START + ESP_PROGRESS_REGIONS_SPAN * done / total
                         : ESP_PROGRESS_REGIONS_START;
        const float span = total > 0.0f ? ESP_PROGRESS_REGIONS_SPAN * size / total : 0.0f;
        if (!loader.flashImage(entry.address, entry.data, entry.size, progress, start, span)) {
            return result::WriteFailed;
        }
        if (!loader.verifyFlash(entry.address, entry.size, entry.data)) {
            return result::VerifyFailed;
        }
        done += size;
    }
    return result::Success;
}

void confirmVersion(SerialPort& port, const std::string& expected, const JobLog& log,
                    StartupRecord* startup) {
    log("Verifying firmware version...");
    std::optional<fluidnc::Transcript> transcript;
    if (startup != nullptr) {
        transcript.emplace();
    }
    const std::optional<std::string> version =
        awaitVersion(port, transcript ? &*transcript : nullptr);
    const bool confirmed = version && version->find(expected) != std::string::npos;
    if (version) {
        log("Device running firmware " + *version);
        if (!confirmed) {
            log("WARNING: Expected firmware " + expected + " but device reports " + *version);
        }
    }
    if (!confirmed) {
        log("Could not confirm firmware version after update.");
    }
    if (startup != nullptr) {
        *startup = {true, port.hungUp(), version, transcript->bytes()};
    }
}

esp_error_t prepareFlash(EspLoader& loader, const FlashRequest& request, esp_progress_cb progress,
                         const JobLog& log) {
    if (const auto code = startFlasher(loader, request.stub, request.stubLen, log); code != 0) {
        return code;
    }
    if (request.eraseAll) {
        if (progress != nullptr) {
            progress(0.08f, "Erasing flash...");
        }
        log("Erasing entire flash...");
        if (!loader.eraseFlash()) {
            log("Flash erase failed");
            return result::WriteFailed;
        }
        log("Flash erased");
    }
    return result::Success;
}

}  // namespace

esp_error_t runFlashJob(SerialPort& port, const FlashRequest& request, esp_progress_cb progress,
                        esp_log_cb log, StartupRecord* startup) {
    const JobLog jobLog(log);
    // Opening the node raises DTR and RTS, which the chip's USB serial unit may
    // take as a reset; let it settle before the first modem-line change.
    mono::sleepMs(500);
    EspLoader loader(port, jobLog.forLoader());
    if (const auto code = prepareFlash(loader, request, progress, jobLog); code != 0) {
        return code;
    }
    const auto plan = buildPlan(request);
    logPlan(plan, request.fullFlash, jobLog);
    if (const auto code = writePlan(loader, plan, progress); code != 0) {
        return code;
    }
    loader.flashEnd();
    loader.hardReset();
    if (request.expectedVersion != nullptr && request.expectedVersion[0] != '\0') {
        confirmVersion(port, request.expectedVersion, jobLog, startup);
    }
    return result::Success;
}

}  // namespace esp
