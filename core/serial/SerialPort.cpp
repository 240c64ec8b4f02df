#include "SerialPort.h"

#include <utility>

#include "LoopbackImpl.h"
#include "PosixImpl.h"

SerialPort::SerialPort() = default;
SerialPort::~SerialPort() = default;
SerialPort::SerialPort(SerialPort&& other) noexcept = default;
SerialPort& SerialPort::operator=(SerialPort&& other) noexcept = default;

bool SerialPort::open(const std::string& path) {
    close();
    auto posix = std::make_unique<PosixImpl>();
    if (!posix->open(path)) {
        return false;
    }
    impl_ = std::move(posix);
    return true;
}

bool SerialPort::openLoopback(Handler handler, IdleSource idle, LineWatcher lines) {
    impl_ = std::make_unique<LoopbackImpl>(std::move(handler), std::move(idle), std::move(lines));
    return true;
}

void SerialPort::close() {
    if (impl_) {
        impl_->close();
    }
}

bool SerialPort::isOpen() const {
    return impl_ && impl_->isOpen();
}

bool SerialPort::write(const uint8_t* data, size_t len) {
    return impl_ && impl_->write(data, len);
}

bool SerialPort::write(const std::vector<uint8_t>& data) {
    return write(data.data(), data.size());
}

size_t SerialPort::read(uint8_t* buf, size_t len, int timeoutMs) {
    return impl_ ? impl_->read(buf, len, timeoutMs) : 0;
}

bool SerialPort::setDTR(bool level) {
    return impl_ && impl_->setDTR(level);
}

bool SerialPort::setRTS(bool level) {
    return impl_ && impl_->setRTS(level);
}

void SerialPort::flush() {
    if (impl_) {
        impl_->flush();
    }
}

bool SerialPort::hungUp() const {
    return impl_ && impl_->hungUp();
}
