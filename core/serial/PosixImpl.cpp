#include "PosixImpl.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>

#include "Clock.h"

namespace {

// Below a microsecond the select time-out would truncate to zero and turn into a poll.
constexpr int64_t kMinWaitNs = 1'000;

timeval toTimeval(int64_t ns) {
    timeval tv{};
    tv.tv_sec = static_cast<time_t>(ns / 1'000'000'000);
    tv.tv_usec = static_cast<suseconds_t>((ns % 1'000'000'000) / 1'000);
    return tv;
}

}  // namespace

PosixImpl::~PosixImpl() {
    close();
}

bool PosixImpl::open(const std::string& path) {
    // O_NONBLOCK only so that opening cannot hang on carrier detect; I/O blocks later.
    fd_ = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (fd_ < 0) {
        return false;
    }
    ::fcntl(fd_, F_SETFL, ::fcntl(fd_, F_GETFL) & ~O_NONBLOCK);
    if (!configure()) {
        close();
        return false;
    }
    return true;
}

bool PosixImpl::configure() {
    termios tio{};
    if (::tcgetattr(fd_, &tio) != 0) {
        return false;
    }
    ::cfmakeraw(&tio);
    tio.c_cflag |= CLOCAL | CREAD;
    tio.c_cflag &= ~CRTSCTS;
    ::cfsetispeed(&tio, B115200);
    ::cfsetospeed(&tio, B115200);
    tio.c_cc[VMIN] = 0;
    tio.c_cc[VTIME] = 0;
    return ::tcsetattr(fd_, TCSANOW, &tio) == 0;
}

void PosixImpl::close() {
    if (fd_ >= 0) {
        ::close(fd_);
        fd_ = -1;
    }
}

bool PosixImpl::write(const uint8_t* data, size_t len) {
    if (fd_ < 0) {
        return false;
    }
    size_t done = 0;
    while (done < len) {
        const ssize_t n = ::write(fd_, data + done, len - done);
        if (n >= 0) {
            done += static_cast<size_t>(n);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

size_t PosixImpl::read(uint8_t* buf, size_t len, int timeoutMs) {
    if (fd_ < 0) {
        return 0;
    }
    const mono::Deadline deadline(timeoutMs);
    int64_t remaining = deadline.remainingNs();
    while (remaining >= kMinWaitNs) {
        fd_set readable;
        FD_ZERO(&readable);
        FD_SET(fd_, &readable);
        timeval tv = toTimeval(remaining);
        // An interrupted select ends the read; only the read itself is retried.
        if (::select(fd_ + 1, &readable, nullptr, nullptr, &tv) <= 0) {
            return 0;
        }
        const ssize_t n = ::read(fd_, buf, len);
        if (n >= 0) {
            return static_cast<size_t>(n);
        }
        if (errno != EINTR) {
            return 0;
        }
        remaining = deadline.remainingNs();
    }
    return 0;
}

bool PosixImpl::setModemBit(int bit, bool level) {
    int bits = 0;
    if (::ioctl(fd_, TIOCMGET, &bits) != 0) {
        return false;
    }
    bits &= ~bit;
    if (level) {
        bits |= bit;
    }
    return ::ioctl(fd_, TIOCMSET, &bits) == 0;
}

bool PosixImpl::setDTR(bool level) {
    return setModemBit(TIOCM_DTR, level);
}

bool PosixImpl::setRTS(bool level) {
    return setModemBit(TIOCM_RTS, level);
}

void PosixImpl::flush() {
    if (fd_ >= 0) {
        ::tcflush(fd_, TCIFLUSH);
    }
}
