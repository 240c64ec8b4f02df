#include "ui/FileChooser.h"

#include <QFileInfo>
#include <QMessageBox>
#include <algorithm>

#include "app/texts/WindowTexts.h"

ExtensionFileDialog::ExtensionFileDialog(QWidget* parent, const FileRequest& request)
    : QFileDialog(parent, request.message), extensions_(request.extensions) {
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(QFileDialog::AcceptOpen);
    setFileMode(QFileDialog::ExistingFile);
    QStringList patterns;
    for (const QString& extension : extensions_) {
        patterns.append(QStringLiteral("*.") + extension);
    }
    setNameFilter(patterns.join(QLatin1Char(' ')));
}

QString ExtensionFileDialog::refusal() const {
    QStringList names;
    for (const QString& extension : extensions_) {
        names.append(QLatin1Char('.') + extension);
    }
    const QString last = names.takeLast();
    return names.isEmpty() ? Texts::chooseFileOf(last)
                           : Texts::chooseFileOfEither(names.join(QStringLiteral(", ")), last);
}

void ExtensionFileDialog::accept() {
    const QStringList files = selectedFiles();
    // A folder name opens the folder; that is the base dialog's to do.
    const bool refused = std::any_of(files.begin(), files.end(), [this](const QString& file) {
        const QFileInfo info(file);
        return !info.isDir() && !extensions_.contains(info.suffix(), Qt::CaseInsensitive);
    });
    if (refused) {
        QMessageBox::warning(this, windowTitle(), refusal());
        return;
    }
    QFileDialog::accept();
}

std::optional<QString> chooseFileWithDialog(QWidget* parent, const FileRequest& request) {
    ExtensionFileDialog dialog(parent, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().first();
}
