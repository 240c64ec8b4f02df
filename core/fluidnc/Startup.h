#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Judging how a machine started after a restart from what it printed: the chip's
/// ROM, its second-stage boot loader and the firmware each leave their own lines.
namespace fluidnc {

/// The verdicts, from the healthiest; the values are those of the C interface's
/// `esp_startup_verdict`.
enum class StartupVerdict {
    Running = 0,       ///< answered a version that contains the expected one (or none expected)
    WrongVersion = 1,  ///< answered another version
    BootLoop = 2,  ///< restarts over and over: two ROM banners or reset lines, an invalid header
    Panic = 3,     ///< the firmware reports a crash: panic, abort, backtrace, task watchdog, stack
    NoApp = 4,     ///< nothing to start: no bootable application, a corrupt or erased image
    Brownout = 5,  ///< the brown-out detector reset the chip (not enough power)
    ConfigError = 6,  ///< the firmware runs but reported errors reading its configuration
    NoAnswer = 7,     ///< no version and nothing conclusive
};

/// At most this many evidence lines, each cut to at most this many bytes.
inline constexpr size_t kEvidenceLines = 5;
inline constexpr size_t kEvidenceChars = 200;

struct StartupJudgement {
    StartupVerdict verdict = StartupVerdict::NoAnswer;
    /// Lines quoted from the transcript, most telling first, without line ends,
    /// control bytes or terminal colour codes; identical lines are quoted once.
    std::vector<std::string> evidence;
};

/// Judges a start-up from `transcript` (`length` bytes, possibly cut at either end,
/// possibly binary noise), the `version` the firmware answered, if it did, and the
/// `expected` version text (empty: any version is right). A crash outranks a
/// configuration error, which outranks the version: brown-out, panic, no
/// application, boot loop, configuration error, then running or wrong version,
/// and no answer last. One ROM banner before a healthy start is normal. Pure;
/// `transcript` may be null when `length` is 0.
StartupJudgement judgeStartup(const uint8_t* transcript, size_t length,
                              const std::optional<std::string>& version,
                              const std::string& expected);

}  // namespace fluidnc
