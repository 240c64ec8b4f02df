#pragma once

#include <optional>
#include <string>

#include "serial/PortHolder.h"

/// Why a port path cannot be used for a job; the first cause found, in this order.
enum class PortProblem {
    Ok,          ///< nothing found that would keep a job from opening it
    Missing,     ///< no node at the path (ENOENT, ENOTDIR)
    NotSerial,   ///< a regular file, a folder, or a device whose driver is no serial tty (ENOTTY)
    Permission,  ///< the user may not read and write the node (EACCES, EPERM)
    Held,        ///< another program has the node open (EBUSY)
    Unplugged,   ///< the node is there but its device answers no open (EIO, ENXIO, ENODEV)
};

/// How far `checkPort` may go.
enum class PortProbe {
    /// Never opens the node: stat, access(2) with the real ids, /proc/tty/drivers and
    /// the /proc scan for holders. Safe to repeat while a plotter is attached, since
    /// opening a USB serial node raises DTR and RTS, which the chip may take as a reset.
    Look,
    /// When looking finds nothing, also opens the node (O_RDWR, O_NOCTTY, O_NONBLOCK),
    /// asks for its terminal attributes and closes it at once. Tells an unplugged
    /// device and a holder that looking cannot see; for use after a job's own open
    /// has failed.
    Open,
};

/// The cause found by `checkPort`, with what the owner needs to fix it.
struct PortCheck {
    PortProblem problem = PortProblem::Ok;
    int error = 0;  ///< the errno behind `problem`, 0 for Ok

    // Filled whenever the node exists, whatever the problem.
    std::string owner;           ///< the node's owner name, or the number when it has none
    std::string group;           ///< the node's group name, or the number when it has none
    unsigned mode = 0;           ///< the node's permission bits, e.g. 0660
    std::string user;            ///< the real user's name, or the number when it has none
    bool userInGroup = false;    ///< the account database puts the user in `group`
    bool groupInEffect = false;  ///< this process has `group` as a real, effective or
                                 ///< supplementary group; false after joining the group
                                 ///< until the user logs in again

    std::optional<PortHolder> holder;  ///< for Held, when the /proc scan could name it
};

/// Finds why `path` cannot be used, without writing a byte to it. Looks in /proc and
/// the account database; blocks for no longer than those reads take. Thread-safe.
PortCheck checkPort(const std::string& path, PortProbe probe = PortProbe::Look);
