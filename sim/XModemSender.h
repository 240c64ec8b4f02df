#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "sim/Device.h"

namespace sim::detail {

/// The console's XModem sender: waits for the host's request ('C' for CRC-16,
/// NAK for the 8-bit sum), sends the file in blocks of `Config::xmodemSendBlockSize`
/// with the last one padded with 0x1A, sends a block again on NAK, ends with EOT
/// and then prints "[MSG:INFO: Sent N bytes]" and "ok". A CAN from the host, before
/// or during the transfer, ends it at once. Works while the mode is XModemSend.
class XModemSender {
  public:
    explicit XModemSender(Device& device) : d_(device) {}

    /// Starts sending `file`; nothing goes out before the host's request.
    void start(std::vector<uint8_t> file);

    /// Ends a transfer and hands back to the console.
    void stop();

    /// Takes host bytes; returns how many it used. Stops early when the transfer
    /// ends or an END byte shows that the host reset the chip.
    size_t consume(const uint8_t* data, size_t len);

  private:
    void onByte(uint8_t byte);
    void sendCurrent();
    std::vector<uint8_t> block(size_t index) const;
    size_t blockCount() const;
    void finish();

    Device& d_;
    std::vector<uint8_t> file_;
    size_t current_ = 0;  ///< index of the block in flight; blockCount() means the EOT
    bool crc_ = true;
    bool requested_ = false;
    bool dropped_ = false;
    bool repeated_ = false;
    int corrupted_ = 0;
    int64_t lastInputNs_ = 0;
};

}  // namespace sim::detail
