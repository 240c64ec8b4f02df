#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "serial/Clock.h"

/// Recorders for the core's log and progress callbacks. Those are plain function
/// pointers without a context, so what they receive is kept in globals; a test that
/// uses them runs its jobs on one thread.
namespace records {

inline std::vector<std::string> logLines;
inline std::vector<int64_t> logTimesNs;  ///< the `mono::nowNs()` reading at each line
inline std::vector<std::pair<float, std::string>> progressCalls;

inline void recordLog(const char* line) {
    logLines.emplace_back(line);
    logTimesNs.push_back(mono::nowNs());
}

inline void recordProgress(float fraction, const char* stage) {
    progressCalls.emplace_back(fraction, stage);
}

inline void clearRecords() {
    logLines.clear();
    logTimesNs.clear();
    progressCalls.clear();
}

}  // namespace records
