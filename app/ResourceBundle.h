#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <utility>

/// Splits a resource file name at its last "." into base name and extension;
/// a name without "." has an empty extension ("a.b.yaml" gives "a.b" and "yaml").
std::pair<QString, QString> splitResourceName(const QString& fileName);

/// The whole file at `path`; none when it cannot be read, with the system's
/// description of why in `failure`.
std::optional<QByteArray> readWholeFile(const QString& path, QString* failure);

/// The folder of images and machine configurations the application ships with:
/// the five images at its top level, the configurations in its folder "configs".
/// An immutable value; safe to read from any thread.
class ResourceBundle {
  public:
    /// The folder that holds the installed resource folders, below the prefix.
    static constexpr const char* kInstalledPath = "share/teskal-firmware-updater";
    /// The name of the folder of the program's own resource set.
    static constexpr const char* kFolderName = "resources";

    explicit ResourceBundle(QString root) : root_(std::move(root)) {}

    /// The folder `folderName` for an executable in `executableDir`: beside it
    /// when that exists (build tree), else the installed folder one level up.
    /// When neither exists the first is used, so every lookup reports a missing
    /// file.
    static ResourceBundle forExecutableDir(const QString& executableDir,
                                           const QString& folderName = kFolderName);
    /// `forExecutableDir` of the running program; needs a QCoreApplication.
    static ResourceBundle located(const QString& folderName = kFolderName);

    const QString& root() const { return root_; }

    /// Path of `name` with `extension` (none when empty) in `folder` (top level
    /// when empty), or none when no such file exists.
    std::optional<QString> path(const QString& name, const QString& extension,
                                const QString& folder = {}) const;

    /// The whole file, or none when it is missing or unreadable.
    std::optional<QByteArray> read(const QString& name, const QString& extension,
                                   const QString& folder = {}) const;

    /// The configuration file `configFile` from "configs", split with
    /// `splitResourceName`; none when missing or unreadable.
    std::optional<QByteArray> readConfig(const QString& configFile) const;

  private:
    QString root_;
};
