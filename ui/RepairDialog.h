#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <optional>

#include "app/Backup.h"
#include "app/BuildConfig.h"
#include "app/operations/Repair.h"

class QComboBox;
class QLabel;
class QPushButton;

/// Config > "Repair Machine…" and the result banner's "Repair…": one sentence that
/// says what will happen ("Erase the machine, install firmware 2.10.6, then put back
/// your settings from 24 Nov 2026 14:02."), a choice of what goes back (this
/// machine's newest backup, another backup, a product's stock configuration, or
/// none), and "Repair" and "Cancel" (also Escape). With no backup of this machine
/// nothing is chosen at first and "Repair" waits for a choice. Window-modal; GUI
/// thread only.
class RepairDialog : public QDialog {
    Q_OBJECT

  public:
    /// `backups` as `BackupIndex::list` gives them; `machine` the connected
    /// machine's name; `firmware` what is installed ("firmware 2.10.6").
    RepairDialog(const QList<Backup>& backups, const QString& machine,
                 const QList<ProductConfig>& products, const QString& firmware,
                 QWidget* parent = nullptr);

    /// What goes back as chosen now; none while nothing is.
    std::optional<Repair::PutBack> chosen() const;

    QLabel* sentence() const { return sentence_; }
    QComboBox* choices() const { return choices_; }
    QPushButton* repairButton() const { return repair_; }

  signals:
    /// "Repair" was pressed with `putBack` chosen; the dialog closes itself.
    void repairRequested(const Repair::PutBack& putBack);

  private:
    void fill(const QList<Backup>& backups, const QString& machine,
              const QList<ProductConfig>& products);
    void follow();

    QString firmware_;
    QList<std::optional<Repair::PutBack>> putBacks_;
    QList<std::optional<QString>> phrases_;
    QLabel* sentence_;
    QComboBox* choices_;
    QPushButton* repair_;
    QPushButton* cancel_;
};
