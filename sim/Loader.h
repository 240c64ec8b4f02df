#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sim/Device.h"
#include "sim/Framing.h"

namespace sim::detail {

/// The chip's ROM serial loader and, once started, the flasher stub: request
/// packets in SLIP frames in, response packets out (4 status bytes from the ROM,
/// 2 from the stub). Works on `Device` while its mode is RomLoader or Stub.
class Loader {
  public:
    explicit Loader(Device& device) : d_(device) {}

    /// The chip was reset into its ROM loader: stub, RAM, transfers and anything
    /// scheduled are gone.
    void reset();

    /// Takes host bytes; returns how many it used. It stops early when the mode
    /// changes (console text after FLASH_END, a reboot, the line going away).
    /// A host that stays quiet for 100 ms after FLASH_END has reset the chip (the
    /// modem-line pulse does not cross a pseudo-terminal): a scheduled output then
    /// changes the mode to Console.
    size_t consume(const uint8_t* data, size_t len);

  private:
    struct Request {
        uint8_t op;
        uint32_t checksum;
        const uint8_t* payload;
        size_t size;
        uint32_t word(size_t index) const { return le32(payload + 4 * index); }
    };
    struct Response {
        uint32_t value = 0;
        std::vector<uint8_t> data;
        uint8_t error = 0;  ///< 0: success; otherwise status 1 with this code
        int delayMs = 0;
    };
    using Result = std::optional<Response>;  ///< empty: nothing is answered

    static Response answer(uint32_t value = 0, std::vector<uint8_t> data = {}, int delayMs = 0) {
        return Response{value, std::move(data), 0, delayMs};
    }
    static Response failure(uint8_t error) { return Response{0, {}, error, 0}; }

    struct MemTransfer {
        uint32_t address;
        uint32_t size;
        uint32_t blockSize;
        uint32_t nextSeq;
        std::vector<uint8_t> data;
    };
    struct FlashWrite {
        uint32_t next;
        uint32_t nextSeq;
    };
    /// An acknowledged READ_FLASH: packets go out as acknowledgements allow.
    struct PacedRead {
        uint32_t address;
        uint32_t size;
        uint32_t packetSize;
        uint32_t window;  ///< packets it sends ahead of the acknowledgements
        int ordinal;      ///< counted over the plotter's life, from 0
        bool started = false;
        uint32_t sent = 0;
        uint32_t acked = 0;
    };

    void restartRom();
    bool garbleReply(uint8_t op);
    void handle(const std::vector<uint8_t>& packet);
    Result execute(const Request& r);
    void sendResponse(uint8_t op, const Response& response, size_t statusBytes);
    std::optional<ResponseFault> takeFault(uint8_t op);
    bool rom() const { return d_.mode != Mode::Stub; }
    int gapMs() const { return d_.config.frameGapMs > 0 ? d_.config.frameGapMs : 1; }

    Result sync(const Request& r);
    Result readReg(const Request& r);
    Result securityInfo(const Request& r);
    Result memBegin(const Request& r);
    Result memData(const Request& r);
    Result memEnd(const Request& r);
    Result eraseChip(const Request& r);
    Result flashBegin(const Request& r);
    Result flashData(const Request& r);
    Result flashEnd(const Request& r);
    Result flashMd5(const Request& r);
    Result readFlash(const Request& r);
    void scheduleReadData(uint32_t address, uint32_t size, uint32_t packetSize);
    void startPacedRead(const Request& r);
    /// True when `packet` was an acknowledgement of the read under way.
    bool takeAcknowledgement(const std::vector<uint8_t>& packet);
    void sendReadPackets(int64_t earliestNs);
    void sendReadDigest(int64_t earliestNs);
    void sendOnWire(std::vector<uint8_t> frame, int64_t earliestNs);
    void scheduleRestart();

    Device& d_;
    FrameReader reader_;
    int syncRequests_ = 0;
    int responsesSent_ = 0;
    std::map<uint8_t, int> responsesByOp_;
    int flashDataSeen_ = 0;
    uint64_t frames_ = 0;
    int md5Seen_ = 0;
    std::optional<MemTransfer> mem_;
    std::optional<FlashWrite> write_;
    bool appBegun_ = false;
    bool chipErased_ = false;  ///< a whole-chip erase since the last reset into ROM
    bool bootBegun_ = false;   ///< a FLASH_BEGIN at the bootloader's offset since then
    std::optional<PacedRead> read_;
    int pacedReads_ = 0;
    int readPacketsSent_ = 0;
    /// The stub took a request for read data: its reply to the next command is garbled.
    bool garbleNext_ = false;
    int64_t wireFreeNs_ = 0;  ///< when the line has sent what the stub gave it
};

/// Opcodes, error codes and helpers shared by the loader's source files.
namespace op {
inline constexpr uint8_t kFlashBegin = 0x02;
inline constexpr uint8_t kFlashData = 0x03;
inline constexpr uint8_t kFlashEnd = 0x04;
inline constexpr uint8_t kMemBegin = 0x05;
inline constexpr uint8_t kMemEnd = 0x06;
inline constexpr uint8_t kMemData = 0x07;
inline constexpr uint8_t kSync = 0x08;
inline constexpr uint8_t kReadReg = 0x0A;
inline constexpr uint8_t kSpiAttach = 0x0D;
inline constexpr uint8_t kSpiFlashMd5 = 0x13;
inline constexpr uint8_t kSecurityInfo = 0x14;
inline constexpr uint8_t kEraseChip = 0xD0;
inline constexpr uint8_t kReadFlash = 0xD2;
}  // namespace op

inline constexpr uint8_t kErrInvalid = 0x05;   ///< malformed, out of range, out of sequence
inline constexpr uint8_t kErrFailed = 0x06;    ///< not possible in the current state
inline constexpr uint8_t kErrChecksum = 0x07;  ///< data checksum mismatch

/// The host's hard reset holds RTS this long before it lets the chip run.
inline constexpr int64_t kHardResetNs = 100'000'000;

/// True when `size` bytes at `address` lie within the simulated flash.
inline bool inFlash(const Device& d, uint32_t address, uint32_t size) {
    return uint64_t{address} + size <= d.flash.size();
}

/// 0xEF folded with every byte by exclusive-or, as the data commands carry it.
uint8_t dataChecksum(const uint8_t* data, size_t len);

/// MD5 digest of `len` bytes.
std::vector<uint8_t> md5Digest(const uint8_t* data, size_t len);

/// "0x" and lower-case hexadecimal digits without padding.
std::string hex(uint32_t value);

}  // namespace sim::detail
