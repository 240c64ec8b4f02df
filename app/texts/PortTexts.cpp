#include "app/texts/PortTexts.h"

#include <QCoreApplication>

namespace Texts {

namespace {

// The translators' context for this file's texts.
class PortTexts {
    Q_DECLARE_TR_FUNCTIONS(PortTexts)
};

}  // namespace

QString portMissing(const QString& path) {
    return PortTexts::tr("%1 does not exist.").arg(path);
}

QString portNotSerial(const QString& path) {
    return PortTexts::tr("%1 is not a serial port.").arg(path);
}

QString permissionDeniedForGroup(const QString& path, const QString& group) {
    return PortTexts::tr("Permission denied on %1 (group %2).").arg(path, group);
}

QString permissionDeniedForOwner(const QString& path, const QString& owner, unsigned mode) {
    return PortTexts::tr("Permission denied on %1 (owner %2, mode %3).")
        .arg(path, owner, QStringLiteral("%1").arg(mode, 4, 8, QLatin1Char('0')));
}

QString permissionDenied(const QString& path) {
    return PortTexts::tr("Permission denied on %1.").arg(path);
}

QString portHeldBy(const QString& path, const QString& program, int pid) {
    return PortTexts::tr("%1 is in use by %2 (pid %3).").arg(path, program, QString::number(pid));
}

QString portHeld(const QString& path) {
    return PortTexts::tr("%1 is in use by another program.").arg(path);
}

QString portGone(const QString& path) {
    return PortTexts::tr("%1 does not answer: its device has gone.").arg(path);
}

QString portUsable(const QString& path) {
    return PortTexts::tr("%1 can be used.").arg(path);
}

QString plugInOrNameAnother() {
    return PortTexts::tr("Plug the plotter in, or name another port.");
}

QString nameThePlotterPort() {
    return PortTexts::tr("Name the plotter's port, for example /dev/ttyACM0.");
}

QString installTheRule(const QString& rule) {
    return PortTexts::tr("Install the permission rule (%1).").arg(rule);
}

QString logOutAndIn(const QString& group) {
    return PortTexts::tr(
               "You are in the group %1, but this session began before you joined it: log out "
               "and in again.")
        .arg(group);
}

QString installRuleOrJoinGroup(const QString& rule, const QString& group) {
    return PortTexts::tr(
               "Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, "
               "then log out and in again.")
        .arg(rule, group);
}

QString closeThatProgram() {
    return PortTexts::tr("Close that program and try again.");
}

QString closeIt() {
    return PortTexts::tr("Close it and try again.");
}

QString replugPlotter() {
    return PortTexts::tr("Unplug the plotter, plug it in again and try again.");
}

QString ruleInWindow() {
    return PortTexts::tr("Connection Check");
}

QString ruleBelow() {
    return PortTexts::tr("button below");
}

QString ruleByHand(const QString& ruleFile) {
    return PortTexts::tr(
               "sudo cp %1 /etc/udev/rules.d/ && sudo udevadm control --reload && sudo udevadm "
               "trigger")
        .arg(ruleFile);
}

QString ruleShipped() {
    return PortTexts::tr("60-teskal-firmware-updater.rules in /etc/udev/rules.d");
}

QString plotterSeen() {
    return PortTexts::tr("Plotter seen on USB (303a:1001).");
}

QString plotterSeenWithSerial(const QString& serial) {
    return PortTexts::tr("Plotter seen on USB (303a:1001, serial %1).").arg(serial);
}

QString noPlotterSeen() {
    return PortTexts::tr("No plotter seen on USB.");
}

QString noPlotterFix() {
    return PortTexts::tr(
        "Switch it on, try another USB port, and use a cable that carries data: some cables "
        "only charge.");
}

QString portMade(const QString& path, const QString& driver) {
    return PortTexts::tr("Serial port %1 made for it by %2.").arg(path, driver);
}

QString noDriver() {
    return PortTexts::tr("No serial port made for it: the kernel's cdc_acm driver is missing.");
}

QString noDriverFix() {
    return PortTexts::tr(
        "Install your system's extra kernel modules, or load the driver: sudo modprobe cdc_acm");
}

QString noNode() {
    return PortTexts::tr("No serial port made for it yet.");
}

QString noNodeFix() {
    return PortTexts::tr("Wait a moment; if it stays so, unplug the plotter and plug it in again.");
}

QString mayOpen(const QString& path) {
    return PortTexts::tr("You may open %1.").arg(path);
}

QString notHeld(const QString& path) {
    return PortTexts::tr("No other program is using %1.").arg(path);
}

QString otherPlotter(const QString& where) {
    return PortTexts::tr("Another plotter: %1.").arg(where);
}

QString otherPlotterWithSerial(const QString& serial, const QString& where) {
    return PortTexts::tr("Another plotter (serial %1): %2.").arg(serial, where);
}

QString withoutPort() {
    return PortTexts::tr("without a port");
}

QString notAPlotter(const QString& device, const QString& path) {
    return PortTexts::tr("Not a plotter: %1 on %2.").arg(device, path);
}

QString portReady(const QString& path) {
    return PortTexts::tr("Ready: the plotter on %1 can be used.").arg(path);
}

QString noPlotterReady() {
    return PortTexts::tr("No plotter is ready to use.");
}

QString keepsRestarting() {
    return PortTexts::tr("The plotter keeps restarting.");
}

QString holdBootButton(Audience audience) {
    return audience == Audience::window
               ? PortTexts::tr(
                     "If its controller board has a BOOT button, hold it while you plug the "
                     "plotter in, then press Repair.")
               : PortTexts::tr(
                     "If its controller board has a BOOT button, hold it while you plug the "
                     "plotter in, then run teskal-flash repair.");
}

QString plotterNotFound() {
    return PortTexts::tr("Plotter not found?");
}

QString connectionCheck() {
    return PortTexts::tr("Connection Check");
}

QString connectionCheckIntro() {
    return PortTexts::tr(
        "Checked again every second. This window closes once the plotter can be used.");
}

QString installRule() {
    return PortTexts::tr("&Install Permission Rule\u2026");
}

QString installRuleByHand(const QString& command) {
    return PortTexts::tr("pkexec or the rule's installer is missing. Run by hand: %1").arg(command);
}

QString ruleInstallerNotStarted() {
    return PortTexts::tr("The permission rule's installer could not be started.");
}

}  // namespace Texts
