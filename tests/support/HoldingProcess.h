#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

/// Another program that holds a port open, as a serial monitor does: `sleep` with
/// the node at `path` as its standard input. Killed on destruction.
struct HoldingProcess {
    explicit HoldingProcess(const std::string& path) {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, 0, path.c_str(), O_RDWR | O_NOCTTY, 0);
        char* argv[] = {const_cast<char*>("sleep"), const_cast<char*>("60"), nullptr};
        const int failed = posix_spawnp(&pid, "sleep", &actions, nullptr, argv, environ);
        posix_spawn_file_actions_destroy(&actions);
        if (failed != 0) {
            throw std::runtime_error("cannot start sleep");
        }
    }
    ~HoldingProcess() {
        ::kill(pid, SIGKILL);
        ::waitpid(pid, nullptr, 0);
    }
    HoldingProcess(const HoldingProcess&) = delete;
    HoldingProcess& operator=(const HoldingProcess&) = delete;

    pid_t pid = -1;
};
