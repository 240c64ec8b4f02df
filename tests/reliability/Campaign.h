#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "api/Jobs.h"
#include "sim/Config.h"

/// Randomly drawn fault scenarios for the fault campaign and the forms its log lines
/// may take. Every draw is a pure function of its seed, so a failing run is replayed
/// from the seed alone.
namespace reliability {

/// One flashing job against a faulty plotter.
struct FlashScenario {
    sim::Config config;
    bool fullFlash = false;
    bool eraseAll = false;
    bool withBootApp = false;
    size_t firmwareSize = 0;
    std::string expectedVersion;      ///< empty: no confirmation
    std::vector<std::string> faults;  ///< what was drawn, for the failure message
};

/// One configuration upload against a faulty console.
struct UploadScenario {
    sim::Config config;
    std::vector<uint8_t> file;
    std::vector<std::string> faults;
};

FlashScenario drawFlashScenario(uint32_t seed);
UploadScenario drawUploadScenario(uint32_t seed);

/// The longest a job may take, in virtual milliseconds, when every exchange runs
/// into its time-out: a generous but finite bound.
int64_t flashJobBoundMs(const esp::FlashRequest& request);
int64_t uploadJobBoundMs(size_t length);

/// True when `line` has one of the forms the flashing job and its loader log.
bool isDefinedLogLine(const std::string& line);

/// True when the job's last line explains its non-zero `code`.
bool explainsFailure(const std::vector<std::string>& lines, unsigned code);

}  // namespace reliability
