#include "PosixImpl.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "Clock.h"

namespace {

// Below a microsecond a wait would round to nothing and turn into a busy poll.
constexpr int64_t kMinWaitNs = 1'000;

// A device that stays attached but stops reading would otherwise hold a write,
// and the job around it, for ever.
constexpr int kWriteStallMs = 10'000;

// A pseudo-terminal frees buffer room in a kernel worker that wakes no writer, so
// a wait for POLLOUT can miss room that has appeared; the write is retried after
// at most this long.
constexpr int64_t kWriteRetryNs = 100'000'000;

int ceilMs(int64_t ns) {
    return static_cast<int>((ns + 999'999) / 1'000'000);
}

// ppoll rather than select: any descriptor number, and nanosecond time-outs.
int waitFor(pollfd& entry, int64_t ns) {
    const timespec limit{static_cast<time_t>(ns / 1'000'000'000),
                         static_cast<long>(ns % 1'000'000'000)};
    return ::ppoll(&entry, 1, &limit, nullptr);
}

// Writes wait with a time-out, so they must not block inside write(); reads keep
// the blocking descriptor that the open sequence leaves.
class NonBlockingScope {
  public:
    explicit NonBlockingScope(int fd) : fd_(fd), flags_(::fcntl(fd, F_GETFL)) {
        ::fcntl(fd_, F_SETFL, flags_ | O_NONBLOCK);
    }
    ~NonBlockingScope() { ::fcntl(fd_, F_SETFL, flags_); }
    NonBlockingScope(const NonBlockingScope&) = delete;
    NonBlockingScope& operator=(const NonBlockingScope&) = delete;

  private:
    int fd_;
    int flags_;
};

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
    // Another program that opened the port meanwhile would read the device's replies.
    ::ioctl(fd_, TIOCEXCL);
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
        // The flag belongs to the terminal, not to this descriptor: a node kept alive
        // by another descriptor (a pseudo-terminal's other user) would stay
        // exclusive and refuse the next job of an unprivileged user.
        ::ioctl(fd_, TIOCNXCL);
        ::close(fd_);
        fd_ = -1;
    }
}

bool PosixImpl::write(const uint8_t* data, size_t len) {
    if (fd_ < 0) {
        return false;
    }
    if (len == 0) {
        return true;
    }
    const NonBlockingScope nonBlocking(fd_);
    size_t done = 0;
    mono::Deadline stall(kWriteStallMs);
    while (done < len) {
        const ssize_t n = ::write(fd_, data + done, len - done);
        if (n > 0) {
            done += static_cast<size_t>(n);
            stall = mono::Deadline(kWriteStallMs);
            continue;
        }
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0 && errno != EAGAIN) {
            hungUp_ = hungUp_ || errno == EIO;
            return false;
        }
        const int64_t remaining = stall.remainingNs();
        if (remaining <= 0) {
            return false;
        }
        pollfd writable{fd_, POLLOUT, 0};
        if (waitFor(writable, std::min(remaining, kWriteRetryNs)) < 0 && errno != EINTR) {
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
        pollfd readable{fd_, POLLIN, 0};
        // An interrupted poll ends the read; only the read itself is retried.
        if (waitFor(readable, remaining) <= 0) {
            return 0;
        }
        const ssize_t n = (readable.revents & POLLIN) != 0 ? ::read(fd_, buf, len) : 0;
        if (n > 0) {
            return static_cast<size_t>(n);
        }
        // A hung-up line is readable at once and for ever; waiting out the time-out
        // keeps the callers' loops from spinning until their deadlines.
        if ((readable.revents & POLLHUP) != 0 || (n < 0 && errno == EIO)) {
            hungUp_ = true;
            mono::sleepMs(ceilMs(deadline.remainingNs()));
            return 0;
        }
        if (n == 0 || errno != EINTR) {
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
    bits = withModemLine(bits, bit, level);
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
