#pragma once

#include <QString>
#include <functional>
#include <optional>

class QWidget;

/// What a file-save dialog asks for: its title, the proposed file name and the
/// dialog's file-type filter ("Text files (*.txt)").
struct SaveRequest {
    QString title;
    QString suggestedName;
    QString nameFilter;
};

/// Asks the user where to save a file; returns the path, or none when the user
/// cancelled. Runs modally on the GUI thread.
using SaveChooser = std::function<std::optional<QString>(QWidget* parent, const SaveRequest&)>;

/// The platform's file-save dialog, opened in the home folder.
std::optional<QString> chooseSaveFileWithDialog(QWidget* parent, const SaveRequest& request);
