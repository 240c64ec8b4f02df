#include "ui/SnapshotQuestions.h"

#include <QMessageBox>
#include <QPushButton>

#include "app/Texts.h"

std::unique_ptr<QMessageBox> otherMachineQuestion(QWidget* parent, const QString& owner,
                                                  const QString& machine) {
    auto box = std::make_unique<QMessageBox>(QMessageBox::Warning, Texts::programName(),
                                             Texts::otherMachineQuestion(owner, machine),
                                             QMessageBox::NoButton, parent);
    box->addButton(Texts::restoreAnywayButton(), QMessageBox::DestructiveRole);
    QPushButton* cancel = box->addButton(Texts::cancelButton(), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    return box;
}

bool confirmOtherMachineAsked(QWidget* parent, const QString& owner, const QString& machine) {
    const auto box = otherMachineQuestion(parent, owner, machine);
    box->exec();
    return box->buttonRole(box->clickedButton()) == QMessageBox::DestructiveRole;
}
