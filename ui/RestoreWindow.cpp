#include "ui/RestoreWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "app/Texts.h"
#include "app/VersionText.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"

RestoreWindow::RestoreWindow(QList<Backup> backups, const QString& machine, const QString& folder,
                             QWidget* parent, Contents contents)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      contents_(contents),
      backups_(ordered(std::move(backups), machine)),
      summary_(new QLabel(this)),
      list_(new QTreeWidget(this)),
      compare_(new QPushButton(Texts::compareWithMachineButton(), this)),
      restore_(new QPushButton(Texts::restoreButton(), this)),
      close_(new QPushButton(Texts::closeButton(), this)) {
    const bool snapshots = contents_ == Contents::snapshots;
    setWindowTitle(snapshots ? Texts::restoreWholeTitle() : Texts::restoreTitle());
    resize(600, 360);
    setMinimumSize(480, 280);
    if (snapshots) {
        buildLayout(backups_.isEmpty() ? Texts::noSnapshotsToRestore(folder)
                                       : Texts::snapshotsToRestore(folder));
    } else {
        buildLayout(backups_.isEmpty() ? Texts::noBackupsToRestore(folder)
                                       : Texts::backupsToRestore(folder));
    }
    compare_->setVisible(!snapshots);
    fillList(machine);
    connect(compare_, &QPushButton::clicked, this, [this] {
        if (const Backup* backup = selected()) {
            emit compareRequested(*backup);
        }
    });
    connect(restore_, &QPushButton::clicked, this, [this] {
        if (const Backup* backup = selected()) {
            const Backup chosen = *backup;
            close();
            emit restoreRequested(chosen);
        }
    });
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    close_->setShortcut(QKeySequence(Qt::Key_Escape));
}

QList<Backup> RestoreWindow::ordered(QList<Backup> backups, const QString& machine) {
    std::stable_sort(backups.begin(), backups.end(), [&](const Backup& a, const Backup& b) {
        const bool aMine = !machine.isEmpty() && a.machine == machine;
        const bool bMine = !machine.isEmpty() && b.machine == machine;
        return aMine != bMine ? aMine : a.time > b.time;
    });
    return backups;
}

void RestoreWindow::buildLayout(const QString& summary) {
    QVBoxLayout* column = Layouts::windowColumn(this, 12);
    summary_->setText(summary);
    Layouts::addSummary(column, summary_);

    list_->setFont(Fonts::system(12));
    list_->setRootIsDecorated(false);
    QStringList columns{Texts::dateColumn(), Texts::reasonColumn(), Texts::firmwareColumn(),
                        Texts::sizeColumn(), Texts::machineColumn()};
    if (contents_ == Contents::snapshots) {
        columns.insert(3, Texts::ranColumn());
    }
    list_->setHeaderLabels(columns);
    list_->header()->setStretchLastSection(true);
    column->addWidget(list_, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {compare_, restore_, close_}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
}

void RestoreWindow::fillList(const QString& machine) {
    for (const Backup& backup : backups_) {
        list_->addTopLevelItem(new QTreeWidgetItem(rowOf(backup, machine)));
    }
    for (int column = 0; column < list_->columnCount() - 1; ++column) {
        list_->resizeColumnToContents(column);
    }
    list_->setCurrentItem(list_->topLevelItem(0));
    compare_->setEnabled(!backups_.isEmpty());
    restore_->setEnabled(!backups_.isEmpty());
    restore_->setDefault(!backups_.isEmpty());
}

QStringList RestoreWindow::rowOf(const Backup& backup, const QString& machine) const {
    const QString owner =
        backup.machine == machine ? Texts::thisMachine(backup.machine) : backup.machine;
    const QString version =
        backup.firmwareVersion ? VersionText::shown(*backup.firmwareVersion) : Texts::noVersion();
    QStringList row{Texts::backupTime(backup.time, Texts::Audience::window),
                    Texts::backupReason(backup.reason), version, Texts::byteCount(backup.size),
                    owner};
    if (contents_ == Contents::snapshots) {
        const bool heard = backup.snapshot && backup.snapshot->startup;
        row.insert(3, !heard         ? Texts::noVersion()
                      : backup.ran() ? Texts::ranYes()
                                     : Texts::ranNo());
    }
    return row;
}

const Backup* RestoreWindow::selected() const {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    return row >= 0 ? &backups_[row] : nullptr;
}
