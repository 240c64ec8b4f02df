#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "sim/Boot.h"
#include "sim/Device.h"
#include "sim/XModemReceiver.h"
#include "sim/XModemSender.h"

namespace sim::detail {

/// The firmware's line console ("$I", "$SS", "$Xmodem/Receive=<file>",
/// "$Xmodem/Send=<file>", "$Bye") and the XModem receiver and sender it starts, and
/// what the chip prints when it restarts into the firmware. Works on `Device` while
/// the mode is Console, XModem or XModemSend.
class Console {
  public:
    explicit Console(Device& device) : d_(device), xmodem_(device), sender_(device), boot_(device) {
        startFlood();
    }

    /// The chip restarted into its firmware at `restartNs`, reset by the host
    /// (`byHost`) or by the firmware itself; input that arrives before `readyNs` finds
    /// it still booting and goes unanswered, and a firmware that does not come up
    /// answers nothing.
    void restart(int64_t restartNs, int64_t readyNs, bool byHost);

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
    Boot boot_;
    std::string line_;
    int64_t readyNs_ = 0;
};

}  // namespace sim::detail
