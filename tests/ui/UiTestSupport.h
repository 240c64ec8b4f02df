#pragma once

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cstdint>

#include "ControllerHarness.h"

/// Plain log lines, as a job's progress shows them.
inline LogEntries infoEntries(const QStringList& lines) {
    LogEntries entries;
    for (const QString& line : lines) {
        entries.append(LogEntry::info(line));
    }
    return entries;
}

/// What a menu or button shows for `text`: Qt drops the "&" that marks a mnemonic
/// and shows "&&" as one "&".
inline QString withoutMnemonic(const QString& text) {
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && i + 1 < text.size()) {
            ++i;
        }
        shown.append(text[i]);
    }
    return shown;
}

/// A device detection that never finds the plotter.
inline char* noDevice(uint16_t, uint16_t) {
    return nullptr;
}

/// The item titled `title` in `window`'s menu bar; in the menu titled `menu` when
/// one is named, since a product's name stands in two submenus.
inline QAction* menuItem(const QMainWindow* window, const QString& title,
                         const QString& menu = {}) {
    for (QAction* item : window->menuBar()->findChildren<QAction*>()) {
        const auto* owner = qobject_cast<const QMenu*>(item->parent());
        if (withoutMnemonic(item->text()) == title &&
            (menu.isEmpty() || (owner && withoutMnemonic(owner->title()) == menu))) {
            return item;
        }
    }
    qFatal("no menu item %s", qPrintable(title));
}

/// Answers the next modal message box with the button titled `answer`, or with
/// the Escape key when `answer` is "Escape". Appends to `asked` the box's text,
/// its buttons and its default button ("text|Keep|Quit|default Keep"), or "none"
/// when no message box came up within 5 s.
inline void answerNextMessageBox(const QString& answer, QStringList* asked, int triesLeft = 500) {
    // The box may not be up yet when the event loop first runs: it is shown by its
    // own exec(), so keep looking for it a while instead of leaving it open.
    QTimer::singleShot(triesLeft == 500 ? 0 : 10, [answer, asked, triesLeft] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible()) {
            if (triesLeft > 0) {
                answerNextMessageBox(answer, asked, triesLeft - 1);
            } else {
                asked->append(QStringLiteral("none"));
            }
            return;
        }
        QStringList seen{box->text()};
        QAbstractButton* chosen = nullptr;
        for (QAbstractButton* button : box->buttons()) {
            seen.append(withoutMnemonic(button->text()));
            chosen = seen.last() == answer ? button : chosen;
        }
        asked->append(
            (seen << "default " + withoutMnemonic(box->defaultButton()->text())).join('|'));
        if (chosen != nullptr) {
            chosen->click();
        } else {
            QTest::keyClick(box, Qt::Key_Escape);
        }
    });
}
