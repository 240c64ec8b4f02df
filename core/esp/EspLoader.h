#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "serial/SerialPort.h"

namespace esp {

class FrameStream;

/// Result of one command exchange.
struct CommandResult {
    bool ok = false;            ///< answered the command sent, with status 0
    uint32_t value = 0;         ///< the response's value word; 0 without a usable response
    std::vector<uint8_t> data;  ///< the response's data; empty without a usable response
};

/// The flasher stub image header: five little-endian words.
struct StubHeader {
    uint32_t textAddr = 0;
    uint32_t textSize = 0;
    uint32_t dataAddr = 0;
    uint32_t dataSize = 0;
    uint32_t entry = 0;
};

/// Progress callback: fraction 0..1 and a short stage text; may be null.
using ProgressFn = void (*)(float, const char*);

/// How an acknowledged flash read is paced.
struct ReadPacing {
    /// Bytes per data packet. The stub answers a larger size with status 0 and then
    /// sends nothing, and garbles its reply to the next command.
    uint32_t packetSize = 4096;
    /// Packets the stub may send ahead of the acknowledgements; a stub may also wait
    /// for each acknowledgement whatever this says.
    uint32_t inFlight = 8;
};

/// How an acknowledged flash read ended.
enum class ReadEnd {
    done,            ///< every byte arrived and the stub's MD5 of them matched
    refused,         ///< READ_FLASH was not answered with status 0
    noData,          ///< 5 s passed without the next packet or the digest
    broken,          ///< a packet or digest of the wrong size, a corrupt frame, or an
                     ///< acknowledgement that could not be written
    digestMismatch,  ///< all bytes arrived, but the stub's MD5 of them differs
    stopped,         ///< the sink asked to stop
};

/// Receives a read's bytes in flash order, as they arrive; false stops the read.
using ReadSink = std::function<bool(const uint8_t* data, size_t size)>;

/// One conversation with the chip's ROM loader and, once started, its flasher stub.
///
/// Operations block the calling thread and return plain values; every protocol
/// failure is described by exactly one log line and leaves the session usable.
/// The port is borrowed and must outlive the loader.
class EspLoader {
  public:
    using LogFn = std::function<void(const std::string&)>;

    /// Protocol constants shared with the devices' block sizes.
    static constexpr uint32_t RAM_BLOCK = 6144;
    static constexpr uint32_t FLASH_BLOCK = 16384;
    static constexpr uint32_t SECURITY_FUSE_REG = 0x3FF5A018;

    /// Borrows `port`; `log` may be empty, in which case nothing is logged.
    EspLoader(SerialPort& port, LogFn log);

    /// Writes `slip::encode(packet)`; the write's result.
    bool sendFrame(const std::vector<uint8_t>& packet);

    /// Payload of the first complete frame within `timeoutMs`; empty on time-out.
    std::vector<uint8_t> receiveFrame(int timeoutMs);

    /// One request, one awaited response; no retry.
    CommandResult sendCommand(uint8_t op, const std::vector<uint8_t>& payload, uint32_t checksum,
                              int timeoutMs);

    /// Drives DTR and RTS through the five-step reset into the ROM loader (500 ms),
    /// then discards pending input. Always true.
    bool enterBootloader();

    /// Up to `attempts` SYNC exchanges, 500 ms each; drains extra replies on success.
    bool sync(int attempts);

    /// Chip id from GET_SECURITY_INFO (9 for the ESP32-S3), or 0.
    uint32_t readChipId();

    /// Register contents, or 0 when the read failed.
    uint32_t readReg(uint32_t address);

    /// True when the security fuse word has no bit set other than bit 2.
    bool checkSecurityFuses();

    /// Pulses RTS to restart the chip into its firmware; the stub is gone after it.
    void hardReset();

    /// Parses a stub image header; no value when the image is shorter than 20 bytes
    /// or its two segments extend past its end.
    static std::optional<StubHeader> parseStubHeader(const uint8_t* image, size_t length);

    /// Data-block payload: length, sequence, two zero words, then the data.
    static std::vector<uint8_t> buildDataPacket(const uint8_t* data, size_t length,
                                                uint32_t sequence);

    /// MEM_BEGIN and MEM_DATA blocks of at most 6144 bytes at `address`.
    bool uploadMemSegment(const uint8_t* data, size_t size, uint32_t address);

    /// Loads and starts the flasher stub; true once it has greeted with "OHAI".
    bool uploadStub(const uint8_t* image, size_t length);

    /// SPI_ATTACH with the default pins.
    bool attachFlash();

    /// Erases the whole flash chip (up to 60 s).
    bool eraseFlash();

    /// Writes a region in 16384-byte blocks padded with 0xFF, reporting
    /// progressBase + progressScale x (blocks written / blocks) after each block.
    bool flashImage(uint32_t address, const uint8_t* data, size_t size, ProgressFn progress,
                    float progressBase, float progressScale);

    /// FLASH_END; the device stays in the loader.
    bool flashEnd();

    /// Compares the device's MD5 of `size` bytes at `address` with the MD5 of `data`.
    bool verifyFlash(uint32_t address, size_t size, const uint8_t* data);

    /// The 16-byte MD5 digest of `data`.
    static std::vector<uint8_t> md5(const uint8_t* data, size_t size);

    /// Exactly `size` bytes of flash at `address`, or empty on failure.
    std::vector<uint8_t> readFlash(uint32_t address, size_t size);

    /// Reads `size` bytes of flash at `address` in acknowledged packets: each data
    /// packet is answered at once with the running total, and the stub's closing MD5
    /// must match what arrived. Every wait is bounded (3 s for the answer, 5 s for
    /// each packet and the digest); each failure writes one log line. Bytes go to
    /// `sink` as they arrive, so they only become a copy of the flash once the
    /// result is `done`. After any end but `done` and `digestMismatch` the stub may
    /// still be inside the read, so the session sends no further command until the
    /// next `enterBootloader` or `hardReset` (each is refused with one log line).
    ReadEnd readFlashAcknowledged(uint32_t address, size_t size, const ReadSink& sink,
                                  const ReadPacing& pacing = {});

    /// True after the stub has greeted and until `hardReset`.
    bool stubRunning() const { return stubRunning_; }

  private:
    void log(const std::string& line) const;
    bool sendRequest(uint8_t op, const std::vector<uint8_t>& payload, uint32_t checksum);
    CommandResult judgeResponse(uint8_t op, const std::vector<uint8_t>& frame);
    ReadEnd receiveRead(FrameStream& stream, size_t size, const ReadSink& sink,
                        const ReadPacing& pacing);

    SerialPort& port_;
    LogFn log_;
    bool stubRunning_ = false;
    /// A read was left unfinished: the stub may take the next command for read data.
    bool readUnfinished_ = false;
};

}  // namespace esp
