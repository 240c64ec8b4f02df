#pragma once

#include <vector>

#include "SerialPort.h"

/// An in-process back end: every write goes to a handler whose reply is queued for
/// later reads. Reads never wait. Open from creation until `close()`; one thread at
/// a time.
class LoopbackImpl final : public SerialPort::Impl {
  public:
    LoopbackImpl(SerialPort::Handler handler, SerialPort::IdleSource idle,
                 SerialPort::LineWatcher lines);

    bool isOpen() const override { return open_; }
    void close() override;
    bool write(const uint8_t* data, size_t len) override;
    size_t read(uint8_t* buf, size_t len, int timeoutMs) override;
    bool setDTR(bool level) override;
    bool setRTS(bool level) override;
    void flush() override;
    bool hungUp() const override { return false; }

  private:
    void enqueue(const std::vector<uint8_t>& bytes);
    void tellWatcher(SerialPort::Line line, bool level) const;

    SerialPort::Handler handler_;
    std::vector<uint8_t> queue_;
    bool dtr_ = false;
    bool rts_ = false;
    bool open_ = true;
    SerialPort::IdleSource idle_;
    SerialPort::LineWatcher lines_;
};
