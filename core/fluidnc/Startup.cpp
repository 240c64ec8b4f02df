#include "fluidnc/Startup.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace fluidnc {
namespace {

// What a line tells, in the order in which the verdicts rank.
enum class Sign { Brownout, Panic, NoApp, BootLoop, ConfigError, Version, None };
constexpr size_t kSigns = static_cast<size_t>(Sign::None);

struct Pattern {
    std::string_view text;
    Sign sign;
};

// First match wins: a line that tells more than one thing counts for the gravest.
constexpr Pattern kPatterns[] = {
    {"Brownout detector was triggered", Sign::Brownout},
    {"BROWN_OUT_RST", Sign::Brownout},
    {"Guru Meditation Error", Sign::Panic},
    {"abort() was called", Sign::Panic},
    {"Backtrace:", Sign::Panic},
    {"Task watchdog got triggered", Sign::Panic},
    {"Interrupt wdt timeout", Sign::Panic},
    {"stack overflow", Sign::Panic},
    {"Stack canary watchpoint triggered", Sign::Panic},
    {"Stack smashing protect failure", Sign::Panic},
    {"assert failed:", Sign::Panic},
    {"No bootable app partitions", Sign::NoApp},
    {"invalid magic byte", Sign::NoApp},
    {"image is corrupt", Sign::NoApp},
    {"[MSG:ERR:", Sign::ConfigError},
    {"[VER:", Sign::Version},
};

constexpr std::string_view kInvalidHeader = "invalid header: 0x";
constexpr std::string_view kErasedHeader = "ffffffff";
constexpr size_t kHeaderDigits = 8;
constexpr std::string_view kBanner = "ESP-ROM:";
constexpr std::string_view kResetLine = "rst:0x";

bool contains(std::string_view line, std::string_view text) {
    return line.find(text) != std::string_view::npos;
}

// The ROM and boot loader print plain text; the boot loader may colour it with
// escape sequences, and noise on the line brings control bytes.
std::string clean(std::string_view raw) {
    std::string out;
    for (size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\x1b' && i + 1 < raw.size() && raw[i + 1] == '[') {
            i += 2;
            while (i < raw.size() && (raw[i] < 0x40 || raw[i] > 0x7E)) {
                ++i;
            }
            continue;
        }
        const auto byte = static_cast<unsigned char>(raw[i]);
        if (byte >= 0x20 && byte != 0x7F) {
            out.push_back(raw[i]);
        }
    }
    const auto first = out.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return out.substr(first, out.find_last_not_of(' ') - first + 1);
}

bool continuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Cut before a character that would be split, so a quoted UTF-8 text stays valid;
// bytes that are no UTF-8 are cut where they fall.
std::string quote(const std::string& line) {
    if (line.size() <= kEvidenceChars) {
        return line;
    }
    size_t cut = kEvidenceChars;
    while (cut > kEvidenceChars - 3 && continuationByte(line[cut])) {
        --cut;
    }
    const bool split = cut < kEvidenceChars && static_cast<unsigned char>(line[cut]) >= 0xC0;
    return line.substr(0, split ? cut : kEvidenceChars);
}

// Erased flash where the boot loader belongs: the ROM finds nothing to start and
// says so in a tight loop, so fast that nothing before it survives in the
// transcript. Any other header is data it could not start from: it retries. A line
// cut before the whole header word tells neither.
std::optional<Sign> headerSign(std::string_view line) {
    const auto at = line.find(kInvalidHeader);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view word = line.substr(at + kInvalidHeader.size(), kHeaderDigits);
    if (word.size() < kHeaderDigits ||
        word.find_first_not_of("0123456789abcdef") != std::string_view::npos) {
        return std::nullopt;
    }
    return word == kErasedHeader ? Sign::NoApp : Sign::BootLoop;
}

// A crash is what the firmware reports of itself. The ROM's reset reason names no
// culprit: its boot loader resets the chip by a watchdog too while it retries an
// image it cannot start, so a watchdog reset line is one restart among others.
Sign signOf(const std::string& line) {
    for (const auto& pattern : kPatterns) {
        if (contains(line, pattern.text)) {
            return pattern.sign;
        }
    }
    if (const auto header = headerSign(line)) {
        return *header;
    }
    return contains(line, kBanner) || contains(line, kResetLine) ? Sign::BootLoop : Sign::None;
}

class Signs {
  public:
    void take(const std::string& line) {
        noteLast(line);
        const bool banner = contains(line, kBanner);
        const bool reset = contains(line, kResetLine);
        banners_ += banner ? 1 : 0;
        resets_ += reset ? 1 : 0;
        const Sign sign = signOf(line);
        if (sign == Sign::None) {
            return;
        }
        looping_ = looping_ || (sign == Sign::BootLoop && !banner && !reset);
        auto& kept = lines_[static_cast<size_t>(sign)];
        if (kept.size() < kEvidenceLines &&
            std::find(kept.begin(), kept.end(), line) == kept.end()) {
            kept.push_back(line);
        }
    }

    /// The gravest crash sign, if any; one restart is no loop.
    std::optional<Sign> crash() const {
        for (const Sign sign : {Sign::Brownout, Sign::Panic, Sign::NoApp}) {
            if (has(sign)) {
                return sign;
            }
        }
        if (looping_ || banners_ >= 2 || resets_ >= 2) {
            return Sign::BootLoop;
        }
        return std::nullopt;
    }

    bool has(Sign sign) const { return !lines_[static_cast<size_t>(sign)].empty(); }

    /// The lines of the signs from `from` to `to`, in rank order.
    std::vector<std::string> evidence(Sign from, Sign to) const {
        std::vector<std::string> out;
        for (auto s = static_cast<size_t>(from); s <= static_cast<size_t>(to); ++s) {
            for (const auto& line : lines_[s]) {
                if (out.size() < kEvidenceLines) {
                    out.push_back(quote(line));
                }
            }
        }
        return out;
    }

    /// What it said last, when nothing else tells.
    std::vector<std::string> lastLines() const {
        std::vector<std::string> out;
        for (const auto& line : last_) {
            out.push_back(quote(line));
        }
        return out;
    }

  private:
    void noteLast(const std::string& line) {
        const auto same = std::find(last_.begin(), last_.end(), line);
        if (same != last_.end()) {
            last_.erase(same);
        }
        last_.push_back(line);
        if (last_.size() > kEvidenceLines) {
            last_.erase(last_.begin());
        }
    }

    std::array<std::vector<std::string>, kSigns> lines_;
    std::vector<std::string> last_;
    int banners_ = 0;
    int resets_ = 0;
    bool looping_ = false;
};

Signs read(const uint8_t* transcript, size_t length) {
    Signs signs;
    const std::string_view text(reinterpret_cast<const char*>(transcript), length);
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find_first_of("\r\n", start);
        end = end == std::string_view::npos ? text.size() : end;
        const std::string line = clean(text.substr(start, end - start));
        if (!line.empty()) {
            signs.take(line);
        }
        start = end + 1;
    }
    return signs;
}

}  // namespace

StartupJudgement judgeStartup(const uint8_t* transcript, size_t length,
                              const std::optional<std::string>& version,
                              const std::string& expected) {
    static constexpr StartupVerdict kCrashVerdicts[] = {
        StartupVerdict::Brownout, StartupVerdict::Panic, StartupVerdict::NoApp,
        StartupVerdict::BootLoop};
    const Signs signs = read(transcript, length);
    if (const auto crash = signs.crash()) {
        // The lesser crash signs back the gravest one: a panic's restarts, say.
        return {kCrashVerdicts[static_cast<size_t>(*crash)],
                signs.evidence(*crash, Sign::BootLoop)};
    }
    if (signs.has(Sign::ConfigError)) {
        return {StartupVerdict::ConfigError, signs.evidence(Sign::ConfigError, Sign::ConfigError)};
    }
    if (version) {
        const bool expectedOne = version->find(expected) != std::string::npos;
        return {expectedOne ? StartupVerdict::Running : StartupVerdict::WrongVersion,
                signs.evidence(Sign::Version, Sign::Version)};
    }
    return {StartupVerdict::NoAnswer, signs.lastLines()};
}

}  // namespace fluidnc
