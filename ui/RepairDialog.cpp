#include "ui/RepairDialog.h"

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

}  // namespace

RepairDialog::RepairDialog(const QList<Backup>& backups, const QString& machine,
                           const QList<ProductConfig>& products, const QString& firmware,
                           QWidget* parent)
    : QDialog(parent),
      firmware_(firmware),
      sentence_(new QLabel(this)),
      choices_(new QComboBox(this)),
      repair_(new QPushButton(QStringLiteral("Repair"), this)),
      cancel_(new QPushButton(QStringLiteral("Cancel"), this)) {
    setWindowTitle(QStringLiteral("Repair Machine"));
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(440);
    QVBoxLayout* column = Layouts::windowColumn(this, 12);
    Layouts::addSummary(column, sentence_);
    auto* label = new QLabel(QStringLiteral("Put back:"), this);
    label->setFont(Fonts::system(12));
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(choices_, 1);
    choices_->setFont(Fonts::system(12));
    column->addLayout(row);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {cancel_, repair_}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
    repair_->setDefault(true);

    fill(backups, machine, products);
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

void RepairDialog::fill(const QList<Backup>& backups, const QString& machine,
                        const QList<ProductConfig>& products) {
    const auto add = [this](const QString& text, std::optional<Repair::PutBack> putBack,
                            std::optional<QString> phrase) {
        choices_->addItem(text);
        putBacks_ << std::move(putBack);
        phrases_ << std::move(phrase);
    };
    const QList<Backup> ordered = RestoreWindow::ordered(backups, machine);
    const bool ownNewest = !ordered.isEmpty() && ordered.front().machine == machine;
    if (ownNewest) {
        add(QStringLiteral("Newest backup of this machine (%1)")
                .arg(Texts::backupTime(ordered.front().time)),
            Repair::PutBack{Kind::newestBackup, {}, {}}, Texts::settingsOf(ordered.front().time));
    } else {
        add(QStringLiteral("Choose what goes back\u2026"), std::nullopt, std::nullopt);
    }
    for (qsizetype index = ownNewest ? 1 : 0; index < ordered.size(); ++index) {
        const Backup& backup = ordered[index];
        add(QStringLiteral("Backup of %1 (%2)").arg(Texts::backupTime(backup.time), backup.machine),
            Repair::PutBack{Kind::backup, backup.path, {}}, Texts::settingsOf(backup.time));
    }
    for (const ProductConfig& product : products) {
        add(QStringLiteral("Stock configuration: ") + product.name,
            Repair::PutBack{Kind::product, {}, product}, Texts::stockConfigOf(product.name));
    }
    add(QStringLiteral("No configuration"), Repair::PutBack{Kind::nothing, {}, {}}, std::nullopt);
}

void RepairDialog::follow() {
    const int index = choices_->currentIndex();
    const bool chosen = index >= 0 && putBacks_[index].has_value();
    sentence_->setText(chosen ? Texts::repairPlan(firmware_, phrases_[index])
                              : Texts::repairNeedsChoice());
    repair_->setEnabled(chosen);
}

std::optional<Repair::PutBack> RepairDialog::chosen() const {
    const int index = choices_->currentIndex();
    return index >= 0 ? putBacks_[index] : std::nullopt;
}
