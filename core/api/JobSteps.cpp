#include "api/JobSteps.h"

#include <cstdio>

#include "fluidnc/Console.h"
#include "serial/Clock.h"

namespace esp {
namespace {

constexpr uint32_t kChipIdS3 = 9;
constexpr int kBootloaderEntries = 3;
constexpr int kSyncAttempts = 10;
constexpr int kVersionQueries = 3;
constexpr int kVersionQueryMs = 2000;
constexpr int kVersionRetryPauseMs = 1000;
constexpr int kBootWaitMs = 2000;

bool identifyChip(EspLoader& loader, const JobLog& log) {
    const uint32_t chipId = loader.readChipId();
    char line[32];
    std::snprintf(line, sizeof line, "Chip ID: 0x%X", chipId);
    log(line);
    if (chipId != kChipIdS3) {
        log("Wrong chip! Expected ESP32-S3 (0x0009)");
        return false;
    }
    log("Chip: ESP32-S3");
    return true;
}

}  // namespace

bool enterAndSync(EspLoader& loader, const JobLog& log) {
    for (int attempt = 1; attempt <= kBootloaderEntries; ++attempt) {
        if (attempt > 1) {
            log("Retrying bootloader entry (attempt " + std::to_string(attempt) + ")...");
        }
        loader.enterBootloader();
        log("Syncing...");
        if (loader.sync(kSyncAttempts)) {
            return true;
        }
    }
    return false;
}

esp_error_t startFlasher(EspLoader& loader, const uint8_t* stub, size_t stubLen,
                         const JobLog& log) {
    log("Entering bootloader...");
    if (!enterAndSync(loader, log)) {
        log("Sync failed after all retries");
        return result::NoSync;
    }
    log("Sync OK");
    if (!identifyChip(loader, log)) {
        return result::ChipRefused;
    }
    if (!loader.checkSecurityFuses()) {
        log("ABORTED: Device has secure boot or flash encryption enabled. Flashing plaintext "
            "firmware would brick it.");
        return result::ChipRefused;
    }
    log("Uploading flash stub (" + std::to_string(stubLen) + " bytes)...");
    if (!loader.uploadStub(stub, stubLen)) {
        log("Stub upload failed");
        return result::StubFailed;
    }
    log("Stub running");
    log("Attaching SPI flash...");
    loader.attachFlash();
    return result::Success;
}

// The chip has just been reset into its firmware, which needs about two seconds
// before its console answers. What it prints meanwhile tells how it started, so
// with a transcript that wait reads instead of sleeping.
std::optional<std::string> awaitVersion(SerialPort& port, fluidnc::Transcript* keep) {
    if (keep != nullptr) {
        fluidnc::listen(port, kBootWaitMs, *keep);
    } else {
        mono::sleepMs(kBootWaitMs);
    }
    std::optional<std::string> version;
    for (int attempt = 1; attempt <= kVersionQueries && !version; ++attempt) {
        if (attempt > 1) {
            mono::sleepMs(kVersionRetryPauseMs);
        }
        version = fluidnc::queryVersion(port, kVersionQueryMs, keep);
    }
    return version;
}

StartupRecord hearRestart(SerialPort& port) {
    fluidnc::Transcript transcript;
    StartupRecord record;
    record.version = awaitVersion(port, &transcript);
    record.listened = true;
    record.portLost = port.hungUp();
    record.transcript = transcript.bytes();
    return record;
}

}  // namespace esp
