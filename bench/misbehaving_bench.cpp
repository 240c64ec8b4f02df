// Misbehaving plotters over a pseudo-terminal, through the shared library:
// - the CPU share of the job's thread while it waits on a line that has hung up
//   (the cable pulled during a version query, and during a region's MD5 check);
// - the time to the result when the firmware's console never stops printing, for
//   the version query, the configuration upload and the flashing job's version
//   confirmation, beside the query and the confirmation against a silent console.
#include <pthread.h>
#include <time.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"
#include "tests/support/TestImages.h"

namespace {

using Clock = std::chrono::steady_clock;

const std::vector<uint8_t> firmware = testimg::pattern(256 * 1024, 1);
const std::vector<uint8_t> configFile = testimg::pattern(16 * 1024, 7);
const std::vector<uint8_t> stub = testimg::stubImage();

double seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

double cpuSeconds(clockid_t clock) {
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

// The wait: from the moment the line hangs up to the job's return, on the job's thread.
struct HungUpWait {
    double wallS = 0;
    double cpuS = 0;
};

HungUpWait versionQueryHungUp() {
    sim::Config config;
    config.silentConsole = true;
    sim::PtyPlotter plotter(config);
    Clock::time_point endWall;
    double endCpu = 0;
    std::thread job([&] {
        std::free(esp_query_version(plotter.path().c_str()));
        endCpu = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
        endWall = Clock::now();
    });
    clockid_t jobClock{};
    ::pthread_getcpuclockid(job.native_handle(), &jobClock);
    std::this_thread::sleep_for(std::chrono::milliseconds(600));  // settled, query sent
    const double startCpu = cpuSeconds(jobClock);
    const auto startWall = Clock::now();
    plotter.unplug();
    job.join();
    return {seconds(endWall - startWall), endCpu - startCpu};
}

// The simulator drops the line when the MD5 request arrives; "VERIFY addr=" is
// logged on the job's thread just before that request goes out.
HungUpWait md5CheckHungUp() {
    static double startCpu = 0;
    static Clock::time_point startWall;
    sim::Config config;
    config.goneAtMd5 = 0;
    sim::PtyPlotter plotter(config);
    esp_flash_firmware(plotter.path().c_str(), firmware.data(), firmware.size(), nullptr, 0,
                       nullptr, 0, nullptr, 0, stub.data(), stub.size(), 0, 0, nullptr, nullptr,
                       [](const char* line) {
                           if (std::string(line).rfind("VERIFY addr=", 0) == 0) {
                               startCpu = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
                               startWall = Clock::now();
                           }
                       });
    return {seconds(Clock::now() - startWall), cpuSeconds(CLOCK_THREAD_CPUTIME_ID) - startCpu};
}

void withConsole(bool flood, const std::function<void(const std::string&)>& use) {
    sim::Config config;
    config.floodConsole = flood;
    config.silentConsole = !flood;
    sim::PtyPlotter plotter(config);
    use(plotter.path());
}

double timeToResult(bool flood, const std::function<void(const std::string&)>& call) {
    double taken = 0;
    withConsole(flood, [&](const std::string& path) {
        const auto start = Clock::now();
        call(path);
        taken = seconds(Clock::now() - start);
    });
    return taken;
}

// From "Verifying firmware version..." to the job's result.
double confirmationTime(bool flood) {
    static Clock::time_point confirming;
    double taken = 0;
    withConsole(flood, [&](const std::string& path) {
        esp_flash_firmware(path.c_str(), firmware.data(), firmware.size(), nullptr, 0, nullptr, 0,
                           nullptr, 0, stub.data(), stub.size(), 0, 0, "2.10.6", nullptr,
                           [](const char* line) {
                               if (std::string(line) == "Verifying firmware version...") {
                                   confirming = Clock::now();
                               }
                           });
        taken = seconds(Clock::now() - confirming);
    });
    return taken;
}

void printWait(const char* what, const HungUpWait& wait) {
    std::printf("  %-34s %6.2f s wall  %7.4f s CPU  %5.2f %% of a core\n", what, wait.wallS,
                wait.cpuS, 100.0 * wait.cpuS / wait.wallS);
}

}  // namespace

int main() {
    std::printf("Waiting on a hung-up line (job thread, from the hang-up to the result)\n");
    printWait("version query (2 s reply wait)", versionQueryHungUp());
    printWait("flashing job (10 s MD5 wait)", md5CheckHungUp());

    const auto query = [](const std::string& path) { std::free(esp_query_version(path.c_str())); };
    const auto upload = [](const std::string& path) {
        esp_upload_config(path.c_str(), configFile.data(), configFile.size(), nullptr, nullptr);
    };
    std::printf("Time to the result: console printing without end / silent console\n");
    std::printf("  %-34s %6.2f s / %6.2f s\n", "esp_query_version", timeToResult(true, query),
                timeToResult(false, query));
    // Against a silent console the upload waits out its 30 s handshake instead.
    std::printf("  %-34s %6.2f s\n", "esp_upload_config", timeToResult(true, upload));
    std::printf("  %-34s %6.2f s / %6.2f s\n", "version confirmation after flashing",
                confirmationTime(true), confirmationTime(false));
    return 0;
}
