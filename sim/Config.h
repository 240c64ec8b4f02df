#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sim/Startup.h"

/// Settings of the simulated plotter controller: identity, fault knobs and delays.
///
/// Every knob defaults to a healthy ESP32-S3 plotter that answers at once. Counts
/// named "occurrence" or "after" are taken over the whole life of one `Plotter`
/// (they do not restart when the host resets the chip), so a fault campaign can aim
/// at, say, the fourth FLASH_DATA of a job. All times are milliseconds.
namespace sim {

/// Where the simulated device currently is.
enum class Mode {
    Console,     ///< the firmware's text console
    RomLoader,   ///< the ROM serial bootloader (4 status bytes per response)
    Stub,        ///< the flasher stub runs (2 status bytes per response)
    XModem,      ///< the console's XModem receiver
    XModemSend,  ///< the console's XModem sender
    Gone,        ///< the line went away: nothing is answered any more
};

/// How one loader response is spoiled on the wire. The command itself takes
/// effect as usual; only what the host receives changes.
enum class FaultKind {
    Drop,           ///< the response is never sent
    Duplicate,      ///< sent, then sent again as a separate frame one gap later
    Corrupt,        ///< carries an invalid escape (0xDB 0x01), so no host can decode it
    Truncate,       ///< only the first half of the frame, without its closing END
    GarbageBefore,  ///< noise bytes (no 0xC0) in front of the frame, in the same write
    WrongOpcode,    ///< the response names another command (opcode XOR 1)
    ErrorStatus,    ///< status 1 with `ResponseFault::errorCode`
};

/// Selects one response of the ROM loader or stub to spoil: the `occurrence`-th
/// (from 0) response that the device sends to `op`, or to any command when `op`
/// is empty. Only command responses count: extra SYNC replies, the greeting and
/// READ_FLASH data frames are never spoiled.
struct ResponseFault {
    std::optional<uint8_t> op;
    int occurrence = 0;
    FaultKind kind = FaultKind::Drop;
    uint8_t errorCode = 0x06;
};

struct Config {
    // Identity.
    uint32_t chipId = 9;                  ///< GET_SECURITY_INFO word at data offset 12
    uint32_t securityFuses = 0;           ///< READ_REG 0x3FF5A018
    size_t flashSize = 16 * 1024 * 1024;  ///< bytes of simulated flash, erased (0xFF)
    std::string versionReport = "FluidNC v3.7.8 (sim)";  ///< "[VER:" report ":]"; may be empty
    /// The version the firmware reports once it has been updated; absent: the flashed
    /// application's own (from its descriptor), or `versionReport` without one.
    std::optional<std::string> versionAfterUpdate;
    /// A flashed application whose own version is `first` reports `second` instead
    /// (an image that stands in for a release); unused when `versionAfterUpdate` is set.
    std::optional<std::pair<std::string, std::string>> standIn;

    // ROM loader and stub.
    bool silent = false;      ///< the device answers nothing at all, in any mode
    int syncFromAttempt = 1;  ///< SYNC requests before this one (counted from 1) go unanswered
    int syncReplies = 8;      ///< responses to one answered SYNC, each its own frame
    bool greeting = true;     ///< the stub sends "OHAI" after MEM_END
    std::optional<int> wrongMd5At;  ///< this SPI_FLASH_MD5 (from 0) answers a wrong digest
    /// This FLASH_DATA (from 0) is answered as written, but one of its bytes lands
    /// wrong in flash (a weak cell); only the region's MD5 can tell.
    std::optional<int> badFlashDataAt;
    std::vector<ResponseFault> responseFaults;

    // READ_FLASH. Packets of up to 4096 bytes are read as the flasher stub does it: one
    // packet, then nothing until the host acknowledges it with the running total (a
    // SLIP frame of one little-endian word), and the MD5 of the region once an
    // acknowledgement reaches its size. Larger packets go out without acknowledgements,
    // one gap apart, then the MD5, unless `readPacketLimit` is set.
    /// The real stub's limit: a packet size above 4096 is answered with status 0, then
    /// nothing is sent, and the reply to the next command has a 2-byte body with status
    /// 0xC0. Off by default, so the partition-table probe's one 16384-byte packet comes.
    bool readPacketLimit = false;
    /// The stub sends as many packets ahead of the acknowledgements as the request's
    /// in-flight field allows, where the measured one waits for each.
    bool readSendsAhead = false;
    /// Once this many acknowledged packets were sent, the read stalls: nothing follows.
    std::optional<int> readStallAfterPackets;
    /// This acknowledged read (from 0) ends with a wrong MD5.
    std::optional<int> wrongReadDigestAt;

    // Firmware console.
    bool silentConsole = false;    ///< console lines are taken but never answered
    bool okBeforeVersion = false;  ///< "$I" prints "ok" before its "[VER:" line
    /// The firmware is stuck in a status loop: whenever it runs, it prints a status
    /// line every 5 ms without end and answers nothing. A reset into the loader
    /// stops it; the restart after flashing starts it again.
    bool floodConsole = false;
    /// How the chip starts when it restarts into its firmware from a flash it has not
    /// started from before, or at any restart once this was changed; a flash it has
    /// started from starts as it did then, and the flash before the first write as a
    /// healthy one (so writing an earlier flash back brings back its start). After each
    /// restart it holds the start the chip had. A whole-chip erase followed by a full
    /// flash sets it back to healthy, but for a brown-out.
    Startup startup = Startup::Healthy;

    // XModem receiver. Block ordinals count the file's blocks from 1.
    bool xmodemCrc = true;              ///< handshake 'C' (CRC-16); false: NAK (8-bit sum)
    bool xmodemHandshake = true;        ///< false: the receiver never sends its handshake
    int xmodemHandshakeTries = 60;      ///< handshakes sent before the receiver gives up
    std::string xmodemJunk;             ///< bytes sent just before the first handshake
    std::optional<int> xmodemNakBlock;  ///< this block is refused with NAK ...
    int xmodemNakTimes = 1;             ///< ... this many times before it is taken
    std::optional<int> xmodemCanBlock;  ///< this block is answered with CAN CAN
    bool xmodemAckEot = true;           ///< false: every EOT is answered with NAK
    int xmodemIdleTimeoutMs = 10000;    ///< a transfer silent this long is abandoned

    // XModem sender ("$Xmodem/Send=<file>"). Block ordinals count the file's blocks from 1.
    /// config.yaml before any upload; absent: a built-in default. A whole-chip erase
    /// empties the file system, this file included.
    std::optional<std::string> machineConfig;
    bool xmodemSendSilent = false;      ///< the send command is taken but never answered
    bool xmodemSendCrc = true;          ///< false: 'C' is ignored, only NAK starts (8-bit sum)
    size_t xmodemSendBlockSize = 1024;  ///< 1024 (STX blocks) or 128 (SOH blocks)
    std::optional<int> xmodemSendCorruptBlock;  ///< this block goes out with a wrong byte ...
    int xmodemSendCorruptTimes = 1;             ///< ... this many times before it is right
    std::optional<int> xmodemSendDropBlock;     ///< this block's first transmission is lost
    std::optional<int> xmodemSendCanBlock;      ///< CAN CAN is sent in place of this block
    std::optional<int> xmodemSendRepeatBlock;   ///< sent again once after its ACK (ACK lost)

    // The line going away (Mode::Gone; over a pseudo-terminal its master closes).
    std::optional<int> goneAfterFlashData;     ///< after this many FLASH_DATA were answered
    std::optional<int> goneAtMd5;              ///< on this SPI_FLASH_MD5 (from 0), unanswered
    std::optional<int> goneAfterXModemBlocks;  ///< after this many blocks were acknowledged
    /// When the chip restarts into its firmware, as a USB serial port may vanish
    /// while its chip resets.
    bool goneAtRestart = false;

    /// After this many FLASH_DATA were answered the chip hangs with the line still
    /// there: it answers nothing and takes no more bytes, so over a pseudo-terminal
    /// the host's writes stall once the line's buffer is full.
    std::optional<int> hangAfterFlashData;

    // Timing. Loader frames that must reach the host in reads of their own (the
    // greeting, extra SYNC replies, unacknowledged READ_FLASH data, duplicates) follow
    // one another `frameGapMs` apart; the delays postpone the response of their command.
    int frameGapMs = 5;
    /// Bytes per second on the line for the stub's part of an acknowledged read (its
    /// packets and MD5): each arrives once its last byte would have; 0: at once.
    int64_t linkBytesPerSecond = 0;
    /// From an acknowledgement to the stub's next packet or its MD5.
    int readTurnaroundMs = 0;
    int flashBeginDelayMs = 0;       ///< per FLASH_BEGIN (the region's erase)
    int flashBlockDelayMs = 0;       ///< per FLASH_DATA
    int eraseDelayMs = 0;            ///< whole-chip erase
    int md5DelayMs = 0;              ///< per SPI_FLASH_MD5
    int bootMs = 0;                  ///< after a restart the console ignores input this long
    int consoleDelayMs = 0;          ///< before each console reply
    int handshakeFirstMs = 1000;     ///< from the receive command to the first handshake
    int handshakeIntervalMs = 1000;  ///< between handshakes
};

}  // namespace sim
