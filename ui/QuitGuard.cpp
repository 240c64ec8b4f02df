#include "ui/QuitGuard.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <cstdlib>

#include "app/texts/WindowTexts.h"

std::unique_ptr<QMessageBox> quitDuringJobQuestion(QWidget* parent) {
    auto question = std::make_unique<QMessageBox>(QMessageBox::Warning, Texts::programName(),
                                                  Texts::quitDuringJobQuestion(),
                                                  QMessageBox::NoButton, parent);
    QPushButton* keep = question->addButton(Texts::keepRunningButton(), QMessageBox::RejectRole);
    question->addButton(Texts::quitAnywayButton(), QMessageBox::DestructiveRole);
    question->setDefaultButton(keep);
    question->setEscapeButton(keep);
    return question;
}

bool askToQuitDuringJob(QWidget* parent) {
    const auto question = quitDuringJobQuestion(parent);
    question->exec();
    return question->buttonRole(question->clickedButton()) == QMessageBox::DestructiveRole;
}

void exitAtOnce() {
    std::_Exit(EXIT_SUCCESS);
}

QuitGuard::QuitGuard(QWidget* window, std::function<bool()> jobRunning, Question askToQuit,
                     std::function<void()> exitNow, QObject* parent)
    : QObject(parent),
      window_(window),
      jobRunning_(std::move(jobRunning)),
      askToQuit_(std::move(askToQuit)),
      exitNow_(std::move(exitNow)) {
    window->installEventFilter(this);
}

void QuitGuard::requestQuit() {
    if (mayEnd()) {
        QCoreApplication::quit();
    }
}

bool QuitGuard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Close && !mayEnd()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool QuitGuard::mayEnd() {
    if (!jobRunning_()) {
        return true;
    }
    if (askToQuit_(window_)) {
        exitNow_();
    }
    return false;
}
