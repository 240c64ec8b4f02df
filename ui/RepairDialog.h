#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <optional>

#include "app/Backup.h"
#include "app/BuildConfig.h"
#include "app/operations/Repair.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

/// Config > "Repair Machine…" and the result banner's "Repair…": one sentence that
/// says what will happen ("Erase the machine, install firmware 2.10.6, then put back
/// your settings from 24/11/2026 14:02."), a choice of what goes back (this
/// machine's settings, another backup, a product's stock configuration, or none),
/// and "Repair" and "Cancel" (also Escape). A firmware that still answers has its
/// settings saved first and put back: the first choice then names "your current
/// settings, saved first"; else this machine's newest backup, and with none nothing
/// is chosen at first and "Repair" waits for a choice. Until it is told whether the
/// firmware answers, "Repair" waits too. Window-modal; GUI thread only.
class RepairDialog : public QDialog {
    Q_OBJECT

  public:
    /// `backups` as `BackupIndex::list` gives them; `machine` the connected
    /// machine's name; `firmware` what is installed ("firmware 2.10.6").
    RepairDialog(const QList<Backup>& backups, const QString& machine,
                 const QList<ProductConfig>& products, const QString& firmware,
                 QWidget* parent = nullptr);

    /// Whether the machine's firmware answers, which decides the first choice.
    void showFirmwareAnswers(bool answers);

    /// What goes back as chosen now; none while nothing is.
    std::optional<Repair::PutBack> chosen() const;

    QLabel* sentence() const { return sentence_; }
    QComboBox* choices() const { return choices_; }
    /// "Take a snapshot of the whole machine first", on at the start.
    QCheckBox* snapshotFirstBox() const { return snapshotFirst_; }
    /// Whether the repair takes a snapshot before it erases anything.
    bool snapshotFirst() const;
    QPushButton* repairButton() const { return repair_; }

  signals:
    /// "Repair" was pressed with `putBack` chosen; the dialog closes itself.
    void repairRequested(const Repair::PutBack& putBack);

  private:
    void fill(const QList<Backup>& backups, const QList<ProductConfig>& products);
    void add(const QString& text, std::optional<Repair::PutBack> putBack,
             std::optional<QString> phrase);
    void follow();

    QString firmware_;
    QString machine_;
    std::optional<Backup> ownNewest_;
    std::optional<bool> firmwareAnswers_;
    QList<std::optional<Repair::PutBack>> putBacks_;
    QList<std::optional<QString>> phrases_;
    QLabel* sentence_;
    QComboBox* choices_;
    QCheckBox* snapshotFirst_;
    QPushButton* repair_;
    QPushButton* cancel_;
};
