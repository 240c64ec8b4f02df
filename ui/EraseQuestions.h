#pragma once

#include <QString>
#include <memory>

#include "app/SettingsQuestions.h"

class QMessageBox;
class QWidget;

/// The questions "Update Firmware" asks when Erase All Flash is set, not yet shown.
/// Escape answers "Cancel" in each.
///
/// Before the update: "Erase All Flash also erases the machine's settings
/// (config.yaml). Save them now and put them back after the update?" with "Save and
/// Restore" (the default), "Erase Without Saving" and "Cancel".
std::unique_ptr<QMessageBox> eraseQuestion(QWidget* parent);
/// After a firmware that did not answer: "Erase Without Saving" and "Cancel" (the default).
std::unique_ptr<QMessageBox> eraseAnywayQuestion(QWidget* parent);
/// After a failed read, with `reason`: "Retry" (the default), "Erase Without Saving"
/// and "Cancel".
std::unique_ptr<QMessageBox> retryQuestion(QWidget* parent, const QString& reason);

/// Before installing a catalogue's release `chosen`, older than the firmware
/// `running` on the machine: "Install Older Version" and "Cancel" (the default).
std::unique_ptr<QMessageBox> installOlderQuestion(QWidget* parent, const QString& chosen,
                                                  const QString& running);

/// The questions asked modally over `parent`, for the update controller.
SettingsQuestions settingsQuestionsAsked(QWidget* parent);
