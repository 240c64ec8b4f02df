#include "app/ResourceBundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

std::pair<QString, QString> splitResourceName(const QString& fileName) {
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    if (dot < 0) {
        return {fileName, QString()};
    }
    return {fileName.left(dot), fileName.mid(dot + 1)};
}

std::optional<QByteArray> readWholeFile(const QString& path, QString* failure) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *failure = file.errorString();
        return std::nullopt;
    }
    return file.readAll();
}

ResourceBundle ResourceBundle::forExecutableDir(const QString& executableDir,
                                                const QString& folderName) {
    const QDir dir(executableDir);
    const QString beside = dir.filePath(folderName);
    if (QFileInfo(beside).isDir()) {
        return ResourceBundle(beside);
    }
    const QString installed = QDir::cleanPath(dir.filePath(
        QStringLiteral("../") + QLatin1String(kInstalledPath) + QLatin1Char('/') + folderName));
    return ResourceBundle(QFileInfo(installed).isDir() ? installed : beside);
}

ResourceBundle ResourceBundle::located(const QString& folderName) {
    return forExecutableDir(QCoreApplication::applicationDirPath(), folderName);
}

std::optional<QString> ResourceBundle::path(const QString& name, const QString& extension,
                                            const QString& folder) const {
    const QString fileName = extension.isEmpty() ? name : name + QLatin1Char('.') + extension;
    const QDir dir(folder.isEmpty() ? root_ : QDir(root_).filePath(folder));
    const QString candidate = dir.filePath(fileName);
    if (!QFileInfo(candidate).isFile()) {
        return std::nullopt;
    }
    return candidate;
}

std::optional<QByteArray> ResourceBundle::read(const QString& name, const QString& extension,
                                               const QString& folder) const {
    const auto found = path(name, extension, folder);
    if (!found) {
        return std::nullopt;
    }
    QFile file(*found);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

std::optional<QByteArray> ResourceBundle::readConfig(const QString& configFile) const {
    const auto [base, extension] = splitResourceName(configFile);
    return read(base, extension, QStringLiteral("configs"));
}
