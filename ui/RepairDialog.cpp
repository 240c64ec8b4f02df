#include "ui/RepairDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Texts.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"
#include "ui/RestoreWindow.h"

namespace {

using Kind = Repair::PutBack::Kind;
constexpr auto kWindow = Texts::Audience::window;

}  // namespace

RepairDialog::RepairDialog(const QList<Backup>& backups, const QString& machine,
                           const QList<ProductConfig>& products, const QString& firmware,
                           QWidget* parent)
    : QDialog(parent),
      firmware_(firmware),
      machine_(machine),
      sentence_(new QLabel(this)),
      choices_(new QComboBox(this)),
      snapshotFirst_(new QCheckBox(Texts::snapshotFirstCheckBox(), this)),
      repair_(new QPushButton(Texts::repairConfirmButton(), this)),
      cancel_(new QPushButton(Texts::cancelButton(), this)) {
    setWindowTitle(Texts::repairTitle());
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(440);
    QVBoxLayout* column = Layouts::windowColumn(this, 12);
    Layouts::addSummary(column, sentence_);
    auto* label = new QLabel(Texts::putBackLabel(), this);
    label->setFont(Fonts::system(12));
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(choices_, 1);
    choices_->setFont(Fonts::system(12));
    column->addLayout(row);
    // On by default: a way back costs only time, which a slow link makes longer.
    snapshotFirst_->setChecked(true);
    snapshotFirst_->setFont(Fonts::system(12));
    column->addWidget(snapshotFirst_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {cancel_, repair_}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
    repair_->setDefault(true);

    fill(backups, products);
    connect(choices_, &QComboBox::currentIndexChanged, this, &RepairDialog::follow);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(repair_, &QPushButton::clicked, this, [this] {
        if (const auto putBack = chosen()) {
            accept();
            emit repairRequested(*putBack);
        }
    });
    follow();
}

void RepairDialog::add(const QString& text, std::optional<Repair::PutBack> putBack,
                       std::optional<QString> phrase) {
    choices_->addItem(text);
    putBacks_ << std::move(putBack);
    phrases_ << std::move(phrase);
}

// The first choice stands for this machine's own settings; `showFirmwareAnswers`
// names it once it is known which copy the repair will put back.
void RepairDialog::fill(const QList<Backup>& backups, const QList<ProductConfig>& products) {
    const QList<Backup> ordered = RestoreWindow::ordered(backups, machine_);
    const bool ownNewest = !ordered.isEmpty() && ordered.front().machine == machine_;
    if (ownNewest) {
        ownNewest_ = ordered.front();
    }
    add(QString(), std::nullopt, std::nullopt);
    for (qsizetype index = ownNewest ? 1 : 0; index < ordered.size(); ++index) {
        const Backup& backup = ordered[index];
        add(Texts::backupItem(Texts::backupTime(backup.time, kWindow), backup.machine),
            Repair::PutBack{Kind::backup, backup.path, {}},
            Texts::settingsOf(backup.time, kWindow));
    }
    for (const ProductConfig& product : products) {
        add(Texts::stockConfigItem(product.name), Repair::PutBack{Kind::product, {}, product},
            Texts::stockConfigOf(product.name));
    }
    add(Texts::noConfigurationItem(), Repair::PutBack{Kind::nothing, {}, {}}, std::nullopt);
    showFirmwareAnswers(false);
    firmwareAnswers_.reset();
}

void RepairDialog::showFirmwareAnswers(bool answers) {
    firmwareAnswers_ = answers;
    const Repair::PutBack newest{Kind::newestBackup, {}, {}};
    if (answers) {
        choices_->setItemText(0, Texts::currentSettingsItem());
        putBacks_[0] = newest;
        phrases_[0] = Texts::currentSettingsSavedFirst();
    } else if (ownNewest_) {
        choices_->setItemText(
            0, Texts::newestBackupItem(Texts::backupTime(ownNewest_->time, kWindow)));
        putBacks_[0] = newest;
        phrases_[0] = Texts::settingsOf(ownNewest_->time, kWindow);
    } else {
        choices_->setItemText(0, Texts::chooseWhatGoesBack());
        putBacks_[0].reset();
        phrases_[0].reset();
    }
    follow();
}

void RepairDialog::follow() {
    const int index = choices_->currentIndex();
    const bool chosen = index >= 0 && putBacks_[index].has_value();
    if (!firmwareAnswers_) {
        sentence_->setText(Texts::askingFirmware());
    } else if (!chosen) {
        sentence_->setText(Texts::repairNeedsChoice());
    } else {
        sentence_->setText(phrases_[index] ? Texts::repairPlan(firmware_, *phrases_[index])
                                           : Texts::repairPlanWithoutConfig(firmware_));
    }
    repair_->setEnabled(chosen && firmwareAnswers_.has_value());
    // The sentence may take another line now; the dialog grows to show it whole.
    if (isVisible()) {
        adjustSize();
    }
}

std::optional<Repair::PutBack> RepairDialog::chosen() const {
    const int index = choices_->currentIndex();
    return index >= 0 ? putBacks_[index] : std::nullopt;
}

bool RepairDialog::snapshotFirst() const {
    return snapshotFirst_->isChecked();
}
