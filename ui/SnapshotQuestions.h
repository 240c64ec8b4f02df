#pragma once

#include <QString>
#include <memory>

class QMessageBox;
class QWidget;

/// Before a snapshot of the machine `owner` goes on the connected `machine`: it
/// carries the other machine's settings and network credentials. "Restore Anyway"
/// and "Cancel" (the default, also Escape). Not yet shown.
std::unique_ptr<QMessageBox> otherMachineQuestion(QWidget* parent, const QString& owner,
                                                  const QString& machine);

/// Asks `otherMachineQuestion` modally over `parent`; true for "Restore Anyway".
bool confirmOtherMachineAsked(QWidget* parent, const QString& owner, const QString& machine);
