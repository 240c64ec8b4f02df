#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "api/Jobs.h"
#include "esp/Packet.h"
#include "serial/Clock.h"
#include "sim/Plotter.h"
#include "tests/support/TestImages.h"

// Whole jobs against the simulated plotter, every reply of which passes through
// the fuzz input on its way to the host: kept, dropped, bit-flipped, cut short,
// replaced or followed by raw bytes. The first input byte chooses the job.
namespace {

/// Spends the input one control byte per reply; once it runs out, replies pass.
class ReplyMutator {
  public:
    ReplyMutator(const uint8_t* data, size_t size) : data_(data), size_(size) {}

    std::vector<uint8_t> apply(std::vector<uint8_t> reply) {
        if (pos_ >= size_) {
            return reply;
        }
        switch (next() % 8) {
            case 3:
                return {};
            case 4:
                if (!reply.empty()) {
                    const size_t at = next() % reply.size();
                    reply[at] ^= static_cast<uint8_t>(next() | 1);
                }
                return reply;
            case 5:
                reply.resize(reply.empty() ? 0 : next() % reply.size());
                return reply;
            case 6:
                return raw();
            case 7: {
                const auto extra = raw();
                reply.insert(reply.end(), extra.begin(), extra.end());
                return reply;
            }
            default:
                return reply;
        }
    }

    uint8_t next() { return pos_ < size_ ? data_[pos_++] : 0; }

  private:
    std::vector<uint8_t> raw() {
        const size_t length = std::min<size_t>(next(), size_ - pos_);
        std::vector<uint8_t> bytes(data_ + pos_, data_ + pos_ + length);
        pos_ += length;
        return bytes;
    }

    const uint8_t* data_;
    size_t size_;
    size_t pos_ = 0;
};

const std::vector<uint8_t> kFirmware = testimg::pattern(3000, 1);
const std::vector<uint8_t> kBootloader = testimg::pattern(1000, 2);
const std::vector<uint8_t> kPartitions = testimg::pattern(3072, 3);
const std::vector<uint8_t> kBootApp = testimg::pattern(8192, 4);
const std::vector<uint8_t> kStub = testimg::stubImage();

esp_error_t flash(SerialPort& port, uint8_t choice) {
    auto request = testimg::flashRequest(kFirmware, kBootloader, kPartitions, kStub);
    if (choice & 4) {
        request.bootApp = kBootApp.data();
        request.bootAppLen = kBootApp.size();
    }
    request.fullFlash = (choice & 1) != 0;
    request.eraseAll = (choice & 2) != 0;
    request.expectedVersion = (choice & 8) ? "v3.7.8" : nullptr;
    return esp::runFlashJob(port, request, nullptr, [](const char*) {});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    ReplyMutator mutator(data + 1, size - 1);
    sim::Config config;
    config.flashSize = 96 * 1024;  // the plan ends below 0x10000 + 16 KiB
    sim::Plotter plotter(config);
    SerialPort port;
    port.openLoopback([&](const uint8_t* bytes,
                          size_t len) { return mutator.apply(plotter.onHostBytes(bytes, len)); },
                      [&](int timeoutMs) {
                          auto bytes = plotter.onIdle(timeoutMs);
                          return bytes.empty() ? bytes : mutator.apply(std::move(bytes));
                      });
    const uint8_t choice = data[0];
    switch (choice >> 6) {
        case 0:
        case 1: {
            const esp_error_t code = flash(port, choice);
            if (code == 1 || code == 2 || code > 7) {
                std::abort();
            }
            break;
        }
        case 2: {
            const esp_error_t code = esp::runUploadConfigJob(port, kBootApp.data(), 3000, nullptr);
            if (code != 0 && code != 8) {
                std::abort();
            }
            break;
        }
        default: {
            const int table = esp::runProbePartitionTableJob(port, kStub.data(), kStub.size());
            if (table < -1 || table > 1) {
                std::abort();
            }
            break;
        }
    }
    return 0;
}
