#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "fluidnc/Startup.h"

// Any bytes as what the machine printed after its restart. The first byte chooses the
// version it answered: none, the expected one or another.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    std::optional<std::string> version;
    if (data[0] % 3 != 0) {
        version = data[0] % 3 == 1 ? "2.10.6 (sim)" : "0.9.0";
    }
    const auto judgement = fluidnc::judgeStartup(data + 1, size - 1, version, "2.10.6");
    const auto verdict = judgement.verdict;
    const bool answered = verdict == fluidnc::StartupVerdict::Running ||
                          verdict == fluidnc::StartupVerdict::WrongVersion;
    if (static_cast<int>(verdict) < 0 || static_cast<int>(verdict) > 7 || (answered && !version) ||
        (verdict == fluidnc::StartupVerdict::NoAnswer && version) ||
        judgement.evidence.size() > fluidnc::kEvidenceLines) {
        std::abort();
    }
    for (const std::string& line : judgement.evidence) {
        if (line.empty() || line.size() > fluidnc::kEvidenceChars) {
            std::abort();
        }
        for (const char c : line) {
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
                std::abort();
            }
        }
    }
    return 0;
}
