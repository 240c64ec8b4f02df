#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QWidget;

/// What a file-open dialog asks for: a message and the accepted extensions
/// (without the dot). Only existing single files can be chosen, no folders.
struct FileRequest {
    QString message;
    QStringList extensions;
};

/// Asks the user for one file; returns its path, or none when the user cancelled.
/// Runs modally on the GUI thread.
using FileChooser = std::function<std::optional<QString>(QWidget* parent, const FileRequest&)>;

/// The platform's file-open dialog.
std::optional<QString> chooseFileWithDialog(QWidget* parent, const FileRequest& request);
