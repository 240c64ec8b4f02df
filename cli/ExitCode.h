#pragma once

/// teskal-flash's exit statuses besides the library's result codes (2 to 8) and
/// the application's (1 no device, 9 time-out), fixed so that scripts can rely
/// on them.
namespace ExitCode {

inline constexpr int success = 0;
inline constexpr int noDevice = 1;
inline constexpr int portNotOpened = 2;
/// The machine's configuration could not be read (save-config, diff-config).
inline constexpr int downloadFailed = 8;
inline constexpr int noAnswer = 9;
/// An image or configuration was refused before anything was sent.
inline constexpr int refused = 11;
/// An image or configuration the command needs is missing from the resources.
inline constexpr int missingResource = 12;
/// A child process that ran the command for one plotter ended abnormally.
inline constexpr int crashed = 70;
/// The command line could not be understood.
inline constexpr int usage = 64;
/// Stopped with Ctrl+C (128 + SIGINT).
inline constexpr int stopped = 130;

}  // namespace ExitCode
