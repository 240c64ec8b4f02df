#pragma once

#include <optional>
#include <string_view>

namespace sim {

/// How the simulated chip starts each time it restarts into its firmware (after
/// the reset that ends a flash, after "$Bye"): what it prints, and whether a
/// firmware then runs and answers its console ("$I", "$SS" and the rest).
enum class Startup {
    Healthy,        ///< ROM banner, boot loader, the firmware's "[MSG:INFO:" lines; answers
    BootLoop,       ///< restarts over and over, a ROM banner each time; never answers
    Panic,          ///< a Guru Meditation report and backtrace, then a reboot, again and again
    NoApplication,  ///< "No bootable app partitions", then an "invalid header" flood (~60 KB/s)
    Brownout,       ///< "Brownout detector was triggered" and a reset, again and again
    ConfigError,    ///< a healthy start with "[MSG:ERR:" lines; answers
    Silent,         ///< prints nothing and never answers
    OtherVersion,   ///< a healthy start, but "$I" reports another version than the update's
};

/// Every start-up, in declaration order (for menus and help texts).
inline constexpr Startup kStartups[] = {
    Startup::Healthy,  Startup::BootLoop,    Startup::Panic,  Startup::NoApplication,
    Startup::Brownout, Startup::ConfigError, Startup::Silent, Startup::OtherVersion,
};

/// The start-up's name on command lines: "healthy", "boot-loop", "panic", "no-app",
/// "brownout", "config-error", "silent", "other-version".
std::string_view startupName(Startup startup);

/// The start-up with that name (exact, lower case), or nothing.
std::optional<Startup> parseStartup(std::string_view name);

}  // namespace sim
