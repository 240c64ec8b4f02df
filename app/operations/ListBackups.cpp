#include "app/operations/ListBackups.h"

#include "app/BackupIndex.h"
#include "app/Texts.h"

Outcome ListBackups::run(const OperationSink& sink) {
    const BackupIndex index;
    BackupListing listing{index.list([&](const QString& line) { sink.error(line); })};
    for (const Backup& backup : listing.backups) {
        sink.info(Texts::backupLine(Texts::backupTime(backup.time, sink.audience),
                                    BackupIndex::reasonName(backup.reason),
                                    backup.firmwareVersion.value_or(Texts::noVersion()),
                                    backup.size, backup.machine, backup.path));
    }
    if (listing.backups.isEmpty()) {
        sink.info(Texts::noBackups(index.folder()));
    }
    Outcome listed = Outcome::success(Texts::backupsIn(listing.backups.size(), index.folder()));
    listed.cause = std::move(listing);
    return listed;
}
