#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "sim/Device.h"

namespace sim::detail {

/// The console's XModem receiver: handshakes about once a second, takes 128-byte
/// (SOH) and 1024-byte (STX) blocks with a CRC-16 or an 8-bit sum, and stores the
/// file in `Device::files` when the EOT is accepted. Works while the mode is XModem.
class XModemReceiver {
  public:
    explicit XModemReceiver(Device& device) : d_(device) {}

    /// Starts receiving `fileName`; the first handshake follows after
    /// `Config::handshakeFirstMs`.
    void start(std::string fileName);

    /// Ends a transfer without storing anything and hands back to the console.
    void stop();

    /// Takes host bytes; returns how many it used. Stops early when the transfer
    /// ends or an END byte between blocks shows that the host reset the chip.
    size_t consume(const uint8_t* data, size_t len);

  private:
    std::vector<uint8_t> handshake(uint64_t generation);
    size_t blockLength(uint8_t header) const;
    void onBlock();
    bool checkPasses() const;
    void onEndOfTransmission();
    void answer(std::vector<uint8_t> bytes);

    Device& d_;
    std::string fileName_;
    std::vector<uint8_t> file_;
    std::vector<uint8_t> block_;
    size_t blockLength_ = 0;
    size_t lastBlockStart_ = 0;
    int accepted_ = 0;
    int naksSent_ = 0;
    int handshakesSent_ = 0;
    bool crc_ = true;
    bool active_ = false;
    bool started_ = false;  ///< a block or EOT arrived: handshakes stop
    int64_t lastInputNs_ = 0;
    uint64_t generation_ = 0;
};

}  // namespace sim::detail
