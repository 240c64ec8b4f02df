#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "api/JobSteps.h"
#include "api/Jobs.h"
#include "image/WholeFlash.h"
#include "serial/Clock.h"

namespace esp {
namespace {

constexpr int kSettleMs = 500;

SnapshotResult readFailure(ReadEnd end) {
    switch (end) {
        case ReadEnd::done:
            break;
        case ReadEnd::refused:
            return {result::ReadFailed, ESP_SNAPSHOT_READ_REFUSED};
        case ReadEnd::noData:
            return {result::TimedOut, ESP_SNAPSHOT_NO_DATA};
        case ReadEnd::broken:
            return {result::ReadFailed, ESP_SNAPSHOT_BROKEN};
        case ReadEnd::digestMismatch:
            return {result::VerifyFailed, ESP_SNAPSHOT_MD5_MISMATCH};
        case ReadEnd::stopped:
            return {result::ReadFailed, ESP_SNAPSHOT_STOPPED};
    }
    return {};
}

// Counts what reaches the caller's sink and reports it as a share of the whole.
class Delivery {
  public:
    Delivery(const ReadSink& sink, esp_progress_cb progress, SnapshotResult& result)
        : sink_(sink), progress_(progress), result_(result) {}

    bool operator()(const uint8_t* data, size_t size) {
        if (!sink_(data, size)) {
            return false;
        }
        result_.received += size;
        if (progress_ != nullptr) {
            progress_(static_cast<float>(static_cast<double>(result_.received) /
                                         static_cast<double>(result_.size)),
                      "Reading flash");
        }
        return true;
    }

  private:
    const ReadSink& sink_;
    esp_progress_cb progress_;
    SnapshotResult& result_;
};

std::string extentLine(const image::FlashExtent& extent) {
    return "Whole flash: " + std::to_string(extent.size) +
           (extent.source == image::FlashExtent::Source::bootloaderHeader
                ? " bytes, as the bootloader header declares"
                : " bytes, to the end of the last partition");
}

// The head (bootloader header and partition table) decides how much there is; it
// is the start of the snapshot, so only the rest is read after it.
SnapshotResult readWholeFlash(EspLoader& loader, const ReadSink& sink, esp_progress_cb progress,
                              const JobLog& log) {
    log("Reading the flash layout...");
    std::vector<uint8_t> head;
    head.reserve(image::kFlashHeadSize);
    const ReadEnd headEnd =
        loader.readFlashAcknowledged(0, image::kFlashHeadSize, [&](const uint8_t* d, size_t n) {
            head.insert(head.end(), d, d + n);
            return true;
        });
    if (headEnd != ReadEnd::done) {
        return readFailure(headEnd);
    }
    const auto extent = image::wholeFlashExtent(head.data(), head.size());
    if (!extent) {
        log("Nothing worth keeping: no bootloader header at 0x0 and no partition table at "
            "0x8000");
        return {result::ReadFailed, ESP_SNAPSHOT_NOTHING_TO_KEEP};
    }
    log(extentLine(*extent));
    SnapshotResult outcome;
    outcome.size = extent->size;
    Delivery deliver(sink, progress, outcome);
    const size_t headPart = static_cast<size_t>(std::min<uint64_t>(head.size(), extent->size));
    if (!deliver(head.data(), headPart)) {
        log("Reading stopped after 0 of " + std::to_string(extent->size) + " bytes");
        return {result::ReadFailed, ESP_SNAPSHOT_STOPPED, outcome.size, outcome.received};
    }
    if (extent->size > headPart) {
        log("Reading " + std::to_string(extent->size - headPart) + " more bytes...");
        const ReadEnd end = loader.readFlashAcknowledged(
            static_cast<uint32_t>(headPart), static_cast<size_t>(extent->size - headPart),
            std::ref(deliver));
        if (end != ReadEnd::done) {
            SnapshotResult failure = readFailure(end);
            failure.size = outcome.size;
            failure.received = outcome.received;
            return failure;
        }
    }
    log("Whole flash read: " + std::to_string(outcome.received) + " bytes, MD5 OK");
    return outcome;
}

}  // namespace

SnapshotResult runSnapshotJob(SerialPort& port, const uint8_t* stub, size_t stubLen,
                              const ReadSink& sink, esp_progress_cb progress, esp_log_cb log,
                              StartupRecord* startup) {
    const JobLog jobLog(log);
    mono::sleepMs(kSettleMs);
    EspLoader loader(port, jobLog.forLoader());
    if (const auto code = startFlasher(loader, stub, stubLen, jobLog); code != 0) {
        return {code, ESP_SNAPSHOT_NOT_STARTED};
    }
    const SnapshotResult outcome = readWholeFlash(loader, sink, progress, jobLog);
    // Nothing was written, so the machine goes back to what it ran, whatever the read
    // found; the reset also ends a stub that may still be inside an unfinished read.
    loader.hardReset();
    if (outcome.code == result::Success && startup != nullptr) {
        *startup = hearRestart(port);
    }
    return outcome;
}

}  // namespace esp
