#pragma once

#include <string>

#include "SerialPort.h"

/// The modem-control word `bits` (as TIOCMGET gives it) with the line `lineBit`
/// (TIOCM_DTR or TIOCM_RTS) asserted when `level` is true and released otherwise;
/// every other bit is kept, so setting one line never disturbs the other.
constexpr int withModemLine(int bits, int lineBit, bool level) {
    return level ? (bits | lineBit) : (bits & ~lineBit);
}

/// A device node driven through the POSIX terminal interface. Owns its descriptor
/// and closes it when destroyed. One thread at a time.
///
/// While open, the terminal is exclusive (TIOCEXCL): no other unprivileged program
/// can open it until `close`, which clears the flag again. A write that makes no
/// progress for 10 s fails; a read on a hung-up line waits out its time-out and
/// notes the hang-up.
class PosixImpl final : public SerialPort::Impl {
  public:
    PosixImpl() = default;
    ~PosixImpl() override;
    PosixImpl(const PosixImpl&) = delete;
    PosixImpl& operator=(const PosixImpl&) = delete;

    /// Opens `path`, configures it raw at 115200 baud without flow control and makes
    /// it exclusive; on failure the descriptor is closed again and the result is false.
    bool open(const std::string& path);

    bool isOpen() const override { return fd_ >= 0; }
    void close() override;
    bool write(const uint8_t* data, size_t len) override;
    size_t read(uint8_t* buf, size_t len, int timeoutMs) override;
    bool setDTR(bool level) override;
    bool setRTS(bool level) override;
    void flush() override;
    bool hungUp() const override { return hungUp_; }

  private:
    bool configure();
    bool setModemBit(int bit, bool level);

    int fd_ = -1;
    bool hungUp_ = false;
};
