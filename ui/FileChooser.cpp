#include "ui/FileChooser.h"

#include <QFileDialog>

std::optional<QString> chooseFileWithDialog(QWidget* parent, const FileRequest& request) {
    QStringList patterns;
    for (const QString& extension : request.extensions) {
        patterns.append(QStringLiteral("*.") + extension);
    }
    const QString path = QFileDialog::getOpenFileName(parent, request.message, QString(),
                                                      patterns.join(QLatin1Char(' ')));
    if (path.isEmpty()) {
        return std::nullopt;
    }
    return path;
}
