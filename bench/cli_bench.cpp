// teskal-flash flashing one simulated plotter, then three at once (one child
// process each), by wall time; the target is three in at most 1.3 times the
// time of one. Each simulated plotter runs in the process that flashes it.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kRuns = 3;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Timing {
    double wall = -1.0;  // seconds; negative when the run failed
    double cpu = 0.0;    // user and system seconds of the program and its children
};

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// One run of the program, output discarded.
Timing timedRun(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), TFU_FLASH_PROGRAM);
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = Clock::now();
    pid_t pid = 0;
    if (posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ) != 0) {
        return {};
    }
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    ::wait4(pid, &status, 0, &usage);
    const double wall = std::chrono::duration<double>(Clock::now() - start).count();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        return {};
    }
    return {wall, seconds(usage.ru_utime) + seconds(usage.ru_stime)};
}

// Median wall and CPU seconds.
Timing medianOf(const std::vector<std::string>& arguments) {
    std::vector<double> wall;
    std::vector<double> cpu;
    for (int i = 0; i < kRuns; ++i) {
        const Timing timing = timedRun(arguments);
        if (timing.wall < 0) {
            std::fprintf(stderr, "teskal-flash failed\n");
            std::exit(1);
        }
        wall.push_back(timing.wall);
        cpu.push_back(timing.cpu);
    }
    return {median(wall), median(cpu)};
}

}  // namespace

int main() {
    const Timing one = medianOf({"flash", "--sim"});
    const Timing three = medianOf({"flash", "--sim", "3", "--all"});
    std::printf("teskal-flash flash, simulated plotters, median of %d runs, %u CPU cores\n", kRuns,
                std::thread::hardware_concurrency());
    std::printf("  one plotter:            %.2f s wall, %.2f s CPU\n", one.wall, one.cpu);
    std::printf("  three plotters at once: %.2f s wall, %.2f s CPU\n", three.wall, three.cpu);
    std::printf("  ratio of wall times: %.2f (target at most 1.30)\n", three.wall / one.wall);
    return 0;
}
