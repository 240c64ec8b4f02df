#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

/// One copy of a program at a time: a lock file named after the program in the
/// user's runtime directory, held for the program's whole run. The lock of a
/// copy that died is taken over; a lock never goes stale by age alone.
namespace SingleInstance {

/// Takes `program`'s lock; null while another copy of it holds the lock.
std::unique_ptr<QLockFile> tryLock(const QString& program);

/// `tryLock`; when another copy runs, says "Teskal Firmware Updater is already
/// running." on standard error and in a message box first. Needs a QApplication.
std::unique_ptr<QLockFile> claim(const QString& program);

}  // namespace SingleInstance
