#include "cli/Interrupts.h"

#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <system_error>

namespace {

sigset_t interruptSet() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    return set;
}

}  // namespace

Interrupts::Interrupts() {
    const sigset_t set = interruptSet();
    // A signal handler would have no way to reach this object; a blocked signal
    // read from a descriptor arrives through the event loop like any other input.
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    descriptor_ = ::signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC);
    if (descriptor_ < 0) {
        throw std::system_error(errno, std::generic_category(), "signalfd");
    }
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { drain(); });
}

Interrupts::~Interrupts() {
    notifier_.reset();
    ::close(descriptor_);
    const sigset_t set = interruptSet();
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void Interrupts::drain() {
    signalfd_siginfo info{};
    while (::read(descriptor_, &info, sizeof info) == static_cast<ssize_t>(sizeof info)) {
        emit pressed();
    }
}
