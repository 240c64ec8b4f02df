#include "ui/CompareWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/texts/WindowTexts.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"

namespace {

QPlainTextEdit* makeTextView(const QString& text, QWidget* parent) {
    auto* view = new QPlainTextEdit(text, parent);
    view->setReadOnly(true);
    // Diff lines are read column by column; wrapping would break that.
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setFont(Fonts::monospace(11));
    return view;
}

QString keyText(const ConfigComparison& comparison) {
    if (!comparison.errors.isEmpty()) {
        return comparison.errors.join(QLatin1Char('\n'));
    }
    if (comparison.keyDifferences.isEmpty()) {
        return Texts::noKeyDiffers();
    }
    return comparison.keyDifferences.join(QLatin1Char('\n'));
}

QString lineText(const ConfigComparison& comparison) {
    return comparison.lineDiff.isEmpty() ? Texts::sameLineByLine() : comparison.lineDiff;
}

}  // namespace

CompareWindow::CompareWindow(const ConfigComparison& comparison, const QString& chosenLabel,
                             QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      summary_(new QLabel(summary(comparison, chosenLabel), this)),
      tabs_(new QTabWidget(this)),
      keys_(makeTextView(keyText(comparison), this)),
      lines_(makeTextView(lineText(comparison), this)),
      upload_(new QPushButton(Texts::uploadThisConfiguration(), this)),
      close_(new QPushButton(Texts::closeButton(), this)) {
    setWindowTitle(Texts::compareTitle(chosenLabel));
    resize(560, 440);
    setMinimumSize(480, 320);
    buildLayout();
    connect(upload_, &QPushButton::clicked, this, [this] {
        close();
        emit uploadRequested();
    });
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    close_->setShortcut(QKeySequence(Qt::Key_Escape));
    close_->setDefault(true);
}

QString CompareWindow::summary(const ConfigComparison& comparison, const QString& chosenLabel) {
    if (!comparison.errors.isEmpty()) {
        return Texts::notComparableByKey();
    }
    const qsizetype count = comparison.keyDifferences.size();
    return count == 0 ? Texts::matchesByKey(chosenLabel)
                      : Texts::settingsDiffer(count, chosenLabel);
}

void CompareWindow::buildLayout() {
    QVBoxLayout* column = Layouts::windowColumn(this, 12);
    Layouts::addSummary(column, summary_);

    tabs_->setFont(Fonts::system(12));
    tabs_->addTab(keys_, Texts::byKeyTab());
    tabs_->addTab(lines_, Texts::byLineTab());
    column->addWidget(tabs_, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {upload_, close_}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
}
