#include "ui/SaveChooser.h"

#include <QDir>
#include <QFileDialog>

std::optional<QString> chooseSaveFileWithDialog(QWidget* parent, const SaveRequest& request) {
    const QString path = QFileDialog::getSaveFileName(
        parent, request.title, QDir::home().filePath(request.suggestedName), request.nameFilter);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    return path;
}
