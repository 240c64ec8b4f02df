#include "LoopbackImpl.h"

#include <algorithm>
#include <cstring>
#include <utility>

LoopbackImpl::LoopbackImpl(SerialPort::Handler handler, SerialPort::IdleSource idle,
                           SerialPort::LineWatcher lines)
    : handler_(std::move(handler)), idle_(std::move(idle)), lines_(std::move(lines)) {}

void LoopbackImpl::close() {
    open_ = false;
    queue_.clear();
}

bool LoopbackImpl::write(const uint8_t* data, size_t len) {
    if (!open_) {
        return false;
    }
    enqueue(handler_(data, len));
    return true;
}

size_t LoopbackImpl::read(uint8_t* buf, size_t len, int timeoutMs) {
    if (!open_) {
        return 0;
    }
    if (queue_.empty() && timeoutMs > 0 && idle_) {
        enqueue(idle_(timeoutMs));
    }
    const size_t n = std::min(queue_.size(), len);
    if (n == 0) {
        return 0;
    }
    std::memcpy(buf, queue_.data(), n);
    queue_.erase(queue_.begin(), queue_.begin() + static_cast<std::ptrdiff_t>(n));
    return n;
}

bool LoopbackImpl::setDTR(bool level) {
    dtr_ = level;
    tellWatcher(SerialPort::Line::DTR, level);
    return true;
}

bool LoopbackImpl::setRTS(bool level) {
    rts_ = level;
    tellWatcher(SerialPort::Line::RTS, level);
    return true;
}

void LoopbackImpl::flush() {
    queue_.clear();
}

void LoopbackImpl::enqueue(const std::vector<uint8_t>& bytes) {
    queue_.insert(queue_.end(), bytes.begin(), bytes.end());
}

void LoopbackImpl::tellWatcher(SerialPort::Line line, bool level) const {
    if (lines_) {
        lines_(line, level);
    }
}
