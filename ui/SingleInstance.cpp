#include "ui/SingleInstance.h"

#include <QDir>
#include <QMessageBox>
#include <QStandardPaths>
#include <cstdio>

#include "app/texts/WindowTexts.h"

namespace SingleInstance {

std::unique_ptr<QLockFile> tryLock(const QString& program) {
    const QDir runtime(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    auto lock = std::make_unique<QLockFile>(runtime.filePath(program + QStringLiteral(".lock")));
    // The default stale time would let a second copy take the lock of a first
    // that has simply run for more than 30 s.
    lock->setStaleLockTime(0);
    if (!lock->tryLock()) {
        return nullptr;
    }
    return lock;
}

std::unique_ptr<QLockFile> claim(const QString& program) {
    auto lock = tryLock(program);
    if (!lock) {
        const QString message = Texts::alreadyRunning();
        std::fprintf(stderr, "%s\n", qPrintable(message));
        QMessageBox::information(nullptr, Texts::programName(), message);
    }
    return lock;
}

}  // namespace SingleInstance
