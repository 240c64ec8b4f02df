#include "sim/PtyPlotter.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include "serial/Clock.h"

namespace sim {

namespace {

// A chip's USB serial unit drops what it prints while the host reads nothing; a
// console that never stops printing must not fill the simulator's memory instead.
constexpr size_t kMaxUnreadOutput = 64 * 1024;

[[noreturn]] void throwErrno(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

void closeFd(int& fd) {
    if (fd >= 0) {
        ::close(fd);
        fd = -1;
    }
}

}  // namespace

struct PtyPlotter::Impl {
    explicit Impl(Config config);
    ~Impl();

    void run();
    std::optional<int64_t> pollTimeoutNs();
    bool deviceHung() const;
    bool serviceWakeUp();
    void readInput();
    void writeScheduled();
    void flushOutput();
    void takeOutput(std::vector<uint8_t> bytes, bool gone);
    void closeLine();

    mutable std::mutex mutex;
    std::condition_variable unplugged;
    Plotter plotter;
    bool stopRequested = false;
    bool unplugRequested = false;
    bool lineClosed = false;

    // Owned by the service thread once it runs.
    std::string path;
    int master = -1;
    int slave = -1;
    int wakeRead = -1;
    int wakeWrite = -1;
    std::vector<uint8_t> input = std::vector<uint8_t>(64 * 1024);
    std::vector<uint8_t> output;
    size_t outputSent = 0;
    int64_t scheduledNotBeforeNs = 0;
    std::thread thread;
};

PtyPlotter::Impl::Impl(Config config) : plotter(std::move(config)) {
    if (::openpty(&master, &slave, nullptr, nullptr, nullptr) != 0) {
        throwErrno("openpty");
    }
    // Raw from the start: nothing the host writes before it configures the line
    // may be echoed back or translated.
    termios attrs{};
    if (::tcgetattr(slave, &attrs) == 0) {
        ::cfmakeraw(&attrs);
        ::tcsetattr(slave, TCSANOW, &attrs);
    }
    path = ::ptsname(master);
    int pipeFds[2];
    if (::pipe2(pipeFds, O_CLOEXEC | O_NONBLOCK) != 0) {
        const int saved = errno;
        closeFd(master);
        closeFd(slave);
        throw std::system_error(saved, std::generic_category(), "pipe2");
    }
    wakeRead = pipeFds[0];
    wakeWrite = pipeFds[1];
    ::fcntl(master, F_SETFL, ::fcntl(master, F_GETFL) | O_NONBLOCK);
    ::fcntl(master, F_SETFD, FD_CLOEXEC);
    ::fcntl(slave, F_SETFD, FD_CLOEXEC);
    thread = std::thread([this] { run(); });
}

PtyPlotter::Impl::~Impl() {
    {
        std::lock_guard lock(mutex);
        stopRequested = true;
    }
    const char byte = 's';
    [[maybe_unused]] const ssize_t n = ::write(wakeWrite, &byte, 1);
    thread.join();
    closeFd(master);
    closeFd(slave);
    closeFd(wakeRead);
    closeFd(wakeWrite);
}

void PtyPlotter::Impl::run() {
    for (;;) {
        pollfd fds[2] = {{wakeRead, POLLIN, 0}, {master, 0, 0}};
        // A hung chip takes nothing more, so the host's writes pile up in the line.
        if (!deviceHung()) {
            fds[1].events = POLLIN;
        }
        if (outputSent < output.size()) {
            fds[1].events |= POLLOUT;
        }
        // To the nanosecond: a paced read is due every few milliseconds, and rounding
        // each wait up to a whole one would slow it by a fifth.
        const std::optional<int64_t> timeoutNs =
            master >= 0 ? pollTimeoutNs() : std::optional<int64_t>();
        timespec timeout{};
        if (timeoutNs) {
            timeout.tv_sec = static_cast<time_t>(*timeoutNs / 1'000'000'000);
            timeout.tv_nsec = static_cast<long>(*timeoutNs % 1'000'000'000);
        }
        if (::ppoll(fds, 2, timeoutNs ? &timeout : nullptr, nullptr) < 0 && errno != EINTR) {
            return;
        }
        if ((fds[0].revents & POLLIN) && !serviceWakeUp()) {
            return;
        }
        if (master >= 0 && (fds[1].revents & POLLIN)) {
            readInput();
        }
        if (master >= 0 && outputSent < output.size()) {
            flushOutput();
        }
        if (master >= 0) {
            writeScheduled();
        }
    }
}

std::optional<int64_t> PtyPlotter::Impl::pollTimeoutNs() {
    std::optional<int64_t> due;
    {
        std::lock_guard lock(mutex);
        due = plotter.nextOutputNs();
    }
    if (!due) {
        return std::nullopt;
    }
    return std::max<int64_t>(0, std::max(*due, scheduledNotBeforeNs) - mono::nowNs());
}

bool PtyPlotter::Impl::deviceHung() const {
    std::lock_guard lock(mutex);
    return plotter.hung();
}

bool PtyPlotter::Impl::serviceWakeUp() {
    char sink[64];
    while (::read(wakeRead, sink, sizeof sink) > 0) {
    }
    std::unique_lock lock(mutex);
    if (stopRequested) {
        return false;
    }
    if (unplugRequested && !lineClosed) {
        lock.unlock();
        closeLine();
    }
    return true;
}

void PtyPlotter::Impl::readInput() {
    const ssize_t n = ::read(master, input.data(), input.size());
    if (n <= 0) {
        return;
    }
    std::vector<uint8_t> reply;
    bool gone = false;
    {
        std::lock_guard lock(mutex);
        reply = plotter.onHostBytes(input.data(), static_cast<size_t>(n));
        gone = plotter.mode() == Mode::Gone;
    }
    takeOutput(std::move(reply), gone);
}

void PtyPlotter::Impl::writeScheduled() {
    const int64_t now = mono::nowNs();
    if (now < scheduledNotBeforeNs) {
        return;
    }
    std::vector<uint8_t> bytes;
    bool gone = false;
    int gapMs = 0;
    {
        std::lock_guard lock(mutex);
        bytes = plotter.takeDueOutput(now);
        gone = plotter.mode() == Mode::Gone;
        gapMs = std::max(1, plotter.config().frameGapMs);
    }
    if (!bytes.empty()) {
        // Keeps frames that fell due together apart, so each reaches its own read.
        scheduledNotBeforeNs = now + int64_t{gapMs} * 1'000'000;
    }
    if (output.size() - outputSent > kMaxUnreadOutput) {
        bytes.clear();
    }
    takeOutput(std::move(bytes), gone);
}

void PtyPlotter::Impl::takeOutput(std::vector<uint8_t> bytes, bool gone) {
    if (outputSent == output.size()) {
        output.clear();
        outputSent = 0;
    }
    output.insert(output.end(), bytes.begin(), bytes.end());
    flushOutput();
    if (gone) {
        closeLine();
    }
}

void PtyPlotter::Impl::flushOutput() {
    while (outputSent < output.size()) {
        const ssize_t n = ::write(master, output.data() + outputSent, output.size() - outputSent);
        if (n > 0) {
            outputSent += static_cast<size_t>(n);
        } else if (n < 0 && errno == EINTR) {
            continue;
        } else {
            return;
        }
    }
}

void PtyPlotter::Impl::closeLine() {
    closeFd(master);
    closeFd(slave);
    output.clear();
    outputSent = 0;
    std::lock_guard lock(mutex);
    lineClosed = true;
    unplugged.notify_all();
}

PtyPlotter::PtyPlotter(Config config) : impl_(std::make_unique<Impl>(std::move(config))) {}

PtyPlotter::~PtyPlotter() = default;

const std::string& PtyPlotter::path() const {
    return impl_->path;
}

void PtyPlotter::unplug() {
    std::unique_lock lock(impl_->mutex);
    if (impl_->lineClosed) {
        return;
    }
    impl_->unplugRequested = true;
    const char byte = 'u';
    [[maybe_unused]] const ssize_t n = ::write(impl_->wakeWrite, &byte, 1);
    impl_->unplugged.wait(lock, [this] { return impl_->lineClosed; });
}

void PtyPlotter::inspect(const std::function<void(const Plotter&)>& fn) const {
    std::lock_guard lock(impl_->mutex);
    fn(impl_->plotter);
}

void PtyPlotter::modify(const std::function<void(Plotter&)>& fn) {
    std::lock_guard lock(impl_->mutex);
    fn(impl_->plotter);
}

}  // namespace sim
