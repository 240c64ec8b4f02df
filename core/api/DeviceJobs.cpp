#include <algorithm>

#include "api/JobSteps.h"
#include "api/Jobs.h"
#include "esp/EspLoader.h"
#include "fluidnc/Console.h"
#include "fluidnc/Download.h"
#include "fluidnc/Drain.h"
#include "fluidnc/Transcript.h"
#include "fluidnc/XModem.h"
#include "image/Partitions.h"
#include "image/WholeFlash.h"
#include "serial/Clock.h"

namespace esp {
namespace {

constexpr int kSettleMs = 500;
constexpr int kVersionQueryMs = 2000;
constexpr int kHandshakeMs = 30000;
constexpr int kAckAfterUploadMs = 5000;
// Long enough to hear two turns of a chip that restarts over and over; a port that
// came back after its chip restarted has missed the start, which "$SS" replays.
constexpr int kStartupListenMs = 1500;
constexpr int kStartupReplayMs = 1500;

// One answered command first, so that the console sits idle at its prompt when
// the transfer command comes; the answer itself is not needed.
void settleConsole(SerialPort& port) {
    mono::sleepMs(kSettleMs);
    port.flush();
    fluidnc::queryVersion(port, kVersionQueryMs);
    port.flush();
}

}  // namespace

esp_error_t runUploadConfigJob(SerialPort& port, const uint8_t* data, size_t length,
                               esp_progress_cb progress) {
    settleConsole(port);
    if (!fluidnc::uploadConfig(port, data, length, progress, kHandshakeMs)) {
        return result::UploadFailed;
    }
    fluidnc::waitForOk(port, kAckAfterUploadMs);
    fluidnc::sendRestart(port);
    return result::Success;
}

std::optional<std::vector<uint8_t>> runDownloadFileJob(SerialPort& port, const std::string& name,
                                                       esp_progress_cb progress, esp_log_cb log,
                                                       fluidnc::DownloadFailure* failure) {
    settleConsole(port);
    return fluidnc::downloadFile(port, name, progress, log, failure);
}

std::optional<std::string> runQueryVersionJob(SerialPort& port) {
    mono::sleepMs(kSettleMs);
    return fluidnc::queryVersion(port, kVersionQueryMs);
}

// Each step is shortened so that the ones after it keep their time; the version
// query also keeps room for the drain before it, which a console that never stops
// printing fills to its bound.
StartupRecord runCheckStartupJob(SerialPort& port, int timeoutMs) {
    const mono::Deadline deadline(timeoutMs);
    const auto share = [&](int reserveMs, int mostMs) {
        return std::clamp(deadline.remainingMs() - reserveMs, 0, mostMs);
    };
    fluidnc::Transcript transcript;
    fluidnc::listen(
        port, share(kStartupReplayMs + fluidnc::kDrainLimitMs + kVersionQueryMs, kStartupListenMs),
        transcript);
    fluidnc::replayStartup(port, share(fluidnc::kDrainLimitMs + kVersionQueryMs, kStartupReplayMs),
                           transcript);
    StartupRecord record;
    record.version =
        fluidnc::queryVersion(port, share(fluidnc::kDrainLimitMs, kVersionQueryMs), &transcript);
    record.listened = true;
    record.portLost = port.hungUp();
    record.transcript = transcript.bytes();
    return record;
}

int runProbePartitionTableJob(SerialPort& port, const uint8_t* stub, size_t stubLen) {
    mono::sleepMs(kSettleMs);
    EspLoader loader(port, {});
    if (!enterAndSync(loader, JobLog(nullptr)) || !loader.uploadStub(stub, stubLen)) {
        return -1;
    }
    const auto table = loader.readFlash(image::kPartitionTableOffset, image::kPartitionTableSize);
    if (table.empty()) {
        return -1;
    }
    return isPartitionTableValid(table.data(), table.size()) ? 1 : 0;
}

bool isPartitionTableValid(const uint8_t* data, size_t size) {
    return image::inspectPartitionTable(data, size).applicationSize.has_value();
}

}  // namespace esp
