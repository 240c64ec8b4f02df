#pragma once

#include <QFileDialog>
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

/// A file-open dialog that takes only files with one of the request's extensions
/// (in any letter case). A name typed with another one is refused with a short
/// message ("Choose a .bin file.") and the dialog stays open. It is Qt's own
/// dialog: a platform dialog closes itself before a name could be refused.
/// GUI thread only.
class ExtensionFileDialog : public QFileDialog {
    Q_OBJECT

  public:
    ExtensionFileDialog(QWidget* parent, const FileRequest& request);

    /// "Choose a .bin file.", "Choose a .yaml or .yml file.".
    QString refusal() const;

  public slots:
    void accept() override;

  private:
    QStringList extensions_;
};

/// Asks with an `ExtensionFileDialog`.
std::optional<QString> chooseFileWithDialog(QWidget* parent, const FileRequest& request);
