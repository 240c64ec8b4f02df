#include "ui/EraseQuestions.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "app/Texts.h"

namespace {

std::unique_ptr<QMessageBox> question(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                      const QString& informative) {
    auto box = std::make_unique<QMessageBox>(icon, Texts::programName(), text,
                                             QMessageBox::NoButton, parent);
    box->setInformativeText(informative);
    return box;
}

QPushButton* addCancel(QMessageBox& box) {
    QPushButton* cancel = box.addButton(Texts::cancelButton(), QMessageBox::RejectRole);
    box.setEscapeButton(cancel);
    return cancel;
}

QPushButton* addEraseWithoutSaving(QMessageBox& box) {
    return box.addButton(Texts::eraseWithoutSavingButton(), QMessageBox::DestructiveRole);
}

QMessageBox::ButtonRole answerOf(QMessageBox& box) {
    box.exec();
    return box.buttonRole(box.clickedButton());
}

}  // namespace

std::unique_ptr<QMessageBox> eraseQuestion(QWidget* parent) {
    auto box = question(parent, QMessageBox::Question, Texts::eraseQuestion(), QString());
    box->setDefaultButton(box->addButton(Texts::saveAndRestoreButton(), QMessageBox::AcceptRole));
    addEraseWithoutSaving(*box);
    addCancel(*box);
    return box;
}

std::unique_ptr<QMessageBox> eraseAnywayQuestion(QWidget* parent) {
    auto box = question(parent, QMessageBox::Warning, Texts::firmwareSilentNothingSaved(),
                        Texts::eraseAnywayQuestion());
    addEraseWithoutSaving(*box);
    box->setDefaultButton(addCancel(*box));
    return box;
}

std::unique_ptr<QMessageBox> retryQuestion(QWidget* parent, const QString& reason) {
    auto box = question(parent, QMessageBox::Warning, reason, Texts::retryQuestion());
    box->setDefaultButton(box->addButton(Texts::retryButton(), QMessageBox::AcceptRole));
    addEraseWithoutSaving(*box);
    addCancel(*box);
    return box;
}

std::unique_ptr<QMessageBox> installOlderQuestion(QWidget* parent, const QString& chosen,
                                                  const QString& running) {
    auto box = question(parent, QMessageBox::Warning, Texts::installOlderTitle(),
                        Texts::installOlderQuestion(chosen, running));
    box->addButton(Texts::installOlderButton(), QMessageBox::AcceptRole);
    box->setDefaultButton(addCancel(*box));
    return box;
}

SettingsQuestions settingsQuestionsAsked(QWidget* parent) {
    // A question that comes after the window has gone is asked on its own.
    const QPointer<QWidget> window(parent);
    SettingsQuestions questions;
    questions.beforeErase = [window] {
        using Answer = SettingsQuestions::BeforeErase;
        switch (answerOf(*eraseQuestion(window))) {
            case QMessageBox::AcceptRole:
                return Answer::saveAndRestore;
            case QMessageBox::DestructiveRole:
                return Answer::eraseWithoutSaving;
            default:
                return Answer::cancel;
        }
    };
    questions.eraseAnyway = [window] {
        return answerOf(*eraseAnywayQuestion(window)) == QMessageBox::DestructiveRole;
    };
    questions.afterFailedRead = [window](const QString& reason) {
        using Answer = SettingsQuestions::AfterFailedRead;
        switch (answerOf(*retryQuestion(window, reason))) {
            case QMessageBox::AcceptRole:
                return Answer::retry;
            case QMessageBox::DestructiveRole:
                return Answer::eraseWithoutSaving;
            default:
                return Answer::cancel;
        }
    };
    questions.installOlder = [window](const QString& chosen, const QString& running) {
        return answerOf(*installOlderQuestion(window, chosen, running)) == QMessageBox::AcceptRole;
    };
    return questions;
}
