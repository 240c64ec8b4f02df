#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include "app/Backup.h"

class QLabel;
class QPushButton;
class QTreeWidget;

/// Config > "Restore Machine Config…": the kept configurations, this machine's on
/// top and each group newest first, one row each with its date, reason, firmware
/// version, size and machine; "Compare With Machine" and "Restore" act on the
/// selected row (the first one at the start), "Close" (also Escape) closes.
/// Config > "Restore Whole Machine…" shows the snapshots in the same way, with
/// whether the machine ran in place of nothing to compare. Its content is built
/// once by the constructor. GUI thread only.
class RestoreWindow : public QWidget {
    Q_OBJECT

  public:
    /// What the window lists.
    enum class Contents { configurations, snapshots };

    /// `backups` as `BackupIndex::list` gives them for `contents`, from `folder`;
    /// `machine` is the connected machine's name (empty when none is).
    RestoreWindow(QList<Backup> backups, const QString& machine, const QString& folder,
                  QWidget* parent = nullptr, Contents contents = Contents::configurations);

    /// `backups` in the window's order: `machine`'s first, each group newest first.
    static QList<Backup> ordered(QList<Backup> backups, const QString& machine);

    /// The backups in the order shown.
    const QList<Backup>& backups() const { return backups_; }
    QTreeWidget* list() const { return list_; }
    QPushButton* compareButton() const { return compare_; }
    QPushButton* restoreButton() const { return restore_; }

  signals:
    /// "Compare With Machine" was pressed for `backup`.
    void compareRequested(const Backup& backup);
    /// "Restore" was pressed for `backup`; the window closes itself.
    void restoreRequested(const Backup& backup);

  private:
    void buildLayout(const QString& summary);
    void fillList(const QString& machine);
    QStringList rowOf(const Backup& backup, const QString& machine) const;
    const Backup* selected() const;

    Contents contents_;
    QList<Backup> backups_;
    QLabel* summary_;
    QTreeWidget* list_;
    QPushButton* compare_;
    QPushButton* restore_;
    QPushButton* close_;
};
