#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A move-only handle over one serial back end: a POSIX device node or an
/// in-process loopback whose handler answers every write.
///
/// One thread at a time; every blocking call runs on the caller's thread.
/// Destroying the handle closes the device.
class SerialPort {
  public:
    /// Turns written bytes into the reply bytes that later reads hand out.
    using Handler = std::function<std::vector<uint8_t>(const uint8_t*, size_t)>;

    /// Optional source of bytes that arrive on their own, without a write: asked by
    /// a loopback read that finds its queue empty, with the read's time-out in ms
    /// (always positive). A simulated device uses it for its unprompted output
    /// (handshake bytes, boot text) and to let virtual time pass while it is silent.
    using IdleSource = std::function<std::vector<uint8_t>(int timeoutMs)>;

    /// The two modem-control lines.
    enum class Line { DTR, RTS };

    /// Optional watcher that a loopback tells of every `setDTR` and `setRTS` call, in
    /// call order, with the level recorded. A simulated chip uses it to react to the
    /// reset sequences as the real one does; tests use it to check those sequences.
    using LineWatcher = std::function<void(Line line, bool level)>;

    /// The back end interface; every back end overrides every operation.
    class Impl {
      public:
        virtual ~Impl() = default;
        virtual bool isOpen() const = 0;
        virtual void close() = 0;
        virtual bool write(const uint8_t* data, size_t len) = 0;
        virtual size_t read(uint8_t* buf, size_t len, int timeoutMs) = 0;
        virtual bool setDTR(bool level) = 0;
        virtual bool setRTS(bool level) = 0;
        virtual void flush() = 0;
        virtual bool hungUp() const = 0;
    };

    SerialPort();
    ~SerialPort();
    SerialPort(SerialPort&& other) noexcept;
    SerialPort& operator=(SerialPort&& other) noexcept;
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;

    /// Opens a device node raw at 115200 baud, 8N1, no flow control, exclusive to
    /// this handle until it closes. Closes the back end held before. False when the
    /// node cannot be opened or configured.
    bool open(const std::string& path);

    /// Installs an open loopback back end driven by `handler`; always true. The
    /// handler, idle source and line watcher run on the thread that writes, reads or
    /// sets a line.
    bool openLoopback(Handler handler, IdleSource idle = {}, LineWatcher lines = {});

    /// Closes the device; the back end stays in the handle, closed.
    void close();
    bool isOpen() const;

    /// Writes every byte, retrying interrupted and partial writes; 0 bytes is true.
    /// On a device node, false once 10 s pass without any byte being taken.
    bool write(const uint8_t* data, size_t len);
    bool write(const std::vector<uint8_t>& data);

    /// Returns the bytes of one read call (1..len), or 0 for time-out, error or end
    /// of file. Never waits for `len` bytes; a time-out below 1 µs reads nothing.
    /// On a hung-up line it returns 0 only once the time-out has passed.
    size_t read(uint8_t* buf, size_t len, int timeoutMs);

    /// Asserts (true) or releases (false) a modem-control line; false on failure.
    bool setDTR(bool level);
    bool setRTS(bool level);

    /// Discards received bytes not yet read.
    void flush();

    /// True once a read or write on this device found the line hung up (the device
    /// went away, as a USB serial port may while its chip restarts); it stays true
    /// until the handle opens again. Always false for a loopback.
    bool hungUp() const;

  private:
    std::unique_ptr<Impl> impl_;
};
