// The whole-flash read against the simulated plotter, three ways:
// - a 4 MiB acknowledged read over a pseudo-terminal whose stub sends at 1 MB/s and
//   waits 4 ms after each acknowledgement, against the stub's own handshake time
//   (packets x (packet time + turnaround)); goal: at most 1.1 times that;
// - the read pipeline over the loopback back end, no link limit; goal: 100 MiB/s;
// - the peak resident set of a child process that takes a 16 MiB snapshot through
//   the shared library into a file; goal: below 64 MiB.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include <QFile>
#include <QTemporaryDir>

#include "api/esp_flasher.h"
#include "app/operations/TakeSnapshot.h"
#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "sim/PlotterLoopback.h"
#include "sim/PtyPlotter.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t kMiB = 1024 * 1024;
constexpr uint32_t kPacket = 4096;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::vector<uint8_t> randomBytes(size_t size) {
    std::vector<uint8_t> bytes(size);
    std::mt19937 rng(42);
    for (auto& byte : bytes) {
        byte = static_cast<uint8_t>(rng());
    }
    return bytes;
}

// A flash of `size` random bytes whose bootloader header declares `sizeCode`.
std::vector<uint8_t> machineFlash(size_t size, uint8_t sizeCode) {
    std::vector<uint8_t> flash = randomBytes(size);
    const std::vector<uint8_t> header = {0xE9, 3, 2, static_cast<uint8_t>(sizeCode << 4 | 0x0F)};
    std::copy(header.begin(), header.end(), flash.begin());
    return flash;
}

std::vector<uint8_t> stubImage() {
    std::vector<uint8_t> image;
    for (const uint32_t word : {0x40380000u, 2048u, 0x3FC96000u, 256u, 0x403805C8u}) {
        esp::packLE32(image, word);
    }
    image.resize(image.size() + 2048 + 256, 0x5A);
    return image;
}

bool startStub(esp::EspLoader& loader) {
    const std::vector<uint8_t> stub = stubImage();
    return loader.sync(3) && loader.uploadStub(stub.data(), stub.size()) && loader.attachFlash();
}

// Seconds for one acknowledged read of `size` bytes from 0, the bytes discarded; a
// negative result when the read failed.
double timedRead(esp::EspLoader& loader, size_t size) {
    const auto start = Clock::now();
    const auto end =
        loader.readFlashAcknowledged(0, size, [](const uint8_t*, size_t) { return true; });
    return end == esp::ReadEnd::done ? secondsSince(start) : -1.0;
}

int pacedPtyRead() {
    constexpr size_t kSize = 4 * kMiB;
    constexpr double kRate = 1'000'000.0;
    constexpr double kTurnaround = 0.004;
    sim::Config config;
    config.linkBytesPerSecond = static_cast<int64_t>(kRate);
    config.readTurnaroundMs = 4;
    config.frameGapMs = 1;
    sim::PtyPlotter plotter(config);
    plotter.modify([&](sim::Plotter& p) { p.loadFlash(0, randomBytes(kSize)); });
    SerialPort port;
    esp::EspLoader loader(port, {});
    if (!port.open(plotter.path()) || !startStub(loader)) {
        std::printf("the stub did not start on the pseudo-terminal\n");
        return 1;
    }
    const double seconds = timedRead(loader, kSize);
    const double packets = static_cast<double>(kSize / kPacket);
    const double handshake = packets * (kPacket / kRate + kTurnaround);
    std::printf("4 MiB acknowledged read over a pseudo-terminal (1 MB/s, 4 ms turnaround)\n");
    if (seconds < 0) {
        std::printf("  the read failed\n");
        return 1;
    }
    std::printf("  measured                            %7.3f s\n", seconds);
    std::printf("  stub's handshake: %4.0f x (%.3f + %.3f) ms %7.3f s\n", packets,
                kPacket / kRate * 1000, kTurnaround * 1000, handshake);
    std::printf("  ratio                               %7.3f    (goal <= 1.10)\n",
                seconds / handshake);
    return seconds <= 1.1 * handshake ? 0 : 1;
}

int loopbackPipeline() {
    constexpr size_t kSize = 16 * kMiB;
    constexpr int kRounds = 5;
    sim::Plotter plotter;
    plotter.loadFlash(0, randomBytes(kSize));
    SerialPort port;
    sim::connectLoopback(plotter, port);
    esp::EspLoader loader(port, {});
    if (!startStub(loader)) {
        std::printf("the stub did not start on the loopback\n");
        return 1;
    }
    std::vector<double> rates;
    for (int round = 0; round < kRounds; ++round) {
        const double seconds = timedRead(loader, kSize);
        if (seconds < 0) {
            std::printf("the loopback read failed\n");
            return 1;
        }
        rates.push_back(static_cast<double>(kSize) / kMiB / seconds);
    }
    std::sort(rates.begin(), rates.end());
    std::printf("16 MiB acknowledged read over the loopback (simulator included), %d runs\n",
                kRounds);
    std::printf("  median                              %7.1f MiB/s (goal >= 100)\n",
                rates[kRounds / 2]);
    std::printf("  slowest                             %7.1f MiB/s\n", rates.front());
    return rates[kRounds / 2] >= 100.0 ? 0 : 1;
}

int writeToFile(void* file, const uint8_t* data, size_t length) {
    return std::fwrite(data, 1, length, static_cast<std::FILE*>(file)) == length ? 0 : 1;
}

// Waits for the child that took a snapshot and prints its peak resident set.
int reportPeakRss(pid_t child, const char* what) {
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    std::printf("%s\n", what);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::printf("  the snapshot failed\n");
        return 1;
    }
    const double peakMiB = static_cast<double>(usage.ru_maxrss) / 1024.0;
    std::printf("  peak resident set, simulator included %5.1f MiB   (goal < 64)\n", peakMiB);
    return peakMiB < 64.0 ? 0 : 1;
}

// The child takes the snapshot through the shared library into an unlinked file. The
// simulator runs in the child too (another process holding the pseudo-terminal would
// make the library refuse the port), so its own 16 MiB of flash is counted as well.
int snapshotPeakRss() {
    const pid_t child = ::fork();
    if (child == 0) {
        sim::PtyPlotter plotter;
        plotter.modify([](sim::Plotter& p) { p.loadFlash(0, machineFlash(16 * kMiB, 4)); });
        const std::vector<uint8_t> stub = stubImage();
        std::FILE* file = std::tmpfile();
        esp_snapshot_status status{};
        const esp_error_t code =
            esp_snapshot_machine(plotter.path().c_str(), stub.data(), stub.size(), writeToFile,
                                 file, nullptr, nullptr, &status, nullptr);
        ::_exit(code == 0 && status.received == 16 * kMiB ? 0 : 1);
    }
    return reportPeakRss(child,
                         "16 MiB snapshot through esp_snapshot_machine into a file, in a "
                         "child process");
}

// The same snapshot through the application's operation, as the window and
// teskal-flash take it: into the backups folder (a temporary folder here), with its
// SHA-256, its sidecar and the application image read back from the file.
int operationPeakRss() {
    const pid_t child = ::fork();
    if (child == 0) {
        QTemporaryDir home;
        qputenv("XDG_DATA_HOME", home.filePath("data").toUtf8());
        QFile stubFile(home.filePath("esp32s3_stub.bin"));
        const std::vector<uint8_t> stub = stubImage();
        stubFile.open(QIODevice::WriteOnly);
        stubFile.write(reinterpret_cast<const char*>(stub.data()), qint64(stub.size()));
        stubFile.close();
        sim::PtyPlotter plotter;
        plotter.modify([](sim::Plotter& p) { p.loadFlash(0, machineFlash(16 * kMiB, 4)); });
        TakeSnapshot::Options options;
        options.machine = QStringLiteral("bench");
        const Outcome outcome = TakeSnapshot(QString::fromStdString(plotter.path()),
                                             ResourceBundle(home.path()), options)
                                    .run({});
        const auto* kept = std::get_if<Backup>(&outcome.cause);
        ::_exit(kept != nullptr && kept->size == qint64(16 * kMiB) ? 0 : 1);
    }
    return reportPeakRss(
        child, "16 MiB snapshot through the operation into the backups folder, in a child");
}

}  // namespace

int main() {
    const int loopback = loopbackPipeline();
    const int rss = snapshotPeakRss() | operationPeakRss();
    const int pty = pacedPtyRead();
    return loopback | rss | pty;
}
