// esp_upload_config of a 256 KiB file over a pseudo-terminal to the simulated
// plotter, set beside what the pseudo-terminal itself carries: a one-way stream,
// and the stop-and-wait exchange of 1029-byte blocks and one-byte answers that
// bounds any XModem sender.
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr size_t kFileSize = 256 * 1024;
constexpr size_t kBlock = 1029;
constexpr size_t kRawBytes = 8 * 1024 * 1024;
constexpr int kRuns = 3;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

struct RawPty {
    RawPty() {
        ::openpty(&master, &slave, nullptr, nullptr, nullptr);
        for (int fd : {master, slave}) {
            termios attrs{};
            ::tcgetattr(fd, &attrs);
            ::cfmakeraw(&attrs);
            ::tcsetattr(fd, TCSANOW, &attrs);
        }
    }
    ~RawPty() {
        ::close(master);
        ::close(slave);
    }
    int master = -1;
    int slave = -1;
};

bool readExactly(int fd, uint8_t* buf, size_t len) {
    for (size_t got = 0; got < len;) {
        const ssize_t n = ::read(fd, buf + got, len - got);
        if (n <= 0) {
            return false;
        }
        got += static_cast<size_t>(n);
    }
    return true;
}

bool writeAll(int fd, const uint8_t* buf, size_t len) {
    for (size_t sent = 0; sent < len;) {
        const ssize_t n = ::write(fd, buf + sent, len - sent);
        if (n <= 0) {
            return false;
        }
        sent += static_cast<size_t>(n);
    }
    return true;
}

double streamKiBs() {
    RawPty pty;
    std::vector<uint8_t> data(kRawBytes, 0x55);
    std::vector<uint8_t> sink(kRawBytes);
    const auto start = Clock::now();
    std::thread reader([&] { readExactly(pty.master, sink.data(), sink.size()); });
    writeAll(pty.slave, data.data(), data.size());
    reader.join();
    return kRawBytes / 1024.0 / secondsSince(start);
}

double stopAndWaitKiBs() {
    RawPty pty;
    const size_t blocks = kRawBytes / 1024;
    std::thread receiver([&] {
        std::vector<uint8_t> block(kBlock);
        const uint8_t ack = 0x06;
        for (size_t i = 0; i < blocks && readExactly(pty.master, block.data(), kBlock); ++i) {
            writeAll(pty.master, &ack, 1);
        }
    });
    std::vector<uint8_t> block(kBlock, 0x55);
    uint8_t answer = 0;
    const auto start = Clock::now();
    for (size_t i = 0; i < blocks; ++i) {
        writeAll(pty.slave, block.data(), kBlock);
        readExactly(pty.slave, &answer, 1);
    }
    const double seconds = secondsSince(start);
    receiver.join();
    return blocks / seconds;
}

std::vector<double> progressSeconds;
Clock::time_point jobStart;

void onProgress(float, const char*) {
    progressSeconds.push_back(secondsSince(jobStart));
}

struct UploadRun {
    double total = 0;
    double beforeFirstBlock = 0;
    double kibPerSecond = 0;
    double afterLastBlock = 0;
};

bool uploadOnce(const std::vector<uint8_t>& file, UploadRun& run) {
    sim::PtyPlotter device;
    progressSeconds.clear();
    jobStart = Clock::now();
    const esp_error_t code =
        esp_upload_config(device.path().c_str(), file.data(), file.size(), onProgress, nullptr);
    run.total = secondsSince(jobStart);
    bool stored = false;
    device.inspect([&](const sim::Plotter& p) { stored = p.storedConfig() == file; });
    if (code != 0 || !stored || progressSeconds.size() < 2) {
        std::printf("upload failed: code %u, stored %d\n", code, stored);
        return false;
    }
    // Blocks 2..n lie between the first and the last progress report.
    run.beforeFirstBlock = progressSeconds.front();
    run.kibPerSecond =
        (progressSeconds.size() - 1) / (progressSeconds.back() - progressSeconds.front());
    run.afterLastBlock = run.total - progressSeconds.back();
    return true;
}

}  // namespace

int main() {
    std::vector<uint8_t> file;
    const std::string line = "  axis_x: {steps_per_mm: 80.000, max_rate_mm_per_min: 5000}\n";
    while (file.size() < kFileSize) {
        file.insert(file.end(), line.begin(), line.end());
    }
    file.resize(kFileSize);

    std::vector<UploadRun> runs(kRuns);
    std::vector<double> stream;
    std::vector<double> stopAndWait;
    for (auto& run : runs) {
        if (!uploadOnce(file, run)) {
            return 1;
        }
        stream.push_back(streamKiBs());
        stopAndWait.push_back(stopAndWaitKiBs());
    }
    auto pick = [&](double UploadRun::*field) {
        std::vector<double> values;
        for (const auto& run : runs) {
            values.push_back(run.*field);
        }
        return median(values);
    };
    std::printf(
        "esp_upload_config, %zu KiB over a pseudo-terminal to the simulator "
        "(median of %d runs)\n",
        kFileSize / 1024, kRuns);
    std::printf("  total                          %8.3f s\n", pick(&UploadRun::total));
    std::printf(
        "  before the first block         %8.3f s  (500 ms settle, version query, "
        "500 ms drain, handshake)\n",
        pick(&UploadRun::beforeFirstBlock));
    std::printf("  after the last block           %8.3f s  (EOT, wait for ok, $Bye + 500 ms)\n",
                pick(&UploadRun::afterLastBlock));
    std::printf("  XModem blocks                  %8.0f KiB/s\n", pick(&UploadRun::kibPerSecond));
    std::printf("raw pseudo-terminal, same host (%zu MiB)\n", kRawBytes >> 20);
    std::printf("  one-way stream                 %8.0f KiB/s\n", median(stream));
    std::printf("  1029-byte block + 1-byte ACK   %8.0f KiB/s\n", median(stopAndWait));
    return 0;
}
