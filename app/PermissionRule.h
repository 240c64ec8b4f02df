#pragma once

#include <QString>
#include <QStringList>

/// The udev rule this program installs so that the user at the seat may open the
/// plotter's port, and the one command that installs it as root: pkexec with the
/// helper installed beside the program, which copies the shipped rule to
/// /etc/udev/rules.d and reloads udev. The command takes no path, text or argument
/// from the user or the environment. A plain value; any thread.
struct PermissionRule {
    /// The program that asks for the administrator's password and runs the helper.
    static constexpr const char* kPkexec = "/usr/bin/pkexec";

    QString pkexec;  ///< `kPkexec`, replaced only by tests
    QString helper;  ///< the root helper, <prefix>/lib/teskal-firmware-updater/install-udev-rule
    QString rule;  ///< the shipped rule, <prefix>/lib/udev/rules.d/60-teskal-firmware-updater.rules

    /// The helper and rule of the installation in which `executableDir` (<prefix>/bin) is.
    static PermissionRule forExecutableDir(const QString& executableDir);
    /// Those of this program's own installation.
    static PermissionRule installed();

    /// pkexec and the helper are both there to be run.
    bool canInstall() const;
    /// The command that installs the rule: `pkexec` with `helper` as its only argument.
    QString program() const { return pkexec; }
    QStringList arguments() const { return {helper}; }
    /// How to install it, for a fix: the command, else the commands to type with
    /// sudo, else the rule's name.
    QString howTo() const;
};
