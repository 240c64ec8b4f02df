#include <fcntl.h>
#include <grp.h>
#include <pty.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "api/esp_flasher.h"

// Why a port cannot be used, through the shared library, against real nodes.
namespace {

struct Pty {
    // Without unlockpt the slave refuses every open with EIO, as a USB node does
    // whose device has gone.
    explicit Pty(bool unlocked = true) {
        master = ::posix_openpt(O_RDWR | O_NOCTTY);
        EXPECT_TRUE(master >= 0 && ::grantpt(master) == 0);
        EXPECT_EQ(unlocked ? ::unlockpt(master) : 0, 0);
        path = ::ptsname(master);
    }
    ~Pty() { ::close(master); }
    int master = -1;
    std::string path;
};

esp_port_check check(const std::string& path, int probe = ESP_PROBE_LOOK) {
    esp_port_check out{};
    EXPECT_EQ(esp_check_port(path.c_str(), probe, &out), out.problem);
    return out;
}

TEST(PortCheck, TellsEachCauseByItsNode) {
    char file[] = "/tmp/tfu-port-XXXXXX";
    ::close(::mkstemp(file));
    const Pty idle, locked(false);
    // The path, the probe, and the problem with its errno.
    const std::tuple<std::string, int, int, int> rows[] = {
        {"/dev/tfu-no-such-port", ESP_PROBE_OPEN, ESP_PORT_MISSING, ENOENT},
        {"/dev/null/ttyACM0", ESP_PROBE_OPEN, ESP_PORT_MISSING, ENOTDIR},
        {"/dev/null", ESP_PROBE_LOOK, ESP_PORT_NOT_SERIAL, ENOTTY},
        {"/dev/ptmx", ESP_PROBE_LOOK, ESP_PORT_NOT_SERIAL, ENOTTY},
        {file, ESP_PROBE_LOOK, ESP_PORT_NOT_SERIAL, ENOTTY},
        {idle.path, ESP_PROBE_LOOK, ESP_PORT_OK, 0},
        {idle.path, ESP_PROBE_OPEN, ESP_PORT_OK, 0},
        {locked.path, ESP_PROBE_LOOK, ESP_PORT_OK, 0},
        {locked.path, ESP_PROBE_OPEN, ESP_PORT_UNPLUGGED, EIO},
    };
    for (const auto& [path, probe, problem, error] : rows) {
        const auto out = check(path, probe);
        EXPECT_EQ(std::pair(out.problem, out.error), std::pair(problem, error))
            << path << (probe == ESP_PROBE_OPEN ? " opened" : "");
    }
    ::unlink(file);

    const auto null = check("/dev/null");
    EXPECT_EQ(std::string(null.owner) + ":" + null.group, "root:root");
    EXPECT_EQ(null.mode, 0666u);
    esp_port_check out{};
    EXPECT_EQ(esp_check_port(nullptr, ESP_PROBE_LOOK, &out), ESP_PORT_MISSING);
    EXPECT_EQ(out.error, EINVAL);
    EXPECT_EQ(esp_check_port("/dev/null", ESP_PROBE_LOOK, nullptr), -1);
}

// Another program with the port open, as a serial monitor would have it: `sleep`
// with the node as its standard input.
TEST(PortCheck, NamesTheProgramThatHoldsThePort) {
    const Pty pty;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, pty.path.c_str(), O_RDWR | O_NOCTTY, 0);
    char* argv[] = {const_cast<char*>("sleep"), const_cast<char*>("60"), nullptr};
    pid_t holder = -1;
    ASSERT_EQ(posix_spawnp(&holder, "sleep", &actions, nullptr, argv, environ), 0);
    posix_spawn_file_actions_destroy(&actions);

    for (const int probe : {ESP_PROBE_LOOK, ESP_PROBE_OPEN}) {
        const auto out = check(pty.path, probe);
        EXPECT_EQ(std::pair(out.problem, out.error), std::pair(int{ESP_PORT_HELD}, EBUSY));
        EXPECT_EQ(std::pair(out.holderPid, std::string(out.holderName)),
                  std::pair(int{holder}, std::string("sleep")));
    }
    ::kill(holder, SIGKILL);
    ::waitpid(holder, nullptr, 0);
    EXPECT_EQ(check(pty.path).problem, ESP_PORT_OK) << "after the holder ended";
}

std::string describe(const esp_port_check& out) {
    char text[512];
    std::snprintf(text, sizeof text, "problem %d errno %d, %s:%s %04o, %s in %d in effect %d",
                  out.problem, out.error, out.owner, out.group, out.mode, out.user, out.userInGroup,
                  out.groupInEffect);
    return text;
}

// Mode bits stop no open by root, so the check runs in a child that has become
// user nobody (65534, whose account group is nogroup, 65534) with the given real
// group and supplementary groups. Returns what the child found, or "" when
// privileges could not be dropped.
std::string checkAsNobody(const std::string& path, gid_t gid, std::vector<gid_t> groups) {
    int report[2];
    EXPECT_EQ(::pipe(report), 0);
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::close(report[0]);
        if (::setgroups(groups.size(), groups.data()) != 0 || ::setgid(gid) != 0 ||
            ::setuid(65534) != 0) {
            ::_exit(1);
        }
        const std::string found = describe(check(path));
        ::_exit(::write(report[1], found.data(), found.size()) < 0 ? 1 : 0);
    }
    ::close(report[1]);
    char text[512];
    const ssize_t length = ::read(report[0], text, sizeof text);
    ::close(report[0]);
    ::waitpid(pid, nullptr, 0);
    return std::string(text, static_cast<size_t>(std::max<ssize_t>(length, 0)));
}

TEST(PortCheck, NodeTheUserMayNotOpenNamesItsGroupAndTheUsersPlaceInIt) {
    const Pty pty;
    if (::geteuid() != 0) {
        // The node cannot be given away; the user's own, without permission bits, is refused too.
        ASSERT_EQ(::chmod(pty.path.c_str(), 0), 0);
        EXPECT_EQ(check(pty.path).problem, ESP_PORT_PERMISSION);
        GTEST_SKIP() << "not root: the group cases need a node given to root and user nobody";
    }
    const auto nodeAs = [&](gid_t group, mode_t mode) {
        EXPECT_EQ(::chown(pty.path.c_str(), 0, group), 0);
        EXPECT_EQ(::chmod(pty.path.c_str(), mode), 0);
    };
    const std::string denied = "problem 3 errno " + std::to_string(EACCES);
    nodeAs(0, 0600);
    const std::string onlyRoot = checkAsNobody(pty.path, 65534, {});
    if (onlyRoot.empty()) {
        GTEST_SKIP() << "could not drop privileges to user nobody";
    }
    EXPECT_EQ(onlyRoot, denied + ", root:root 0600, nobody in 0 in effect 0");
    // Added to the group in the account database, not logged in again since.
    nodeAs(65534, 0660);
    EXPECT_EQ(checkAsNobody(pty.path, 1, {}),
              denied + ", root:nogroup 0660, nobody in 1 in effect 0");
    // Given the group by this session only: the port opens.
    nodeAs(5, 0660);
    EXPECT_EQ(checkAsNobody(pty.path, 65534, {5}),
              "problem 0 errno 0, root:tty 0660, nobody in 0 in effect 1");
}

}  // namespace
