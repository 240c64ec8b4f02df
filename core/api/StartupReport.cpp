#include <cstdlib>
#include <cstring>

#include "api/CText.h"
#include "api/Jobs.h"
#include "fluidnc/Startup.h"

namespace esp {
namespace {

using fluidnc::StartupVerdict;

static_assert(static_cast<int>(StartupVerdict::Running) == ESP_STARTUP_RUNNING);
static_assert(static_cast<int>(StartupVerdict::WrongVersion) == ESP_STARTUP_WRONG_VERSION);
static_assert(static_cast<int>(StartupVerdict::BootLoop) == ESP_STARTUP_BOOT_LOOP);
static_assert(static_cast<int>(StartupVerdict::Panic) == ESP_STARTUP_PANIC);
static_assert(static_cast<int>(StartupVerdict::NoApp) == ESP_STARTUP_NO_APP);
static_assert(static_cast<int>(StartupVerdict::Brownout) == ESP_STARTUP_BROWNOUT);
static_assert(static_cast<int>(StartupVerdict::ConfigError) == ESP_STARTUP_CONFIG_ERROR);
static_assert(static_cast<int>(StartupVerdict::NoAnswer) == ESP_STARTUP_NO_ANSWER);
static_assert(fluidnc::kEvidenceLines == ESP_STARTUP_EVIDENCE_LINES);

uint8_t* copyBytes(const std::vector<uint8_t>& bytes) {
    if (bytes.empty()) {
        return nullptr;
    }
    auto* copy = static_cast<uint8_t*>(std::malloc(bytes.size()));
    if (copy != nullptr) {
        std::memcpy(copy, bytes.data(), bytes.size());
    }
    return copy;
}

}  // namespace

void fillStartupReport(esp_startup_report& report, const StartupRecord& record,
                       const char* expectedVersion) {
    report = {};
    report.verdict = ESP_STARTUP_NO_ANSWER;
    if (!record.listened) {
        return;
    }
    const auto judgement =
        fluidnc::judgeStartup(record.transcript.data(), record.transcript.size(), record.version,
                              expectedVersion != nullptr ? expectedVersion : "");
    report.listened = 1;
    report.portLost = record.portLost ? 1 : 0;
    report.verdict = static_cast<int>(judgement.verdict);
    report.version = record.version ? dupString(*record.version) : nullptr;
    for (size_t i = 0; i < judgement.evidence.size(); ++i) {
        report.evidence[i] = dupString(judgement.evidence[i]);
    }
    report.transcript = copyBytes(record.transcript);
    report.transcriptLen = report.transcript != nullptr ? record.transcript.size() : 0;
}

}  // namespace esp
