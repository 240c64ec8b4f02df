#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <tuple>
#include <utility>

#include "api/esp_flasher.h"
#include "tests/support/FreePty.h"
#include "tests/support/HoldingProcess.h"
#include "tests/support/Unprivileged.h"

// Why a port cannot be used, through the shared library, against real nodes.
namespace {

esp_port_check check(const std::string& path, int probe = ESP_PROBE_LOOK) {
    esp_port_check out{};
    EXPECT_EQ(esp_check_port(path.c_str(), probe, &out), out.problem);
    return out;
}

// A pseudo-terminal never unlocked refuses every open with EIO, as a USB node does
// whose device has gone.
TEST(PortCheck, TellsEachCauseByItsNode) {
    char file[] = "/tmp/tfu-port-XXXXXX";
    ::close(::mkstemp(file));
    const FreePty idle, locked(false);
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

TEST(PortCheck, NamesTheProgramThatHoldsThePort) {
    const FreePty pty;
    {
        const HoldingProcess holder(pty.path);
        for (const int probe : {ESP_PROBE_LOOK, ESP_PROBE_OPEN}) {
            const auto out = check(pty.path, probe);
            EXPECT_EQ(std::pair(out.problem, out.error), std::pair(int{ESP_PORT_HELD}, EBUSY));
            EXPECT_EQ(std::pair(out.holderPid, std::string(out.holderName)),
                      std::pair(int{holder.pid}, std::string("sleep")));
        }
    }
    EXPECT_EQ(check(pty.path).problem, ESP_PORT_OK) << "after the holder ended";
}

// What user nobody (65534, whose account group is nogroup, 65534) finds with the
// given real group and supplementary groups.
std::string checkAsNobody(const std::string& path, gid_t gid, std::vector<gid_t> groups) {
    return runUnprivileged(
        [&] {
            const auto out = check(path);
            char text[512];
            std::snprintf(text, sizeof text,
                          "problem %d errno %d, %s:%s %04o, %s in %d in effect %d", out.problem,
                          out.error, out.owner, out.group, out.mode, out.user, out.userInGroup,
                          out.groupInEffect);
            return std::string(text);
        },
        gid, groups);
}

TEST(PortCheck, NodeTheUserMayNotOpenNamesItsGroupAndTheUsersPlaceInIt) {
    const FreePty pty;
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
