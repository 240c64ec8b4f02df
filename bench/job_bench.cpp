// One whole esp_flash_firmware of a 1.5 MiB application over a pseudo-terminal to
// the simulated plotter, with the total split into the waits the job prescribes
// and the time spent moving and checking data. Each phase runs from one log line
// to the next, so the split needs no hooks in the library. Then the same healthy
// job with the start-up listening (esp_flash_firmware_checked with a report) and
// without, alternately, and the ratio of their median times.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "api/esp_flasher.h"
#include "sim/PtyPlotter.h"

namespace {

using Clock = std::chrono::steady_clock;

struct Line {
    double at;
    std::string text;
};

Clock::time_point jobStart;
std::vector<Line> lines;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void onLog(const char* text) {
    lines.push_back({secondsSince(jobStart), text});
}

double at(const std::string& prefix, bool last = false) {
    double found = -1;
    for (const auto& line : lines) {
        if (line.text.rfind(prefix, 0) == 0) {
            found = line.at;
            if (!last) {
                break;
            }
        }
    }
    return found;
}

std::vector<uint8_t> bytes(size_t size, uint8_t seed) {
    std::vector<uint8_t> out(size);
    for (size_t i = 0; i < size; ++i) {
        out[i] = static_cast<uint8_t>(seed + i * 13 + i / 4093);
    }
    return out;
}

std::vector<uint8_t> stubImage() {
    std::vector<uint8_t> image;
    for (uint32_t word : {0x40380000u, 12000u, 0x3FC90000u, 4000u, 0x40380004u}) {
        for (int i = 0; i < 4; ++i) {
            image.push_back(static_cast<uint8_t>(word >> (8 * i)));
        }
    }
    const auto body = bytes(16000, 7);
    image.insert(image.end(), body.begin(), body.end());
    return image;
}

void row(const char* what, double seconds, const char* note = "") {
    std::printf("  %-34s %7.3f s%s%s\n", what, seconds, *note != '\0' ? "  " : "", note);
}

constexpr int kRounds = 3;

struct Images {
    std::vector<uint8_t> firmware;
    std::vector<uint8_t> bootApp;
    std::vector<uint8_t> stub;
};

sim::Config healthyPlotter() {
    sim::Config config;
    config.versionReport = "2.10.6 (sim)";
    return config;
}

// A fresh plotter each time, so that no run inherits another's state. With a report
// the job listens to the restart.
esp_error_t flashOnce(const Images& images, esp_startup_report* report) {
    sim::PtyPlotter device(healthyPlotter());
    lines.clear();
    jobStart = Clock::now();
    return esp_flash_firmware_checked(
        device.path().c_str(), images.firmware.data(), images.firmware.size(), nullptr, 0, nullptr,
        0, images.bootApp.data(), images.bootApp.size(), images.stub.data(), images.stub.size(), 0,
        0, "2.10.6", nullptr, onLog, report);
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int compareListening(const Images& images) {
    std::vector<double> plain;
    std::vector<double> listening;
    int verdict = -1;
    for (int round = 0; round < kRounds; ++round) {
        if (flashOnce(images, nullptr) != 0) {
            return 1;
        }
        plain.push_back(secondsSince(jobStart));
        esp_startup_report report{};
        if (flashOnce(images, &report) != 0) {
            return 1;
        }
        listening.push_back(secondsSince(jobStart));
        verdict = report.verdict;
        esp_startup_report_free(&report);
    }
    const double without = median(plain);
    const double with = median(listening);
    std::printf("start-up listening, median of %d alternating runs\n", kRounds);
    row("esp_flash_firmware", without);
    row("esp_flash_firmware_checked", with,
        verdict == ESP_STARTUP_RUNNING ? "(verdict: running)" : "(verdict: NOT running)");
    std::printf("  ratio with / without                %7.3f    (goal <= 1.05)\n", with / without);
    return verdict == ESP_STARTUP_RUNNING ? 0 : 1;
}

}  // namespace

int main() {
    const auto firmware = bytes(1536 * 1024, 1);
    const auto bootApp = std::vector<uint8_t>(8192, 0xFF);
    const auto stub = stubImage();
    sim::PtyPlotter device(healthyPlotter());

    jobStart = Clock::now();
    const esp_error_t code = esp_flash_firmware(
        device.path().c_str(), firmware.data(), firmware.size(), nullptr, 0, nullptr, 0,
        bootApp.data(), bootApp.size(), stub.data(), stub.size(), 0, 0, "2.10.6", nullptr, onLog);
    const double total = secondsSince(jobStart);
    if (code != 0 || at("Device running firmware") < 0) {
        std::printf("job failed with code %u\n", code);
        for (const auto& line : lines) {
            std::printf("%s\n", line.text.c_str());
        }
        return 1;
    }

    const double settle = at("Entering bootloader...");
    const double entry = at("Syncing...") - settle;
    const double sync = at("Sync OK") - at("Syncing...");
    const double identify = at("Uploading flash stub") - at("Sync OK");
    const double stubLoad = at("Stub running") - at("Uploading flash stub");
    const double attach = at("Flash plan") - at("Stub running");
    double writing = 0;
    double digest = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].text.rfind("FLASH_BEGIN addr=", 0) == 0) {
            for (size_t j = i; j < lines.size(); ++j) {
                if (lines[j].text.rfind("VERIFY addr=", 0) == 0) {
                    writing += lines[j].at - lines[i].at;
                    break;
                }
            }
        } else if (lines[i].text.rfind("VERIFY addr=", 0) == 0) {
            for (size_t j = i; j < lines.size(); ++j) {
                if (lines[j].text.rfind("VERIFY OK", 0) == 0) {
                    digest += lines[j].at - lines[i].at;
                    break;
                }
            }
        }
    }
    const double endAndReset = at("Verifying firmware version...") - at("VERIFY OK", true);
    const double confirm = at("Device running firmware") - at("Verifying firmware version...");
    const double moving = writing + digest;

    std::printf(
        "esp_flash_firmware, app-only plan (8 KiB boot-app + %zu KiB application) over "
        "a pseudo-terminal\n",
        firmware.size() / 1024);
    std::printf("  total                              %7.3f s\n", total);
    std::printf("fixed waits the job prescribes\n");
    row("settle after open", settle, "(500 ms)");
    row("bootloader entry x1", entry, "(5 x 100 ms line steps)");
    row("FLASH_END + hard reset", endAndReset, "(2 x 100 ms RTS pulse)");
    row("version confirmation", confirm, "(2 s boot wait + one $I query)");
    std::printf("protocol exchanges\n");
    row("sync (incl. drain of extra replies)", sync);
    row("chip id + security fuses", identify);
    row("stub upload + greeting", stubLoad, "(16 KiB in 6 KiB RAM blocks)");
    row("SPI attach + plan", attach);
    std::printf("moving data\n");
    row("FLASH_BEGIN + FLASH_DATA blocks", writing);
    row("SPI_FLASH_MD5", digest);
    std::printf("  -> application write rate           %7.0f KiB/s\n",
                (firmware.size() + bootApp.size()) / 1024.0 / writing);
    std::printf("  share of the total moving data       %7.1f %%\n", 100.0 * moving / total);
    return compareListening({firmware, bootApp, stub});
}
