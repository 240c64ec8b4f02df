#pragma once

#include <QString>

#include "app/texts/Audience.h"

/// A port that cannot be used and the Connection Check: what is wrong, one sentence
/// each, and what fixes it. Pure functions; any thread.
namespace Texts {

// What is wrong with a port.
QString portMissing(const QString& path);    ///< "PATH does not exist."
QString portNotSerial(const QString& path);  ///< "PATH is not a serial port."
QString permissionDeniedForGroup(const QString& path, const QString& group);
QString permissionDeniedForOwner(const QString& path, const QString& owner, unsigned mode);
QString permissionDenied(const QString& path);
QString portHeldBy(const QString& path, const QString& program, int pid);
QString portHeld(const QString& path);  ///< "PATH is in use by another program."
QString portGone(const QString& path);
QString portUsable(const QString& path);  ///< "PATH can be used."

// What fixes it. `rule` says where the permission rule comes from: in the window
// "Connection Check" or "button below", on the command line the command itself.
QString plugInOrNameAnother();
QString nameThePlotterPort();
QString installTheRule(const QString& rule);  ///< "Install the permission rule (RULE)."
QString logOutAndIn(const QString& group);
QString installRuleOrJoinGroup(const QString& rule, const QString& group);
QString closeThatProgram();
QString closeIt();
QString replugPlotter();

// Where the permission rule comes from.
QString ruleInWindow();  ///< "Connection Check"
QString ruleBelow();     ///< "button below", in the Connection Check itself
QString ruleByHand(const QString& ruleFile);
QString ruleShipped();  ///< the rule's name, when no installed copy is found

// The Connection Check's lines.
QString plotterSeen();  ///< "Plotter seen on USB (303a:1001)."
QString plotterSeenWithSerial(const QString& serial);
QString noPlotterSeen();  ///< "No plotter seen on USB."
QString noPlotterFix();   ///< switch it on, another port, a data cable
QString portMade(const QString& path, const QString& driver);
QString noDriver();  ///< no port made: the kernel's cdc_acm driver is missing
QString noDriverFix();
QString noNode();  ///< the driver is there, the node is not (yet)
QString noNodeFix();
QString mayOpen(const QString& path);        ///< "You may open PATH."
QString notHeld(const QString& path);        ///< "No other program is using PATH."
QString otherPlotter(const QString& where);  ///< "Another plotter: WHERE."
QString otherPlotterWithSerial(const QString& serial, const QString& where);
QString withoutPort();  ///< "without a port", where another plotter is
QString notAPlotter(const QString& device, const QString& path);
QString portReady(const QString& path);  ///< "Ready: the plotter on PATH can be used."
QString noPlotterReady();                ///< "No plotter is ready to use."
/// A port that comes and goes: "The plotter keeps restarting." and its fix, "If its
/// controller board has a BOOT button, hold it while you plug the plotter in, then
/// press Repair." (teskal-flash: "then run teskal-flash repair").
QString keepsRestarting();
QString holdBootButton(Audience audience);

// The Connection Check window.
QString plotterNotFound();                          ///< "Plotter not found?"
QString connectionCheck();                          ///< "Connection Check", its title
QString connectionCheckIntro();                     ///< checked every second, closes when ready
QString installRule();                              ///< "Install Permission Rule…"
QString installRuleByHand(const QString& command);  ///< the button's tooltip without pkexec
QString ruleInstallerNotStarted();

}  // namespace Texts
