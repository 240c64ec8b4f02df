#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cerrno>

#include "serial/Clock.h"
#include "serial/SerialPort.h"

// Link seams over the virtual clock (--wrap=ppoll, --wrap=write): the port's wait
// for room in the line passes in virtual time, half of those waits end interrupted,
// and the device on the pseudo-terminal's master side reads the line only once the
// writer has waited `restNs` since the line last took a byte. Counting the rest from
// the last byte taken, not from the last read, keeps the case in virtual time when
// the kernel passes bytes on late under load: that progress moves the port's stall
// and the device's rest alike.
namespace {
int master = -1;
int64_t restNs = 0;
int64_t lastTakenNs = 0;
size_t received = 0;

void readLine() {
    char chunk[4096];
    for (ssize_t n; (n = ::read(master, chunk, sizeof chunk)) > 0;) {
        received += static_cast<size_t>(n);
    }
}
}  // namespace

extern "C" ssize_t __real_write(int fd, const void* data, size_t length);

extern "C" ssize_t __wrap_write(int fd, const void* data, size_t length) {
    const ssize_t n = __real_write(fd, data, length);
    if (n > 0) {
        lastTakenNs = mono::nowNs();
    }
    return n;
}

extern "C" int __real_ppoll(pollfd* fds, nfds_t count, const timespec* limit, const sigset_t* mask);

extern "C" int __wrap_ppoll(pollfd* fds, nfds_t count, const timespec* limit,
                            const sigset_t* mask) {
    if (mono::nowNs() - lastTakenNs < restNs) {
        mono::sleepMs(static_cast<int>((limit->tv_sec * 1'000'000'000 + limit->tv_nsec + 999'999) /
                                       1'000'000));
        // Every other wait ends as a signal would end it, which must not end the write.
        static bool interrupted = false;
        interrupted = !interrupted;
        errno = interrupted ? EINTR : errno;
        return interrupted ? -1 : 0;
    }
    // The kernel frees the writer's room a moment after the device reads; this
    // waits in real time, on no clock the port reads.
    const timespec none{0, 0};
    int ready = 0;
    for (int i = 0; i < 2000 && ready == 0; ++i, ::usleep(1000)) {
        readLine();
        ready = __real_ppoll(fds, count, &none, mask);
    }
    return ready;
}

// A device that lets a writer wait under 10 s takes a write many times what the
// line holds; one that lets it wait longer ends it. The stall counts from the last
// byte taken.
TEST(WriteStall, EndsAWriteOnlyAfterTenSecondsWithoutProgress) {
    const std::vector<uint8_t> block(256 * 1024, 'w');
    for (const auto& [restMs, written] : {std::pair{9900, true}, std::pair{10100, false}}) {
        SCOPED_TRACE(restMs);
        int slave = -1;
        char path[128];
        ASSERT_EQ(::openpty(&master, &slave, path, nullptr, nullptr), 0);
        ::fcntl(master, F_SETFL, O_NONBLOCK);
        SerialPort port;
        ASSERT_TRUE(port.open(path));
        restNs = int64_t{restMs} * 1'000'000;
        lastTakenNs = mono::nowNs();
        received = 0;
        EXPECT_EQ(port.write(block), written);
        for (int i = 0; i < 2000 && written && received < block.size(); ++i, ::usleep(1000)) {
            readLine();
        }
        EXPECT_EQ(received == block.size(), written);
        port.close();
        ::close(slave);
        ::close(master);
    }
}
