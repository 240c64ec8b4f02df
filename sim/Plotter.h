#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "sim/Config.h"

/// A simulated ESP32-S3 plotter controller: ROM loader, flasher stub and the
/// firmware's console with its XModem receiver and sender, behind one byte stream.
namespace sim {

/// Single-threaded state machine: bytes from the host go in, reply bytes come out.
///
/// It switches mode by what arrives, since a pseudo-terminal carries no modem
/// lines: a SLIP frame in console mode means the host reset the chip into its ROM
/// loader; any SYNC means a fresh reset into ROM; console text after FLASH_END or
/// after an acknowledged read, or no loader frame for 100 ms after FLASH_END (the
/// host's hard reset), means the chip restarted into its firmware, which then starts
/// as its flash says (see `Config::startup`).
///
/// Output that must reach the host separately from a command's reply (the stub's
/// greeting, extra SYNC replies, READ_FLASH data, XModem handshakes, delayed
/// responses) is scheduled on `mono::nowNs()` and handed out by `onIdle` or
/// `takeDueOutput`. Not thread-safe; `PtyPlotter` wraps it in a lock. Movable.
class Plotter {
  public:
    using Mode = sim::Mode;

    explicit Plotter(Config config = {});
    ~Plotter();
    Plotter(Plotter&&) noexcept;
    Plotter& operator=(Plotter&&) noexcept;

    /// Takes bytes the host wrote; returns the reply to hand out at once (at most
    /// one loader frame, so a host that drops what follows a frame loses nothing;
    /// only an acknowledged read, which the host reads as a stream, may put its
    /// packets behind a response).
    std::vector<uint8_t> onHostBytes(const uint8_t* data, size_t len);

    /// The loopback's idle source: waits up to `timeoutMs` with `mono::sleepMs` for
    /// the next scheduled output and returns it, or nothing after the full wait.
    /// Never returns output before it is due.
    std::vector<uint8_t> onIdle(int timeoutMs);

    /// When the next scheduled output is due (monotonic ns), if any is pending.
    std::optional<int64_t> nextOutputNs() const;

    /// Removes and returns the earliest scheduled output due at `nowNs`; empty when
    /// none is due. One frame per call, so callers can send each one on its own.
    std::vector<uint8_t> takeDueOutput(int64_t nowNs);

    Mode mode() const;

    /// True once the chip has hung (`Config::hangAfterFlashData`): it takes nothing more.
    bool hung() const;

    /// The simulated flash, `Config::flashSize` bytes, 0xFF when erased.
    const std::vector<uint8_t>& flash() const;

    /// Places bytes in flash as if written earlier (for example a partition table).
    void loadFlash(uint32_t address, const std::vector<uint8_t>& bytes);

    /// Segments loaded into RAM with MEM_BEGIN/MEM_DATA, by load address.
    const std::map<uint32_t, std::vector<uint8_t>>& ram() const;

    /// The bytes of config.yaml once a transfer of it ended with an accepted EOT.
    /// The last block's trailing 0x1A bytes are taken for padding and removed, so a
    /// file that itself ends in 0x1A comes back shorter.
    std::optional<std::vector<uint8_t>> storedConfig() const;

    /// What the device received, one short entry per command, console line or
    /// XModem block (for example "FLASH_DATA 3", "$I", "XMODEM 1"); never data.
    const std::vector<std::string>& transcript() const;

    /// The version report "$I" gives now: after an update `Config::versionAfterUpdate`
    /// or the flashed application's own version when its descriptor holds one,
    /// another one for `Startup::OtherVersion`, otherwise `Config::versionReport`.
    std::string versionReport() const;

    /// How the chip started at its last restart into its firmware (healthy before the
    /// first): what its flash made of it, which a menu of start-ups shows.
    Startup startup() const;

    /// Live settings; changes apply to what arrives next.
    Config& config();
    const Config& config() const;

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace sim
