#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdint>

#include "app/UpdateState.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

/// A device detection that never finds the plotter.
inline char* noDevice(uint16_t, uint16_t) {
    return nullptr;
}

/// Answers the next modal message box with the button titled `answer`, or with
/// the Escape key when `answer` is "Escape". Appends to `asked` the box's text,
/// its buttons and its default button ("text|Keep|Quit|default Keep"), or "none"
/// when no message box was up.
inline void answerNextMessageBox(const QString& answer, QStringList* asked) {
    QTimer::singleShot(0, [answer, asked] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            asked->append(QStringLiteral("none"));
            return;
        }
        QStringList seen{box->text()};
        for (QAbstractButton* button : box->buttons()) {
            seen.append(button->text());
        }
        seen.append(QStringLiteral("default ") + box->defaultButton()->text());
        asked->append(seen.join(QLatin1Char('|')));
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == answer) {
                button->click();
                return;
            }
        }
        QTest::keyClick(box, Qt::Key_Escape);
    });
}
