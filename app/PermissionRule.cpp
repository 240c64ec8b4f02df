#include "app/PermissionRule.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "app/texts/PortTexts.h"

PermissionRule PermissionRule::forExecutableDir(const QString& executableDir) {
    const QDir prefix(QDir::cleanPath(executableDir + QStringLiteral("/..")));
    return {QString::fromLatin1(kPkexec),
            prefix.filePath(QStringLiteral("lib/teskal-firmware-updater/install-udev-rule")),
            prefix.filePath(QStringLiteral("lib/udev/rules.d/60-teskal-firmware-updater.rules"))};
}

PermissionRule PermissionRule::installed() {
    return forExecutableDir(QCoreApplication::applicationDirPath());
}

bool PermissionRule::canInstall() const {
    return QFileInfo(pkexec).isExecutable() && QFileInfo(helper).isExecutable();
}

QString PermissionRule::howTo() const {
    if (canInstall()) {
        return pkexec + QLatin1Char(' ') + helper;
    }
    if (QFileInfo(rule).isFile()) {
        return Texts::ruleByHand(rule);
    }
    return Texts::ruleShipped();
}
