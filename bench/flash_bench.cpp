// Throughput of a region write and its MD5 check against the simulated plotter, over
// the loopback back end and over a pseudo-terminal served by the simulator's thread;
// heap allocations per FLASH_DATA block; peak RSS of a 16 MiB write in a child process.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <random>

#include "esp/EspLoader.h"
#include "esp/Packet.h"
#include "sim/Plotter.h"
#include "sim/PtyPlotter.h"

namespace {

std::atomic<size_t> hostAllocs{0};
std::atomic<size_t> simAllocs{0};
thread_local bool inSimulator = false;

void* countedAlloc(size_t size) {
    (inSimulator ? simAllocs : hostAllocs).fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(size == 0 ? 1 : size)) {
        return p;
    }
    throw std::bad_alloc();
}

}  // namespace

void* operator new(size_t size) {
    return countedAlloc(size);
}
void* operator new[](size_t size) {
    return countedAlloc(size);
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete[](void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, size_t) noexcept {
    std::free(p);
}
void operator delete[](void* p, size_t) noexcept {
    std::free(p);
}

namespace {

constexpr size_t kMiB = 1024 * 1024;
constexpr uint32_t kAppAddress = 0x10000;

std::vector<uint8_t> randomImage(size_t size) {
    std::vector<uint8_t> image(size);
    std::mt19937 rng(42);
    for (auto& byte : image) {
        byte = static_cast<uint8_t>(rng());
    }
    return image;
}

// A stub image the simulator accepts: two small segments and an entry point.
std::vector<uint8_t> stubImage() {
    std::vector<uint8_t> image;
    for (const uint32_t word : {0x40380000u, 2048u, 0x3FC96000u, 256u, 0x403805C8u}) {
        esp::packLE32(image, word);
    }
    image.resize(image.size() + 2048 + 256, 0x5A);
    return image;
}

// Brings a fresh session up to an attached flash with the stub running.
bool startStub(esp::EspLoader& loader) {
    const std::vector<uint8_t> stub = stubImage();
    return loader.sync(3) && loader.uploadStub(stub.data(), stub.size()) && loader.attachFlash();
}

void openOnSimulator(SerialPort& port, sim::Plotter& plotter) {
    port.openLoopback(
        [&plotter](const uint8_t* data, size_t len) {
            inSimulator = true;
            auto reply = plotter.onHostBytes(data, len);
            inSimulator = false;
            return reply;
        },
        [&plotter](int timeoutMs) {
            inSimulator = true;
            auto out = plotter.onIdle(timeoutMs);
            inSimulator = false;
            return out;
        });
}

bool writeAndVerify(esp::EspLoader& loader, const std::vector<uint8_t>& image,
                    uint32_t address = kAppAddress) {
    return loader.flashImage(address, image.data(), image.size(), nullptr, 0, 1) &&
           loader.verifyFlash(address, image.size(), image.data());
}

void BM_FlashLoopback(benchmark::State& state) {
    const auto image = randomImage(static_cast<size_t>(state.range(0)) * kMiB);
    sim::Plotter plotter;
    SerialPort port;
    openOnSimulator(port, plotter);
    esp::EspLoader loader(port, {});
    if (!startStub(loader)) {
        state.SkipWithError("stub did not start");
        return;
    }
    const double blocks = static_cast<double>(image.size() / esp::EspLoader::FLASH_BLOCK);
    size_t host = 0;
    size_t simulated = 0;
    for (auto _ : state) {
        const size_t host0 = hostAllocs.load();
        const size_t sim0 = simAllocs.load();
        if (!loader.flashImage(kAppAddress, image.data(), image.size(), nullptr, 0, 1)) {
            state.SkipWithError("flashImage failed");
            return;
        }
        host += hostAllocs.load() - host0;
        simulated += simAllocs.load() - sim0;
        if (!loader.verifyFlash(kAppAddress, image.size(), image.data())) {
            state.SkipWithError("verifyFlash failed");
            return;
        }
    }
    const double runs = static_cast<double>(state.iterations());
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(image.size()));
    state.counters["host_allocs_per_block"] = static_cast<double>(host) / runs / blocks;
    state.counters["sim_allocs_per_block"] = static_cast<double>(simulated) / runs / blocks;
}
BENCHMARK(BM_FlashLoopback)->Arg(4)->Unit(benchmark::kMillisecond);

void BM_FlashPty(benchmark::State& state) {
    const auto image = randomImage(static_cast<size_t>(state.range(0)) * kMiB);
    sim::PtyPlotter plotter;
    SerialPort port;
    if (!port.open(plotter.path())) {
        state.SkipWithError("pseudo-terminal did not open");
        return;
    }
    esp::EspLoader loader(port, {});
    if (!startStub(loader)) {
        state.SkipWithError("stub did not start");
        return;
    }
    for (auto _ : state) {
        if (!writeAndVerify(loader, image)) {
            state.SkipWithError("write or verify failed");
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(image.size()));
}
BENCHMARK(BM_FlashPty)->Arg(4)->Unit(benchmark::kMillisecond)->UseRealTime();

// Peak resident set of a whole 16 MiB write and verify, measured in a child process
// so that nothing the other benchmarks touched is counted.
void BM_PeakRss(benchmark::State& state) {
    const size_t size = static_cast<size_t>(state.range(0)) * kMiB;
    long peakKiB = 0;
    for (auto _ : state) {
        const pid_t child = ::fork();
        if (child == 0) {
            const auto image = randomImage(size);
            sim::Plotter plotter;
            SerialPort port;
            openOnSimulator(port, plotter);
            esp::EspLoader loader(port, {});
            // The whole simulated flash: a 16 MiB image starts at 0.
            ::_exit(startStub(loader) && writeAndVerify(loader, image, 0) ? 0 : 1);
        }
        int status = 0;
        rusage usage{};
        ::wait4(child, &status, 0, &usage);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            state.SkipWithError("write or verify failed in the child");
            return;
        }
        peakKiB = usage.ru_maxrss;
    }
    state.counters["peak_rss_MiB"] = static_cast<double>(peakKiB) / 1024.0;
    state.counters["limit_MiB"] = 2.0 * static_cast<double>(size) / kMiB + 32.0;
}
BENCHMARK(BM_PeakRss)->Arg(16)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
