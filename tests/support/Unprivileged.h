#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <vector>

/// Runs `body` in a forked child and returns the text it returned, or "" when the
/// child could not drop its privileges or did not finish. Root and CAP_SYS_ADMIN
/// pass over mode bits and a port's exclusivity, so a root caller's child first
/// becomes user 65534 with real group `gid` and the supplementary `groups`. The
/// caller may have threads: `body` should make system calls only, and keep its text
/// short enough to need no allocation.
inline std::string runUnprivileged(const std::function<std::string()>& body, gid_t gid = 65534,
                                   const std::vector<gid_t>& groups = {}) {
    int ends[2];
    if (::pipe(ends) != 0) {
        return "";
    }
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::close(ends[0]);
        if (::geteuid() == 0 && (::setgroups(groups.size(), groups.data()) != 0 ||
                                 ::setgid(gid) != 0 || ::setuid(65534) != 0)) {
            ::_exit(1);
        }
        const std::string text = body();
        ::_exit(::write(ends[1], text.data(), text.size()) < 0 ? 1 : 0);
    }
    ::close(ends[1]);
    char text[512];
    const ssize_t length = ::read(ends[0], text, sizeof text);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    const bool finished = WIFEXITED(status) && WEXITSTATUS(status) == 0 && length > 0;
    return finished ? std::string(text, static_cast<size_t>(length)) : "";
}
