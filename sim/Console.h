#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "sim/Device.h"
#include "sim/XModemReceiver.h"
#include "sim/XModemSender.h"

namespace sim::detail {

/// The firmware's line console ("$I", "$Xmodem/Receive=<file>", "$Xmodem/Send=<file>",
/// "$Bye") and the XModem receiver and sender it starts. Works on `Device` while the
/// mode is Console, XModem or XModemSend.
class Console {
  public:
    explicit Console(Device& device) : d_(device), xmodem_(device), sender_(device) {
        startFlood();
    }

    /// The firmware starts afresh; input that arrives before `readyNs` finds it
    /// still booting and goes unanswered.
    void restart(int64_t readyNs);

    /// Takes host bytes; returns how many it used. Stops early at an END byte
    /// (the host reset the chip into its loader) or when the mode changes.
    size_t consume(const uint8_t* data, size_t len);

  private:
    size_t consumeLines(const uint8_t* data, size_t len);
    void onLine(const std::string& line);
    void startSending(const std::string& name);
    void reply(const std::string& text);
    void startFlood();

    Device& d_;
    XModemReceiver xmodem_;
    XModemSender sender_;
    std::string line_;
    int64_t readyNs_ = 0;
};

}  // namespace sim::detail
