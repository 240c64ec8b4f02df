#include "ui/CatalogueChooser.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Texts.h"
#include "app/catalogue/CatalogueSource.h"
#include "ui/Layouts.h"

std::optional<QString> chooseCatalogueWithDialog(QWidget* parent, const QString& current) {
    QDialog dialog(parent);
    dialog.setWindowTitle(Texts::catalogueSourceTitle());
    QVBoxLayout* column = Layouts::windowColumn(&dialog, 12);
    auto* prompt = new QLabel(Texts::catalogueSourcePrompt(), &dialog);
    prompt->setWordWrap(true);
    column->addWidget(prompt);
    auto* address = new QLineEdit(current, &dialog);
    address->setMinimumWidth(420);
    prompt->setBuddy(address);
    column->addWidget(address);
    auto* row = new QHBoxLayout;
    auto* file = new QPushButton(Texts::chooseCatalogueFile(), &dialog);
    auto* folder = new QPushButton(Texts::chooseCatalogueFolder(), &dialog);
    row->addWidget(file);
    row->addWidget(folder);
    row->addStretch(1);
    column->addLayout(row);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    column->addWidget(buttons);
    QObject::connect(file, &QPushButton::clicked, &dialog, [&] {
        const QString path = QFileDialog::getOpenFileName(
            &dialog, Texts::catalogueSourceTitle(), QString(),
            QStringLiteral("%1 (%1)").arg(QLatin1String(CatalogueSource::kCatalogueName)));
        if (!path.isEmpty()) {
            address->setText(path);
        }
    });
    QObject::connect(folder, &QPushButton::clicked, &dialog, [&] {
        const QString path =
            QFileDialog::getExistingDirectory(&dialog, Texts::catalogueSourceTitle());
        if (!path.isEmpty()) {
            address->setText(path);
        }
    });
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted || address->text().trimmed().isEmpty()) {
        return std::nullopt;
    }
    return address->text().trimmed();
}
